// Numbers to text and back, masks, exact decimals, money: by tables, and what no table can say.
#include <gtest/gtest.h>
#include "platform/rtl/EditMask.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "tests/support/TextTable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using TArgs = QStringList;

Decimal D(QStringView text) {
    return Decimal::Parse(text, u'.').value();
}

// What `read` makes of the text: the value, or "no" when it refuses and leaves the variable alone.
template <class T>
QString Tried(bool (*read)(QStringView, T&), QStringView text) {
    T value = 1234;
    if (read(text, value)) return QString::number(value);
    return value == 1234 ? "no" : "no, but changed";
}

QString Edited(const TArgs& a) {
    const TEditMask mask(a[0]);
    return mask.Value(a[1]) + (mask.IsComplete(a[1]) ? " complete" : "");
}

}  // namespace

TEST(Numbers, TextAndBack) {
    CheckTextTable(RTL_TESTS "/tables/numeros.txt",
                   {{"Int", [](const TArgs& a) { return Tried<int>(TryStrToInt, a[0]); }},
                    {"StrToInt", [](const TArgs& a) { return QString::number(StrToInt(a[0])); }},
                    {"StrToInt64", [](const TArgs& a) { return QString::number(StrToInt64(a[0])); }},
                    {"StrToIntDef", [](const TArgs& a) { return QString::number(StrToIntDef(a[0], 5)); }},
                    {"IntToHex", [](const TArgs& a) { return IntToHex(a[0].toInt(), a[1].toInt()); }},
                    {"Float", [](const TArgs& a) { return Tried<double>(TryStrToFloat, a[0]); }},
                    {"StrToFloat", [](const TArgs& a) { return QString::number(StrToFloat(a[0])); }},
                    {"FloatToStr", [](const TArgs& a) { return FloatToStr(a[0].toDouble()); }},
                    {"Decimal",
                     [](const TArgs& a) {
                         const auto value = Decimal::Parse(a[0], u'.');
                         return value ? value->ToText(u',') : u"no"_s;
                     }},
                    {"Rescale", [](const TArgs& a) { return D(a[0]).Rescale(a[1].toInt()).ToText(u','); }},
                    {"StrToCurr", [](const TArgs& a) { return CurrToStr(StrToCurr(a[0])); }}});
}

TEST(Masks, OfNumbersAndTexts) {
    CheckTextTable(RTL_TESTS "/tables/mascaras.txt",
                   {{"FormatFloat", [](const TArgs& a) { return FormatFloat(a[0], a[1].toDouble()); }},
                    {"FormatDecimal", [](const TArgs& a) { return FormatDecimal(a[0], D(a[1])); }},
                    {"FormatCurr",
                     [](const TArgs& a) { return FormatCurr(a[0], Currency::FromDouble(a[1].toDouble())); }},
                    {"FormatMask", [](const TArgs& a) { return TEditMask(a[0]).FormatText(a[1]); }},
                    {"Edited", Edited}});
}

TEST(Masks, Places) {
    const TEditMask mask(u"0#>L-c");
    EXPECT_EQ(mask.Length(), 5);
    EXPECT_TRUE(mask.SavesLiterals());
    EXPECT_EQ(mask.Apply(u""), u"___-_"_s);
    EXPECT_FALSE(mask.Accept(1, u' '));
    EXPECT_EQ(mask.Accept(2, u' '), u'_');
    EXPECT_EQ(mask.Accept(2, u'-'), u'-');
    EXPECT_EQ(mask.Accept(3, u'ç'), u'Ç');
    EXPECT_FALSE(mask.Accept(4, u'-'));
    EXPECT_TRUE(mask.IsLiteral(4));
}

TEST(Numbers, ComparedAndKeptInRange) {
    EXPECT_EQ(D(u"1.50"), D(u"1.5"));
    EXPECT_LT(D(u"-0.2"), D(u"-0.1"));
    EXPECT_GT((Decimal{INT64_MAX, 0}), (Decimal{INT64_MAX, 1}));
    EXPECT_EQ((Decimal{INT64_MIN, 18}).Rescale(0).Unscaled, -9);
    EXPECT_EQ(Currency::FromDouble(0.00005L).Raw, 0);  // ties to even at the fourth place
    EXPECT_EQ(Currency::FromDouble(0.00015L).Raw, 2);
    EXPECT_THROW(Currency::FromRaw(INT64_MAX) + Currency::FromRaw(1), EConvertError);
}
