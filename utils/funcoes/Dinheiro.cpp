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
constexpr int kLargestScale = 38;                    // of a single-precision scale
constexpr long double kSafeScaled = 1e8L;            // below it 15 digits reach far beyond the guard
constexpr long double kGuard = 1e-4L;                // nearer to a tie or a whole number the text decides

constexpr std::array<long double, 11> kPowers = {1e0L, 1e1L, 1e2L, 1e3L, 1e4L, 1e5L,
                                                 1e6L, 1e7L, 1e8L, 1e9L, 1e10L};

// What a whole and a fractional part of one sign become.
using TEnding = long double (*)(long double whole, long double fraction);

long double HalfAwayFromZero(long double whole, long double fraction) {
    return fraction >= 0.5L ? whole + 1 : fraction <= -0.5L ? whole - 1 : whole;
}

long double TowardZero(long double whole, long double) {
    return whole;
}

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

// Whether taking the noise away could carry the number over a tie or a whole number.
bool NeedsText(long double scaled, long double fraction) {
    const long double part = std::fabs(fraction);
    return !(std::fabs(scaled) < kSafeScaled) || part < kGuard || part > 1 - kGuard ||
           std::fabs(part - 0.5L) < kGuard;
}

long double Ended(long double scaled, TEnding ending) {
    long double whole = std::trunc(scaled);
    if (NeedsText(scaled, scaled - whole)) {
        scaled = WithoutBinaryNoise(scaled);
        whole = std::trunc(scaled);
    }
    return ending(whole, scaled - whole);
}

// A negative power of ten has no exact binary form, so both directions use the positive one.
long double ToPlaces(long double value, int decimals, TEnding ending) {
    if (decimals < 0) {
        const long double scale = std::pow(10.0L, -static_cast<long double>(decimals));
        return Ended(value / scale, ending) * scale;
    }
    const long double scale = Scale(decimals);
    return Ended(value * scale, ending) / scale;
}

double DoubleToPlaces(double value, int decimals, TEnding ending) {
    if (!std::isfinite(value) || std::abs(decimals) > kLargestScale)
        return decimals < 0 && std::isfinite(value) ? 0 : value;
    return static_cast<double>(ToPlaces(value, decimals, ending));
}

// Up to 15 digits the text changes nothing, and whole numbers give the same result.
Currency CurrencyToPlaces(Currency value, int decimals, TEnding ending) {
    const bool safe = value.Raw > -kSafeRaw && value.Raw < kSafeRaw;
    if (!safe) return Currency::FromDouble(ToPlaces(value.ToExtended(), decimals, ending));
    if (decimals >= Currency::kScale) return value;
    if (decimals < -kSignificantDigits) return {};
    int64_t unit = 1;
    for (int i = decimals; i < Currency::kScale; ++i) unit *= 10;
    const int64_t whole = value.Raw / unit;
    const long double fraction = static_cast<long double>(value.Raw % unit) / static_cast<long double>(unit);
    return Currency::FromRaw(static_cast<int64_t>(ending(static_cast<long double>(whole), fraction)) * unit);
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
    return CurrencyToPlaces(value, decimals, HalfAwayFromZero);
}

double ArredondaDouble(double value, int decimals) {
    return DoubleToPlaces(value, decimals, HalfAwayFromZero);
}

Currency Trunca(Currency value, int decimals) {
    return CurrencyToPlaces(value, decimals, TowardZero);
}

double TruncaDouble(double value, int decimals) {
    return DoubleToPlaces(value, decimals, TowardZero);
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
