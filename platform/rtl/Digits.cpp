#include "platform/rtl/Digits.h"

#include <algorithm>
#include <charconv>

namespace fichario {

namespace {

constexpr int kSignificant = 15;

void Normalize(TDigits& number) {
    qsizetype zeros = 0;
    while (zeros < number.Digits.size() && number.Digits[zeros] == '0') ++zeros;
    number.Digits.remove(0, zeros);
    number.Point -= static_cast<int>(zeros);
    while (number.Digits.endsWith('0')) number.Digits.chop(1);
    if (number.IsZero()) number = TDigits();
}

}  // namespace

QByteArray TDigits::Whole() const {
    return Point <= 0 ? QByteArray() : Digits.left(Point).leftJustified(Point, '0');
}

QByteArray TDigits::Fraction() const {
    return Point >= 0 ? Digits.mid(Point) : QByteArray(-Point, '0') + Digits;
}

TDigits DigitsOf(long double value) {
    char text[64];  // "-d.dddddddddddddde-dddd"
    const auto end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, kSignificant - 1).ptr;
    const char* exponent = std::find(text, end, 'e') + 1;
    TDigits number;
    number.Negative = text[0] == '-';
    for (const char* c = text; c < exponent - 1; ++c) {
        if (*c >= '0' && *c <= '9') number.Digits += *c;
    }
    std::from_chars(exponent + (*exponent == '+'), end, number.Point);
    ++number.Point;
    Normalize(number);
    return number;
}

TDigits DigitsOf(const Decimal& value) {
    TDigits number;
    number.Digits = Decimal{value.Unscaled, 0}.ToText(u'.').toLatin1();
    number.Negative = number.Digits.startsWith('-');
    if (number.Negative) number.Digits.remove(0, 1);
    number.Point = static_cast<int>(number.Digits.size()) - value.Scale;
    Normalize(number);
    return number;
}

void RoundDigits(TDigits& number, int decimals) {
    const int kept = number.Point + decimals;
    if (kept >= number.Digits.size()) return;
    const bool up = kept >= 0 && number.Digits[kept] >= '5';
    number.Digits.truncate(std::max(kept, 0));
    if (up) {
        number.Digits.prepend('0');
        ++number.Point;
        qsizetype last = number.Digits.size() - 1;
        while (number.Digits[last] == '9') number.Digits[last--] = '0';
        ++number.Digits[last];
    }
    Normalize(number);
}

}  // namespace fichario
