// How numbers and dates are written for the user: Brazilian whatever the machine's language. A host that
// wants others sets them before its first form. This header also gathers the conversions that obey them.
//
//     FormatFloat(u"#,##0.00", 1234.5)             // "1.234,50"
//     FormatDateTime(u"dd/mm/yyyy hh:nn", Now())   // "07/03/2024 14:05"
#pragma once
#include <array>
#include "platform/rtl/DateText.h"
#include "platform/rtl/NumberMask.h"
#include "platform/rtl/NumberText.h"
#include "platform/rtl/Types.h"

struct TFormatSettings {
    WideChar DecimalSeparator = u',';
    WideChar ThousandSeparator = u'.';
    WideChar DateSeparator = u'/';
    WideChar TimeSeparator = u':';
    UnicodeString ShortDateFormat = QStringLiteral("dd/MM/yyyy");
    UnicodeString LongTimeFormat = QStringLiteral("HH:mm:ss");

    // A typed year of one or two digits is taken in the hundred years that begin this many years ago.
    int TwoDigitYearCenturyWindow = 50;

    std::array<UnicodeString, 12> LongMonthNames;   // "Janeiro" ...
    std::array<UnicodeString, 12> ShortMonthNames;  // "Jan" ...
    std::array<UnicodeString, 7> LongDayNames;      // from "Domingo"
    std::array<UnicodeString, 7> ShortDayNames;     // from "Dom"

    TFormatSettings();
};

// The settings in use.
extern TFormatSettings FormatSettings;
