#include "utils/funcoes/Dinheiro.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "platform/rtl/Exceptions.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSignificantDigits = 15;
constexpr int64_t kSafeRaw = 1'000'000'000'000'000;  // below it a Currency has at most 15 digits
constexpr int kLargestCurrencyScale = 12;            // nothing of a safe Currency reaches half of 10^12
constexpr int kLargestScale = 38;                    // of a single-precision scale
constexpr long double kSafeScaled = 1e14L;           // below it a text of 15 digits shows every half
constexpr long double kLargestNoise = 0.051L;        // a little more than half its last digit there

constexpr std::array<long double, 11> kPowers = {1e0L, 1e1L, 1e2L, 1e3L, 1e4L, 1e5L,
                                                 1e6L, 1e7L, 1e8L, 1e9L, 1e10L};

enum TEnding { enHalfAwayFromZero, enTowardZero };

// 10 raised to 0 or more, in single precision, which is exact up to 10.
long double Scale(int decimals) {
    if (size_t(decimals) < kPowers.size()) return kPowers[size_t(decimals)];
    return static_cast<float>(std::pow(10.0L, static_cast<long double>(decimals)));
}

long double WithoutBinaryNoise(long double value) {
    char text[64];
    const auto written =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, kSignificantDigits);
    long double result = value;
    std::from_chars(text, written.ptr, result);
    return result;
}

// What one unit of the fifteenth significant digit is worth in a number from 0.1 up to kSafeScaled.
long double FifteenthDigit(int64_t whole) {
    static constexpr std::array<long double, 15> kUnits = {1e-15L, 1e-14L, 1e-13L, 1e-12L, 1e-11L,
                                                           1e-10L, 1e-9L,  1e-8L,  1e-7L,  1e-6L,
                                                           1e-5L,  1e-4L,  1e-3L,  1e-2L,  1e-1L};
    size_t digits = 0;
    for (int64_t limit = 1; whole >= limit; limit *= 10) ++digits;
    return kUnits[digits];
}

// Whether the text of 15 digits is at or above `near`, the half that is nearest to the number. Only where
// half a unit of the last digit decides, within the noise of these powers, is that text written.
bool AtOrAbove(long double near, long double magnitude, int64_t whole) {
    const long double off = magnitude - near;
    if (std::fabs(off) > kLargestNoise) return off > 0;
    const long double unit = FifteenthDigit(whole);
    if (std::fabs(off) > 0.51L * unit) return off > 0;
    return std::fabs(off) < 0.49L * unit || WithoutBinaryNoise(magnitude) >= near;
}

// A number is on or off one of the halves 0, 0.5, 1, 1.5 …; counted in halves the rest is whole numbers.
long double EndedInHalves(long double magnitude, TEnding ending) {
    const int64_t twice = std::llrint(2 * magnitude);
    const bool above = twice == 0 || AtOrAbove(static_cast<long double>(twice) / 2, magnitude, twice / 2);
    const int64_t whole = ending == enTowardZero ? twice - !above : twice + above;
    return static_cast<long double>(whole / 2);
}

long double Ended(long double magnitude, TEnding ending) {
    if (magnitude < kSafeScaled) return EndedInHalves(magnitude, ending);
    const long double read = WithoutBinaryNoise(magnitude), whole = std::trunc(read);
    return ending == enHalfAwayFromZero && read - whole >= 0.5L ? whole + 1 : whole;
}

// A negative power of ten has no exact binary form, so both directions use the positive one.
long double MagnitudeToPlaces(long double value, int decimals, TEnding ending) {
    if (decimals < 0) {
        const long double scale = std::pow(10.0L, -static_cast<long double>(decimals));
        return Ended(value / scale, ending) * scale;
    }
    const long double scale = Scale(decimals);
    return Ended(value * scale, ending) / scale;
}

long double ToPlaces(long double value, int decimals, TEnding ending) {
    return value < 0 ? -MagnitudeToPlaces(-value, decimals, ending)
                     : MagnitudeToPlaces(value, decimals, ending);
}

double DoubleToPlaces(double value, int decimals, TEnding ending) {
    if (value == 0 || !std::isfinite(value)) return value;
    if (std::abs(decimals) > kLargestScale) return decimals < 0 ? 0 : value;
    return static_cast<double>(ToPlaces(value, decimals, ending));
}

// Up to 15 digits the text changes nothing, and whole numbers give the same result.
Currency CurrencyToPlaces(Currency value, int decimals, TEnding ending) {
    const bool safe = value.Raw > -kSafeRaw && value.Raw < kSafeRaw;
    if (!safe) return Currency::FromDouble(ToPlaces(value.ToExtended(), decimals, ending));
    if (decimals >= Currency::kScale) return value;
    if (decimals < -kLargestCurrencyScale) return {};
    int64_t unit = 1;
    for (int i = decimals; i < Currency::kScale; ++i) unit *= 10;
    const int64_t whole = value.Raw / unit, rest = value.Raw % unit;
    const bool up = ending == enHalfAwayFromZero && std::abs(rest) >= unit - std::abs(rest);
    return Currency::FromRaw((whole + (up ? (rest < 0 ? -1 : 1) : 0)) * unit);
}

long double Part(Currency rate) {
    return rate.ToExtended() / 100;
}

Currency Quotient(long double dividend, long double divisor) {
    if (divisor == 0) throw EZeroDivide(u"Divisão por zero."_s);
    return Currency::FromDouble(dividend / divisor);
}

}  // namespace

Currency Arredonda(Currency value, int decimals) {
    return CurrencyToPlaces(value, decimals, enHalfAwayFromZero);
}

double ArredondaDouble(double value, int decimals) {
    return DoubleToPlaces(value, decimals, enHalfAwayFromZero);
}

Currency Trunca(Currency value, int decimals) {
    return CurrencyToPlaces(value, decimals, enTowardZero);
}

double TruncaDouble(double value, int decimals) {
    return DoubleToPlaces(value, decimals, enTowardZero);
}

Currency ArredondaOuTrunca(Currency value, int decimals, bool round) {
    return round ? Arredonda(value, decimals) : Trunca(value, decimals);
}

double ArredondaOuTruncaDouble(double value, int decimals, bool round) {
    return round ? ArredondaDouble(value, decimals) : TruncaDouble(value, decimals);
}

bool IsDecimal(double value) {
    return std::isfinite(value) && value - std::trunc(value) != 0;
}

Currency CalcJuros(Currency value, Currency rate) {
    return Currency::FromDouble(value.ToExtended() * (1 + Part(rate)));
}

Currency CalcDescAcresc(Currency value, Currency rate) {
    return CalcJuros(value, rate);
}

Currency CalcDesconto(Currency value, Currency rate) {
    return Currency::FromDouble(value.ToExtended() * (1 - Part(rate)));
}

Currency CalcValorBaseJuros(Currency value, Currency rate) {
    return Quotient(value.ToExtended(), 1 + Part(rate));
}

Currency CalcBaseDesconto(Currency value, Currency rate) {
    return Quotient(value.ToExtended(), 1 - Part(rate));
}

Currency CalcPrecoVenda(Currency cost, Currency p1, Currency p2, Currency p3) {
    const Currency sum = p1 + p2 + p3;
    if (sum.Raw == 100 * Currency::kUnit) return {};
    return Quotient(cost.ToExtended(), 1 - Part(sum));
}

Currency CalcLucroReal(Currency cost, Currency p1, Currency p2, Currency price) {
    if (price.Raw == 0) return {};
    return Currency::FromDouble(100 - p1.ToExtended() - p2.ToExtended() -
                                100 * cost.ToExtended() / price.ToExtended());
}

Currency CalcParcelas(Currency rate, Currency value, Currency count) {
    const long double n = count.Raw == 0 ? 1 : count.ToExtended();
    const long double i = std::nearbyint(rate.ToExtended() * 100) / 10000;
    if (i <= 0) return Quotient(value.ToExtended(), n);
    return Quotient(value.ToExtended() * i, 1 - std::pow(1 + i, -n));
}
