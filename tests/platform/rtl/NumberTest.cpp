// Numbers to text and back, masks, exact decimals, money.
#include <gtest/gtest.h>
#include <climits>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename F>
UnicodeString ComplaintOf(F&& call) {
    try {
        call();
    } catch (const EConvertError& e) {
        return e.Message;
    }
    return u"none"_s;
}

Decimal D(QStringView text) {
    return Decimal::Parse(text, u'.').value();
}

}  // namespace

TEST(NumberText, Integers) {
    const struct {
        QStringView Text;
        std::optional<int> Value;
    } cases[] = {
        {u"42", 42},
        {u" -7", -7},
        {u"+7", 7},
        {u"2147483647", INT_MAX},
        {u"-2147483648", INT_MIN},
        {u"2147483648", {}},
        {u"-2147483649", {}},
        {u"$FF", 255},
        {u"0x1a", 26},
        {u"$FFFFFFFF", -1},
        {u"$80414243", static_cast<int>(0x80414243u)},
        {u"-$10", -16},
        {u"$1FFFFFFFF", {}},
        {u"$", {}},
        {u"$ZZ", {}},
        {u"", {}},
        {u"-", {}},
        {u"1,5", {}},
        {u"1.000", {}},
        {u"٣", {}},
        {u"12 ", {}},
        {u"99999999999999999999", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.Text.toString()));
        int value = 1234;
        EXPECT_EQ(TryStrToInt(c.Text, value), c.Value.has_value());
        EXPECT_EQ(value, c.Value.value_or(1234));
    }
    EXPECT_EQ(ComplaintOf([] { StrToInt(u"abc"); }), u"'abc' não é um número inteiro válido."_s);
    EXPECT_EQ(StrToInt64(u"-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(StrToInt64(u"$FFFFFFFF"), 0xFFFFFFFFll);
    EXPECT_EQ(StrToIntDef(u"x", 5), 5);
    EXPECT_EQ(IntToHex(11, 4), u"000B"_s);
    EXPECT_EQ(IntToHex(-1, 2), u"FFFFFFFF"_s);
}

TEST(NumberText, Floats) {
    const struct {
        QStringView Text;
        std::optional<double> Value;
    } cases[] = {
        {u" 1,5 ", 1.5}, {u"-,5", -0.5}, {u"5,", 5},     {u"+1E3", 1000}, {u"1e-2", 0.01}, {u"1.234,5", {}},
        {u"1.5", {}},    {u"", {}},      {u",", {}},     {u"+-1", {}},    {u"1,2,3", {}},  {u"1 2", {}},
        {u"inf", {}},    {u"nan", {}},   {u"1e400", {}}, {u"0x10", {}},   {u"1e", {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.Text.toString()));
        double value = 99;
        EXPECT_EQ(TryStrToFloat(c.Text, value), c.Value.has_value());
        EXPECT_EQ(value, c.Value.value_or(99));
    }
    EXPECT_EQ(ComplaintOf([] { StrToFloat(u"x"); }), u"'x' não é um número válido."_s);
}

TEST(NumberText, ShortestOfFifteenDigits) {
    const std::pair<long double, QStringView> cases[] = {
        {0, u"0"},
        {-0.0, u"0"},
        {0.1 + 0.2, u"0,3"},
        {2.675L * 100, u"267,5"},
        {-1234.5, u"-1234,5"},
        {1e14, u"100000000000000"},
        {1e15, u"1E15"},
        {1.5e20, u"1,5E20"},
        {0.00001, u"0,00001"},
        {0.000001, u"1E-6"},
        {1.0 / 3, u"0,333333333333333"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(FloatToStr(value), text);
}

TEST(NumberMask, Layouts) {
    const struct {
        QStringView Mask;
        double Value;
        QStringView Text;
    } cases[] = {
        {u"#,##0.00", 1234567.891, u"1.234.567,89"},
        {u"#,##0.00", 0, u"0,00"},
        {u"#,##0.00", -0.001, u"0,00"},
        {u"#,##0.00", 999.995, u"1.000,00"},
        {u"0.00", 2.675, u"2,68"},
        {u"0.00", -2.675, u"-2,68"},
        {u"0.000", 1.5, u"1,500"},
        {u"#,##0.##", 1234.5, u"1.234,5"},
        {u"#,##0.##", 1234, u"1.234"},
        {u"#,##0.##", 0.004, u"0"},
        {u"#.##", 0, u""},
        {u".00", 12.3, u"12,30"},
        {u"00000", 42, u"00042"},
        {u"R$ #,##0.00", -5, u"-R$ 5,00"},
        {u"0.0'%'", 12.34, u"12,3%"},
        {u"000-00", 12345, u"123-45"},
        {u"#,##0.00;(#,##0.00)", -1234.5, u"(1.234,50)"},
        {u"#,##0.00;(#,##0.00);zero", 0.001, u"zero"},
        {u"0.0;;-", -1.5, u"-1,5"},
        {u"", -1234.5, u"-1234,5"},
        {u"'a;b'0", 1, u"a;b1"},
        {u"0", 1e20, u"100000000000000000000"},
        {u"#,##0", 999999.5, u"1.000.000"},
        {u"0.00", 0.009, u"0,01"},
        {u"0.00", 0.00001, u"0,00"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(c.Mask.toString() + u' ' + QString::number(c.Value)));
        EXPECT_EQ(FormatFloat(c.Mask, c.Value), c.Text);
    }
}

TEST(NumberMask, ExactDecimals) {
    EXPECT_EQ(FormatDecimal(u"#,##0.00", D(u"9007199254740993.125")), u"9.007.199.254.740.993,13"_s);
    EXPECT_EQ(FormatDecimal(u"0.00", {INT64_MIN, 2}), u"-92233720368547758,08"_s);
    EXPECT_EQ(FormatDecimal(u"", D(u"1.500")), u"1,5"_s);
    EXPECT_EQ(FormatCurr(u"0.00", Currency::FromRaw(-50)), u"-0,01"_s);
}

TEST(Decimal, ParsesExactly) {
    EXPECT_EQ(D(u" -1.50 ").ToText(u','), u"-1,50"_s);
    EXPECT_EQ(D(u"-9223372036854775808").Unscaled, INT64_MIN);
    EXPECT_EQ(D(u"-.005").ToText(u'.'), u"-0.005"_s);
    for (const QStringView bad :
         {u"", u".", u"-", u"1.2.3", u"1e5", u"9223372036854775808", u"0.0000000000000000001"}) {
        EXPECT_FALSE(Decimal::Parse(bad, u'.')) << qPrintable(bad.toString());
    }
}

TEST(Decimal, ComparesAndRounds) {
    EXPECT_EQ(D(u"1.50"), D(u"1.5"));
    EXPECT_LT(D(u"-0.2"), D(u"-0.1"));
    EXPECT_GT((Decimal{INT64_MAX, 0}), (Decimal{INT64_MAX, 1}));
    EXPECT_EQ(D(u"2.345").Rescale(2).Unscaled, 235);
    EXPECT_EQ(D(u"-2.345").Rescale(2).Unscaled, -235);
    EXPECT_EQ(D(u"2.344").Rescale(2).Unscaled, 234);
    EXPECT_EQ((Decimal{INT64_MIN, 18}).Rescale(0).Unscaled, -9);
    EXPECT_THROW((Decimal{INT64_MAX, 0}).Rescale(1), EConvertError);
}

TEST(Currency, RoundsTiesToEvenAndGuardsItsRange) {
    EXPECT_EQ(Currency::FromDouble(0.00005L).Raw, 0);
    EXPECT_EQ(Currency::FromDouble(0.00015L).Raw, 2);
    EXPECT_EQ(StrToCurr(u"922337203685477,5807").Raw, INT64_MAX);
    EXPECT_EQ(CurrToStr(StrToCurr(u"10,5000")), u"10,5"_s);
    EXPECT_THROW(StrToCurr(u"922337203685477,5808"), EConvertError);
    EXPECT_THROW(Currency::FromRaw(INT64_MAX) + Currency::FromRaw(1), EConvertError);
    EXPECT_EQ(ComplaintOf([] { StrToCurr(u"dez"); }), u"'dez' não é um número válido."_s);
}
