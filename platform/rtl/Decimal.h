// An exact decimal number: a 64-bit count of units of 10^-Scale. It never passes through binary floating
// point.
//
//     Decimal price{123456, 2};                       // 1234.56
//     auto typed = Decimal::Parse(u"1234,560", u','); // 1234.560, equal to price
#pragma once
#include <compare>
#include <cstdint>
#include <optional>
#include <QStringView>
#include "platform/rtl/Types.h"

struct Decimal {
    static constexpr int kMaxScale = 18;

    int64_t Unscaled = 0;
    int Scale = 0;  // 0 to kMaxScale

    // Reads "[blanks][sign]digits[separator digits][blanks]" and keeps the scale as typed. Nothing comes back
    // for any other text, for more than 18 decimals and for a number beyond 64 bits.
    static std::optional<Decimal> Parse(QStringView text, WideChar decimalSeparator);

    // All Scale decimals, no thousand separators: "1234,50".
    UnicodeString ToText(WideChar decimalSeparator) const;

    // The nearest binary number.
    double ToDouble() const { return static_cast<double>(ToExtended()); }
    long double ToExtended() const;

    // The same number with another scale (0 to kMaxScale), rounded half away from zero when decimals are
    // lost. Throws EConvertError when it no longer fits.
    Decimal Rescale(int scale) const;

    // The same number without trailing zeros after the decimal point.
    Decimal Trimmed() const;
};

// By value: 1.50 equals 1.5.
std::strong_ordering operator<=>(const Decimal& a, const Decimal& b);
inline bool operator==(const Decimal& a, const Decimal& b) {
    return (a <=> b) == 0;
}

// 10 to the power of `exponent` (0 to 18).
int64_t PowerOfTen(int exponent);
