// A number as its decimal digits, the form in which it is rounded and laid out.
//
//     TDigits digits = DigitsOf(-12.345L);     // negative, "12345", Point 2
//     RoundDigits(digits, 2);                  // "1235": half away from zero
#pragma once
#include <QByteArray>
#include "platform/rtl/Decimal.h"

namespace fichario {

struct TDigits {
    bool Negative = false;
    QByteArray Digits;  // without zeros at either end; empty for zero
    int Point = 0;      // how many digits stand before the decimal point; negative for zeros right behind it

    bool IsZero() const { return Digits.isEmpty(); }

    // The digits before the point, none for a number below 1, and those behind it.
    QByteArray Whole() const;
    QByteArray Fraction() const;
};

// The 15 significant digits of a finite value.
TDigits DigitsOf(long double value);

// All digits of a decimal.
TDigits DigitsOf(const Decimal& value);

// Rounds to that many decimals (0 or more), half away from zero. What becomes zero is no longer negative.
void RoundDigits(TDigits& digits, int decimals);

}  // namespace fichario
