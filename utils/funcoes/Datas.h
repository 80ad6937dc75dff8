// Dates: tolerant reading, ends of weeks and months, texts for fiscal documents and SQL, times of files.
//
//     FixDate(u"5/13/24"_s)                                    // 05/12/2024
//     LastDayOfMonth(date)                                     // of 15/02/2023: 28/02/2023
//     NFeStrToDateTime(u"2024-03-07T14:05:09"_s)               // 07/03/2024 14:05:09
//     DateToSQLDate(date, true)                                // '03/07/2024'
//
// Days of the week count from 1, Sunday, to 7, Saturday.
#pragma once
#include <cstdint>
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Types.h"

// The date typed as day/month/year, whatever else stands among the digits. A missing part counts as 1; a year
// of fewer than three digits counts from 2000 (an empty one gives 2001); month and day are brought into their
// ranges. Throws EConvertError for a year that, held in 16 bits, exceeds 9999.
TDateTime FixDate(const UnicodeString& text);

// The first Monday of the date's month, time 0.
TDateTime FirstMonday(TDateTime date);

// Sunday and Saturday of the date's week, its time of day kept.
TDateTime FirstDayOfWeek(TDateTime date);
TDateTime LastDayOfWeek(TDateTime date);

// First and last day of the date's month, time 0.
TDateTime FirstDayOfMonth(TDateTime date);
TDateTime LastDayOfMonth(TDateTime date);

// The month's Portuguese name. REQUIRES: `month` from 1 to 12; nothing checks it.
UnicodeString GetMonthName(uint16_t month);

// "yyyy-MM-dd/Thh:mm:ss" with the separators in force: 2024-03-07/T14:05:09. The slash is part of the text.
UnicodeString DateTimeToNFeStr(TDateTime dateTime);

// "yyyy-MM-dd".
UnicodeString DateToNFeStr(TDateTime date);

// The date and time of a text such as 2024-03-07T14:05:09, cut by position: the dashes and the T are not
// looked at. Throws EConvertError when the pieces are no date and time.
TDateTime NFeStrToDateTime(const UnicodeString& text);

// "MM/dd/yyyy" with the date separator in force, between single quotes when `quoted`.
UnicodeString DateToSQLDate(TDateTime date, bool quoted);

// When the file was last changed, in local time. Throws EConvertError when it cannot be told (no such file).
TDateTime GetFileDate(const UnicodeString& fileName);

// Sets when the file was last changed, `dateTime` in local time. Returns the system's error code, 0 on
// success.
int SetFileDate(const UnicodeString& fileName, TDateTime dateTime);
