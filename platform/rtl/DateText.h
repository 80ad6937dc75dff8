// Dates and times to text and back, by patterns and by the formats of FormatSettings.
//
//     TDateTime day = StrToDate(u"07/03/2024");
//     FormatDateTime(u"yyyy-MM-dd", day)           // "2024-03-07"
//
// Reading is strict: "31/02/2024" is no date. Str... functions throw EConvertError with a Portuguese sentence
// that names the text; Try... functions answer false and leave the value alone. Blanks around the text are
// skipped.
#pragma once
#include <QStringView>
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Types.h"

// Day, month and year in the order of FormatSettings.ShortDateFormat with its date separator. A year of one
// or two digits falls in the window of FormatSettings; day and month alone are of the current year.
TDateTime StrToDate(QStringView text);
bool TryStrToDate(QStringView text, TDateTime& value);

// "hh:mm", "hh:mm:ss" or "hh:mm:ss,zzz"; hours 0 to 23.
TDateTime StrToTime(QStringView text);
bool TryStrToTime(QStringView text, TDateTime& value);

// A date, or a date, blanks and a time.
TDateTime StrToDateTime(QStringView text);
bool TryStrToDateTime(QStringView text, TDateTime& value);

UnicodeString DateToStr(TDateTime date);
UnicodeString TimeToStr(TDateTime time);

// Date and time; the date alone at midnight.
UnicodeString DateTimeToStr(TDateTime date);

// The date-time laid out by a pattern, upper and lower case alike:
//   d dd ddd dddd    day, two digits, short and long name of the day of week
//   m mm mmm mmmm    month likewise; minutes right after an hour
//   yy yyyy          year
//   h hh  n nn  s ss hour (0 to 23), minute, second
//   z zzz            millisecond
//   / :              the date and time separators of FormatSettings
// Texts in single or double quotes and all other characters, "T" among them, stand for themselves. An empty
// pattern means DateTimeToStr. Throws EConvertError for a date outside the years 1 to 9999.
UnicodeString FormatDateTime(QStringView pattern, TDateTime date);
