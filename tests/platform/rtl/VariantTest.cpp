#include <gtest/gtest.h>
#include <climits>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Variant.h"

using namespace Qt::Literals::StringLiterals;

TEST(Variant, Equality) {
    const TDateTime day = EncodeDate(2024, 3, 7);
    const Variant unassigned, null = Variant::Null();
    const struct {
        Variant A, B;
        bool Equal;
    } cases[] = {
        {1, 1.0, true},
        {1, Currency::FromRaw(10000), true},
        {Decimal{150, 2}, 1.5, true},
        {true, 1, true},
        {INT64_MAX, Decimal{INT64_MAX, 0}, true},
        {INT64_MAX, static_cast<double>(INT64_MAX), false},
        {Decimal{1, 1}, Currency::FromRaw(1000), true},
        {day, day.Value, true},
        {u"a"_s, u"a"_s, true},
        {u"a"_s, u"A"_s, false},
        {u"1,50"_s, 1.5, true},
        {u"1.50"_s, 1.5, false},
        {u"42"_s, 42, true},
        {u"x"_s, 0, false},
        {u"0,1"_s, Decimal{1, 1}, true},
        {u"9223372036854775807"_s, INT64_MAX, true},
        {u"07/03/2024"_s, day, true},
        {u"x"_s, day, false},
        {u"true"_s, true, true},
        {u"sim"_s, true, false},
        {null, null, true},
        {null, unassigned, false},
        {null, 0, false},
        {null, u""_s, false},
        {unassigned, 0, false},
        {unassigned, unassigned, true},
        {"ab"_ba, "ab"_ba, true},
        {"ab"_ba, u"ab"_s, false},
        {Variant::Array({1, u"a"_s}), Variant::Array({1.0, u"a"_s}), true},
        {Variant::Array({1}), 1, false},
        {Variant::Array({1}), Variant::Array({1, 2}), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        EXPECT_EQ(c.A == c.B, c.Equal);
        EXPECT_EQ(c.B == c.A, c.Equal);
    }
}

TEST(Variant, Texts) {
    EXPECT_EQ(Variant(1.5).ToText(), u"1,5"_s);
    EXPECT_EQ(Variant(Decimal{1500, 2}).ToText(), u"15"_s);
    EXPECT_EQ(Variant(EncodeDate(2024, 3, 7)).ToText(), u"07/03/2024"_s);
    EXPECT_EQ(Variant(true).ToText(), u"True"_s);
    EXPECT_EQ(Variant::Null().ToText(), u""_s);
    EXPECT_EQ(Variant(u"ç"_s).ToBytes(), "\xE7"_ba);
    EXPECT_THROW(Variant::Array({1}).ToText(), EConvertError);
}

TEST(Variant, Numbers) {
    EXPECT_EQ(Variant(2.5).ToInt(), 2);
    EXPECT_EQ(Variant(u"3,5"_s).ToInt(), 4);
    EXPECT_EQ(Variant(u"$FF"_s).ToInt(), 255);
    EXPECT_EQ(Variant(INT64_MAX).ToInt64(), INT64_MAX);
    EXPECT_EQ(Variant(0.1).ToDecimal(), (Decimal{1, 1}));
    EXPECT_EQ(Variant(-1234.5).ToDecimal(), (Decimal{-12345, 1}));
    EXPECT_EQ(Variant(u"0,1"_s).ToCurrency().Raw, 1000);
    EXPECT_EQ(Variant(Decimal{12345, 2}).ToCurrency().Raw, 1234500);
    EXPECT_EQ(Variant(u"07/03/2024"_s).ToDateTime(), EncodeDate(2024, 3, 7));
    EXPECT_TRUE(Variant(u"-1"_s).ToBool());
    EXPECT_EQ(Variant().ToInt(), 0);
}

TEST(Variant, WhatCannotBeConverted) {
    EXPECT_THROW(Variant::Null().ToInt(), EConvertError);
    EXPECT_THROW(Variant(INT64_MAX).ToInt(), EConvertError);
    EXPECT_THROW(Variant(1e19).ToInt64(), EConvertError);
    EXPECT_THROW(Variant(1e30).ToDecimal(), EConvertError);
    EXPECT_THROW(Variant(u"x"_s).ToBool(), EConvertError);
    EXPECT_THROW(Variant("ab"_ba).ToDouble(), EConvertError);
    EXPECT_THROW(Variant(1).Elements(), EConvertError);
}
