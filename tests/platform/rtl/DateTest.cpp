// The calendar, dates to text and back.
#include <gtest/gtest.h>
#include <QScopeGuard>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const TDateTime kMoment = EncodeDate(2024, 3, 7) + EncodeTime(14, 5, 9, 30).Value;

template <typename F>
UnicodeString ComplaintOf(F&& call) {
    try {
        call();
    } catch (const EConvertError& e) {
        return e.Message;
    }
    return u"none"_s;
}

}  // namespace

TEST(DateTime, Calendar) {
    EXPECT_EQ(EncodeDate(1899, 12, 30).Value, 0);
    EXPECT_EQ(EncodeDate(1, 1, 1).Value, -693593);
    EXPECT_EQ(EncodeDate(9999, 12, 31).Value, 2958465);
    for (const double day : {-693593.0, -1.0, 0.0, 60.0, 45358.0, 2958465.0}) {
        const TDateParts parts = DecodeDate(TDateTime(day));
        EXPECT_EQ(EncodeDate(parts.Year, parts.Month, parts.Day).Value, day);
    }
    EXPECT_EQ(DayOfWeek(EncodeDate(2024, 3, 10)), 1);
    EXPECT_EQ(DayOfWeek(EncodeDate(1899, 12, 29)), 6);
    EXPECT_EQ(DaysInMonth(2024, 2), 29);
    EXPECT_EQ(DaysInMonth(1900, 2), 28);
    EXPECT_FALSE(TryEncodeDate(2023, 2, 29));
    EXPECT_THROW(EncodeDate(10000, 1, 1), EConvertError);
    EXPECT_THROW(DecodeDate(TDateTime(3e6)), EConvertError);
}

TEST(DateTime, TimeCountsForwardBeforeDayZero) {
    const TDateTime moment(-1.25);
    EXPECT_EQ(DecodeDate(moment), (TDateParts{1899, 12, 29}));
    EXPECT_EQ(DecodeTime(moment), (TTimeParts{6, 0, 0, 0}));
    EXPECT_EQ(JoinDateTime(DateOf(moment), TimeOf(moment)), moment);
}

TEST(DateTime, RoundsDateAndTimeTogether) {
    const TDateTime moment = EncodeDate(2024, 2, 29) + (1 - 1e-10);
    EXPECT_EQ(DecodeDate(moment), (TDateParts{2024, 3, 1}));
    EXPECT_EQ(DecodeTime(moment), (TTimeParts{0, 0, 0, 0}));
}

TEST(DateTime, ClockCanBeReplaced) {
    const TClock before = SetClock([] { return kMoment; });
    EXPECT_EQ(Date(), EncodeDate(2024, 3, 7));
    SetClock(before);
    EXPECT_GT(Now(), kMoment);
}

TEST(DateText, Patterns) {
    const std::pair<QStringView, QStringView> cases[] = {
        {u"yyyy-MM-dd/Thh:mm:ss", u"2024-03-07/T14:05:09"},
        {u"MM/dd/yyyy", u"03/07/2024"},
        {u"d/m/yy", u"7/3/24"},
        {u"hh:mm mm", u"14:05 03"},
        {u"hh:nn:ss.zzz", u"14:05:09.030"},
        {u"h'h'm", u"14h5"},
        {u"dd 'de' mmmm \"de\" yyyy", u"07 de Março de 2024"},
        {u"ddd, dddd mmm", u"Qui, Quinta-feira Mar"},
        {u"DD/MM/YYYY", u"07/03/2024"},
        {u"", u"07/03/2024 14:05:09"},
        {u"'open", u"open"},
        {u"'", u""},
    };
    for (const auto& [pattern, text] : cases) EXPECT_EQ(FormatDateTime(pattern, kMoment), text);
    EXPECT_EQ(DateTimeToStr(DateOf(kMoment)), u"07/03/2024"_s);
}

TEST(DateText, ReadsStrictly) {
    const std::pair<QStringView, std::optional<TDateTime>> cases[] = {
        {u" 7/3/2024 ", EncodeDate(2024, 3, 7)},
        {u"29/02/2024", EncodeDate(2024, 2, 29)},
        {u"31/02/2024", {}},
        {u"07-03-2024", {}},
        {u"07/03", {}},
        {u"", {}},
        {u"07/03/2024/1", {}},
        {u"007/03/2024", {}},
        {u"a/3/2024", {}},
        {u"0/3/2024", {}},
        {u"7/13/2024", {}},
        {u"7/3/0000", {}},
        {u"-7/3/2024", {}},
    };
    for (const auto& [text, date] : cases) {
        SCOPED_TRACE(qPrintable(text.toString()));
        TDateTime value(1);
        EXPECT_EQ(TryStrToDate(text, value), date.has_value());
        EXPECT_EQ(value, date.value_or(TDateTime(1)));
    }
    EXPECT_EQ(ComplaintOf([] { StrToDate(u"31/02/2024"); }), u"'31/02/2024' não é uma data válida."_s);
    EXPECT_EQ(ComplaintOf([] { StrToTime(u"24:00"); }), u"'24:00' não é uma hora válida."_s);
    EXPECT_EQ(ComplaintOf([] { StrToDateTime(u"x"); }), u"'x' não é uma data e hora válida."_s);
}

TEST(DateText, TwoDigitYearsFallInTheWindow) {
    const TClock before = SetClock([] { return kMoment; });
    const auto restore = qScopeGuard([&] { SetClock(before); });
    EXPECT_EQ(StrToDate(u"1/1/74"), EncodeDate(1974, 1, 1));
    EXPECT_EQ(StrToDate(u"1/1/73"), EncodeDate(2073, 1, 1));
    EXPECT_EQ(StrToDate(u"1/1/0"), EncodeDate(2000, 1, 1));
}

TEST(DateText, Times) {
    EXPECT_EQ(StrToTime(u"14:05"), EncodeTime(14, 5, 0));
    EXPECT_EQ(StrToTime(u"1:2:3,5"), EncodeTime(1, 2, 3, 500));
    EXPECT_EQ(DecodeTime(StrToDateTime(u"07/03/2024  14:05:09")), (TTimeParts{14, 5, 9, 0}));
    TDateTime value;
    for (const QStringView bad : {u"14", u"14:60", u"1:2:3:4", u"1:2:3,4,5", u"1:2:", u"::"}) {
        EXPECT_FALSE(TryStrToTime(bad, value)) << qPrintable(bad.toString());
    }
}

TEST(DateText, ObeysTheSettings) {
    const TFormatSettings before = FormatSettings;
    const auto restore = qScopeGuard([&] { FormatSettings = before; });
    FormatSettings.ShortDateFormat = u"MM/dd/yyyy"_s;
    FormatSettings.DateSeparator = u'-';
    FormatSettings.DecimalSeparator = u'.';
    FormatSettings.ThousandSeparator = u' ';
    EXPECT_EQ(DateToStr(StrToDate(u"3-7-2024")), u"03-07-2024"_s);
    EXPECT_EQ(FormatFloat(u"#,##0.00", StrToFloat(u"1234.5")), u"1 234.50"_s);
}
