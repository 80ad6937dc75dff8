#include "utils/funcoes/Dinheiro.h"

#include <gtest/gtest.h>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

#include "platform/rtl/Exceptions.h"

TEST(Dinheiro, RoundsHalvesAwayFromZeroWithoutBinaryNoise) {
    const struct {
        double Value;
        int Decimals;
        double Expected;
    } cases[] = {{2.675, 2, 2.68},
                 {-2.675, 2, -2.68},
                 {1.005, 2, 1.01},
                 {0.125, 2, 0.13},
                 {2.5, 0, 3},
                 {-2.5, 0, -3},
                 {2.4999, 0, 2},
                 {1.2345675, 6, 1.234568},
                 {0.1, 10, 0.1},
                 {0, 2, 0},
                 {1250, -2, 1300},
                 {-1249, -2, -1200},
                 {49, -2, 0},
                 {1e15, 2, 1e15},
                 // Less than the fifteenth digit is noise, more is value.
                 {0.4999999999999999, 0, 1},
                 {0.4999999999, 0, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.Value << " to " << c.Decimals);
        EXPECT_EQ(ArredondaDouble(c.Value, c.Decimals), c.Expected);
    }
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ArredondaDouble(-infinity, 2), -infinity);
}

namespace {

Currency Money(long double value) {
    return Currency::FromDouble(value);
}

// The steps one by one: scale, text of 15 digits, whole and fraction.
long double Literal(long double value, int decimals, bool round) {
    const long double scale = std::pow(10.0L, std::abs(decimals));
    const long double scaled = decimals < 0 ? value / scale : value * scale;
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, scaled, std::chars_format::general, 15);
    long double read = 0;
    std::from_chars(text, end.ptr, read);
    long double whole = std::trunc(read);
    const long double fraction = read - whole;
    if (round && fraction >= 0.5L) whole += 1;
    if (round && fraction <= -0.5L) whole -= 1;
    return decimals < 0 ? whole * scale : whole / scale;
}

TEST(Dinheiro, EqualsTheStepsBitForBit) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 300'000; ++i) {
        const int decimals = int(random() % 9) - 2;
        const double ties = double(int64_t(random() % 2'000'001) - 1'000'000) / 2000;
        const double wide = std::ldexp(double(int64_t(random())), int(random() % 80) - 70);
        for (const double value : {ties, wide, std::nextafter(ties, 1e9)}) {
            ASSERT_EQ(ArredondaDouble(value, decimals), double(Literal(value, decimals, true)))
                << value << " " << decimals;
            ASSERT_EQ(TruncaDouble(value, decimals), double(Literal(value, decimals, false)))
                << value << " " << decimals;
        }
        const Currency money = Currency::FromRaw(int64_t(random()) >> (random() % 60 + 1));
        ASSERT_EQ(Arredonda(money, decimals), Money(Literal(money.ToExtended(), decimals, true)))
            << money.Raw << " " << decimals;
        ASSERT_EQ(Trunca(money, decimals), Money(Literal(money.ToExtended(), decimals, false)))
            << money.Raw << " " << decimals;
    }
}

// Beside the examples of the manual.
TEST(Dinheiro, KnowsItsLimits) {
    EXPECT_EQ(Arredonda(Money(1250), -2), Money(1300));
    EXPECT_EQ(Arredonda(Money(99'000'000'000), -11), Money(100'000'000'000));
    EXPECT_EQ(Arredonda(Money(99'000'000'000), -15), Money(0));
    EXPECT_EQ(Arredonda(Money(1.2345L), 6), Money(1.2345L));
    EXPECT_FALSE(IsDecimal(3));
    EXPECT_EQ(CalcPrecoVenda(Money(60), Money(50), Money(30), Money(20)), Money(0));
    EXPECT_EQ(CalcLucroReal(Money(60), Money(20), Money(10), Money(0)), Money(0));
    EXPECT_EQ(CalcParcelas(Money(0), Money(1000), Money(4)), Money(250));
    EXPECT_EQ(CalcParcelas(Money(0), Money(1000), Money(0)), Money(1000));
    EXPECT_EQ(CalcParcelas(Money(0.004L), Money(1000), Money(4)), Money(250));
    EXPECT_THROW(CalcValorBaseJuros(Money(1), Money(-100)), EZeroDivide);
}

}  // namespace
