#include "platform/rtl/Currency.h"

#include <cmath>
#include "platform/rtl/Exceptions.h"

namespace {

[[noreturn]] void RaiseOutOfRange() {
    throw EConvertError(QStringLiteral("O valor não cabe em um campo monetário."));
}

}  // namespace

Currency Currency::FromDouble(long double value) {
    constexpr long double kLimit = 9223372036854775808.0L;  // 2^63
    const long double raw = std::nearbyint(value * kUnit);
    if (!(raw >= -kLimit && raw < kLimit)) RaiseOutOfRange();
    return FromRaw(static_cast<int64_t>(raw));
}

Currency Currency::FromDecimal(const Decimal& value) {
    if (value.Scale > kScale) return FromDouble(value.ToExtended());
    return FromRaw(value.Rescale(kScale).Unscaled);
}

Currency operator+(Currency a, Currency b) {
    int64_t raw;
    if (__builtin_add_overflow(a.Raw, b.Raw, &raw)) RaiseOutOfRange();
    return Currency::FromRaw(raw);
}

Currency operator-(Currency a, Currency b) {
    int64_t raw;
    if (__builtin_sub_overflow(a.Raw, b.Raw, &raw)) RaiseOutOfRange();
    return Currency::FromRaw(raw);
}

Currency operator-(Currency a) {
    return Currency() - a;
}
