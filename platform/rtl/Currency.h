// Money: a signed 64-bit count of 1/10000 units, so four decimals and about 922 trillion either way.
//
//     Currency total = Currency::FromDouble(10.5L) + Currency::FromRaw(2500);   // 10.75
//
// Calculations go through the 80-bit long double and are rounded once, to the nearest unit, ties to even.
#pragma once
#include <compare>
#include <cstdint>
#include <limits>
#include "platform/rtl/Decimal.h"

static_assert(std::numeric_limits<long double>::digits >= 64,
              "money arithmetic needs the 80-bit long double");

struct Currency {
    static constexpr int kScale = 4;
    static constexpr int64_t kUnit = 10000;

    int64_t Raw = 0;  // 1/10000 units

    static constexpr Currency FromRaw(int64_t raw) { return Currency{raw}; }

    // The nearest 1/10000, ties to even. Throws EConvertError for a value out of range or not a number.
    static Currency FromDouble(long double value);

    // Rounded as FromDouble; exact when the decimal has up to four places. Throws EConvertError out of range.
    static Currency FromDecimal(const Decimal& value);

    double ToDouble() const { return static_cast<double>(ToExtended()); }
    long double ToExtended() const { return static_cast<long double>(Raw) / kUnit; }
    Decimal ToDecimal() const { return {Raw, kScale}; }

    auto operator<=>(const Currency&) const = default;
};

// Sums and differences throw EConvertError when they do not fit.
Currency operator+(Currency a, Currency b);
Currency operator-(Currency a, Currency b);
Currency operator-(Currency a);
