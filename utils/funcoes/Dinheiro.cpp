#include "utils/funcoes/Dinheiro.h"

#include <charconv>
#include <cmath>
#include <limits>

static_assert(std::numeric_limits<long double>::digits >= 64,
              "money arithmetic needs the 80-bit long double");

namespace {

constexpr int kSignificantDigits = 15;

long double WithoutBinaryNoise(long double value) {
    char text[64];
    const auto written =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, kSignificantDigits);
    long double result = value;
    std::from_chars(text, written.ptr, result);
    return result;
}

long double HalfAwayFromZero(long double value) {
    const long double whole = std::trunc(value);
    const long double fraction = value - whole;
    if (fraction >= 0.5L) return whole + 1;
    if (fraction <= -0.5L) return whole - 1;
    return whole;
}

}  // namespace

double ArredondaDouble(double value, int decimals) {
    if (!std::isfinite(value)) return value;
    // A negative power of ten has no exact binary form, so both directions use the positive one.
    const long double scale = std::pow(10.0L, static_cast<long double>(std::abs(decimals)));
    const long double scaled = decimals < 0 ? value / scale : value * scale;
    const long double rounded = HalfAwayFromZero(WithoutBinaryNoise(scaled));
    return static_cast<double>(decimals < 0 ? rounded * scale : rounded / scale);
}
