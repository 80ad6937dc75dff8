#include "platform/rtl/DateText.h"

#include <array>
#include <QList>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Trim.h"

namespace {

// A number of at most `mostDigits` decimal digits, or -1.
int ReadNumber(QStringView text, int mostDigits) {
    if (text.isEmpty() || text.size() > mostDigits) return -1;
    int value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9') return -1;
        value = value * 10 + (c.unicode() - u'0');
    }
    return value;
}

// The letters d, m and y in the order in which the short date has them.
UnicodeString DateOrder() {
    UnicodeString order;
    for (const QChar c : FormatSettings.ShortDateFormat) {
        const QChar letter = c.toLower();
        if (QStringView(u"dmy").contains(letter) && !order.contains(letter)) order += letter;
    }
    return order;
}

int ReadYear(QStringView text) {
    const int year = ReadNumber(text, 4);
    if (year < 0 || text.size() > 2) return year;
    const int first = DecodeDate(Now()).Year - FormatSettings.TwoDigitYearCenturyWindow;
    const int inCentury = first / 100 * 100 + year;
    return inCentury < first ? inCentury + 100 : inCentury;
}

UnicodeString Padded(int value, int digits) {
    return UnicodeString::number(value).rightJustified(digits, u'0');
}

// Writes one date-time by a pattern.
class TPatternWriter {
  public:
    explicit TPatternWriter(TDateTime date)
        : FDate(DecodeDate(date)),
          FTime(DecodeTime(date)),
          FWeekday(DayOfWeek(EncodeDate(FDate.Year, FDate.Month, FDate.Day))) {}

    UnicodeString Write(QStringView pattern) {
        for (qsizetype i = 0; i < pattern.size();) i += WriteNext(pattern.sliced(i));
        return FText;
    }

  private:
    // Writes what the pattern begins with and returns how many of its characters that took.
    qsizetype WriteNext(QStringView pattern) {
        const QChar first = pattern.front();
        if (first == u'\'' || first == u'"') return WriteQuoted(pattern);
        const char16_t letter = first.toLower().unicode();
        if (!QStringView(u"dmyhnsz").contains(letter)) {
            FText += Separator(first);
            return 1;
        }
        int length = 0;
        while (length < pattern.size() && pattern[length].toLower() == letter) ++length;
        FText += letter == u'm' && FAfterHour ? Short(FTime.Minute, length) : Part(letter, length);
        FAfterHour = letter == u'h';
        return length;
    }

    qsizetype WriteQuoted(QStringView pattern) {
        const qsizetype end = pattern.indexOf(pattern.front(), 1);
        const qsizetype length = end < 0 ? pattern.size() : end + 1;
        FText += pattern.sliced(1, (end < 0 ? length : end) - 1);
        return length;
    }

    static QChar Separator(QChar c) {
        if (c == u'/') return FormatSettings.DateSeparator;
        return c == u':' ? QChar(FormatSettings.TimeSeparator) : c;
    }

    static UnicodeString Short(int value, int length) { return Padded(value, length == 1 ? 1 : 2); }

    UnicodeString Part(char16_t letter, int length) const {
        switch (letter) {
            case u'd': return length < 3 ? Short(FDate.Day, length) : DayName(length);
            case u'm': return length < 3 ? Short(FDate.Month, length) : MonthName(length);
            case u'y': return length < 3 ? Padded(FDate.Year % 100, 2) : Padded(FDate.Year, 4);
            case u'h': return Short(FTime.Hour, length);
            case u'n': return Short(FTime.Minute, length);
            case u's': return Short(FTime.Second, length);
            default: return Padded(FTime.Millisecond, length == 1 ? 1 : 3);
        }
    }

    UnicodeString DayName(int length) const {
        return (length == 3 ? FormatSettings.ShortDayNames : FormatSettings.LongDayNames)[FWeekday - 1];
    }

    UnicodeString MonthName(int length) const {
        return (length == 3 ? FormatSettings.ShortMonthNames
                            : FormatSettings.LongMonthNames)[FDate.Month - 1];
    }

    TDateParts FDate;
    TTimeParts FTime;
    int FWeekday;
    bool FAfterHour = false;
    UnicodeString FText;
};

using TReader = bool (*)(QStringView, TDateTime&);

TDateTime ReadOrRaise(TReader read, QStringView text, const char16_t* complaint) {
    TDateTime value;
    if (!read(text, value)) throw EConvertError(QString::fromUtf16(complaint).arg(text));
    return value;
}

// The milliseconds of a second written with decimals: "5" is 500.
int ReadMilliseconds(QStringView text) {
    const int value = ReadNumber(text, 3);
    constexpr std::array kUnits{0, 100, 10, 1};
    return value < 0 ? -1 : value * kUnits[text.size()];
}

}  // namespace

bool TryStrToDate(QStringView text, TDateTime& value) {
    const auto parts = Trim(text).split(QChar(FormatSettings.DateSeparator));
    UnicodeString order = DateOrder();
    if (order.size() != 3) return false;
    const bool thisYear = parts.size() == 2;
    if (thisYear) order.remove(u'y');
    if (parts.size() != order.size()) return false;
    const auto part = [&](QChar letter) { return parts[order.indexOf(letter)]; };
    const int year = thisYear ? DecodeDate(Date()).Year : ReadYear(part(u'y'));
    const auto date = TryEncodeDate(year, ReadNumber(part(u'm'), 2), ReadNumber(part(u'd'), 2));
    if (date) value = *date;
    return date.has_value();
}

TDateTime StrToDate(QStringView text) {
    return ReadOrRaise(TryStrToDate, text, u"'%1' não é uma data válida.");
}

bool TryStrToTime(QStringView text, TDateTime& value) {
    auto parts = Trim(text).split(QChar(FormatSettings.TimeSeparator));
    if (parts.size() < 2 || parts.size() > 3) return false;
    if (parts.size() == 2) parts.append(u"0");
    const auto seconds = parts[2].split(QChar(FormatSettings.DecimalSeparator));
    if (seconds.size() > 2) return false;
    const int milliseconds = seconds.size() == 2 ? ReadMilliseconds(seconds[1]) : 0;
    const auto time = TryEncodeTime(ReadNumber(parts[0], 2), ReadNumber(parts[1], 2),
                                    ReadNumber(seconds[0], 2), milliseconds);
    if (time) value = *time;
    return time.has_value();
}

TDateTime StrToTime(QStringView text) {
    return ReadOrRaise(TryStrToTime, text, u"'%1' não é uma hora válida.");
}

bool TryStrToDateTime(QStringView text, TDateTime& value) {
    text = Trim(text);
    const qsizetype blank = text.indexOf(u' ');
    TDateTime date, time;
    if (!TryStrToDate(blank < 0 ? text : text.left(blank), date)) return false;
    if (blank >= 0 && !TryStrToTime(text.sliced(blank), time)) return false;
    value = JoinDateTime(date, time);
    return true;
}

TDateTime StrToDateTime(QStringView text) {
    return ReadOrRaise(TryStrToDateTime, text, u"'%1' não é uma data e hora válida.");
}

UnicodeString DateToStr(TDateTime date) {
    return FormatDateTime(FormatSettings.ShortDateFormat, date);
}

UnicodeString TimeToStr(TDateTime time) {
    return FormatDateTime(FormatSettings.LongTimeFormat, time);
}

UnicodeString DateTimeToStr(TDateTime date) {
    if (DecodeTime(date) == TTimeParts{}) return DateToStr(date);
    return DateToStr(date) + u' ' + TimeToStr(date);
}

UnicodeString FormatDateTime(QStringView pattern, TDateTime date) {
    return pattern.isEmpty() ? DateTimeToStr(date) : TPatternWriter(date).Write(pattern);
}
