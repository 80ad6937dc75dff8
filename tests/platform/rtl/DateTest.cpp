// The calendar, dates to text and back.
#include <gtest/gtest.h>
#include <QScopeGuard>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "tests/support/TextTable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const TDateTime kMoment = EncodeDate(2024, 3, 7) + EncodeTime(14, 5, 9, 30).Value;

// What `read` makes of the text, or "no" when it refuses and leaves the variable alone.
template <class Write>
QString Tried(bool (*read)(QStringView, TDateTime&), QStringView text, Write write) {
    TDateTime value(1);
    if (read(text, value)) return write(value);
    return value == TDateTime(1) ? "no" : "no, but changed";
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

TEST(DateText, PatternsAndReading) {
    const TClock before = SetClock([] { return kMoment; });
    const auto restore = qScopeGuard([&] { SetClock(before); });
    const auto time = [](TDateTime value) { return FormatDateTime(u"hh:nn:ss.zzz", value); };
    CheckTextTable(RTL_TESTS "/tables/datas.txt",
                   {{"Format", [](const QStringList& a) { return FormatDateTime(a[0], kMoment); }},
                    {"Date", [](const QStringList& a) { return Tried(TryStrToDate, a[0], DateToStr); }},
                    {"Time", [&](const QStringList& a) { return Tried(TryStrToTime, a[0], time); }},
                    {"DateTime", [](const QStringList& a) { return DateTimeToStr(StrToDateTime(a[0])); }},
                    {"StrToDate", [](const QStringList& a) { return DateToStr(StrToDate(a[0])); }},
                    {"StrToTime", [&](const QStringList& a) { return time(StrToTime(a[0])); }}});
    EXPECT_EQ(DateTimeToStr(DateOf(kMoment)), u"07/03/2024"_s);
}

TEST(DateText, ObeysTheSettings) {
    const TFormatSettings before = FormatSettings;
    const auto restore = qScopeGuard([&] { FormatSettings = before; });
    FormatSettings.ShortDateFormat = u"MM/dd/yyyy"_s;
    FormatSettings.DateSeparator = u'-';
    FormatSettings.DecimalSeparator = u'.';
    FormatSettings.ThousandSeparator = u' ';
    EXPECT_EQ(DateToStr(StrToDate(u"3-7-2024")), u"03-07-2024"_s);
    EXPECT_EQ(DecodeDate(StrToDate(u"3-17")).Day, 17);
    EXPECT_EQ(FormatFloat(u"#,##0.00", StrToFloat(u"1234.5")), u"1 234.50"_s);
}
