#include "platform/rtl/Decimal.h"

#include <array>
#include <cstdlib>
#include <utility>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Trim.h"

namespace {

// Value * 10 + digit, or false when it leaves 64 bits.
bool AppendDigit(int64_t& value, int digit, bool negative) {
    return !__builtin_mul_overflow(value, 10, &value) &&
           !(negative ? __builtin_sub_overflow(value, digit, &value)
                      : __builtin_add_overflow(value, digit, &value));
}

bool TakeSign(QStringView& text) {
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) text = text.sliced(1);
    return negative;
}

[[noreturn]] void RaiseOverflow() {
    throw EConvertError(QStringLiteral("O número tem dígitos demais."));
}

}  // namespace

int64_t PowerOfTen(int exponent) {
    static const auto powers = [] {
        std::array<int64_t, Decimal::kMaxScale + 1> table{1};
        for (size_t i = 1; i < table.size(); ++i) table[i] = table[i - 1] * 10;
        return table;
    }();
    return powers.at(exponent);
}

std::optional<Decimal> Decimal::Parse(QStringView text, WideChar decimalSeparator) {
    text = Trim(text);
    const bool negative = TakeSign(text);
    Decimal result;
    bool separated = false, anyDigit = false;
    for (const QChar c : text) {
        if (c == decimalSeparator && !separated) {
            separated = true;
            continue;
        }
        if (c < u'0' || c > u'9') return std::nullopt;
        if (!AppendDigit(result.Unscaled, c.unicode() - u'0', negative)) return std::nullopt;
        anyDigit = true;
        if (separated && ++result.Scale > kMaxScale) return std::nullopt;
    }
    if (!anyDigit) return std::nullopt;
    return result;
}

UnicodeString Decimal::ToText(WideChar decimalSeparator) const {
    const uint64_t magnitude =
        Unscaled < 0 ? 0 - static_cast<uint64_t>(Unscaled) : static_cast<uint64_t>(Unscaled);
    UnicodeString text = UnicodeString::number(magnitude).rightJustified(Scale + 1, u'0');
    if (Scale > 0) text.insert(text.size() - Scale, QChar(decimalSeparator));
    return Unscaled < 0 ? u'-' + text : text;
}

long double Decimal::ToExtended() const {
    return static_cast<long double>(Unscaled) / PowerOfTen(Scale);
}

Decimal Decimal::Rescale(int scale) const {
    if (scale < 0 || scale > kMaxScale) throw EConvertError(QStringLiteral("Decimal scale out of range"));
    Decimal result{Unscaled, scale};
    if (scale >= Scale) {
        if (__builtin_mul_overflow(Unscaled, PowerOfTen(scale - Scale), &result.Unscaled)) RaiseOverflow();
        return result;
    }
    const int64_t divisor = PowerOfTen(Scale - scale);
    const int64_t rest = Unscaled % divisor;
    result.Unscaled = Unscaled / divisor;
    if (std::abs(rest) >= divisor - std::abs(rest)) result.Unscaled += Unscaled < 0 ? -1 : 1;
    return result;
}

Decimal Decimal::Trimmed() const {
    Decimal result = *this;
    while (result.Scale > 0 && result.Unscaled % 10 == 0) {
        result.Unscaled /= 10;
        --result.Scale;
    }
    return result;
}

std::strong_ordering operator<=>(const Decimal& a, const Decimal& b) {
    // Whole parts first, then fractions brought to the largest scale: neither can overflow.
    const auto split = [](const Decimal& d) {
        const int64_t unit = PowerOfTen(d.Scale);
        return std::pair(d.Unscaled / unit, d.Unscaled % unit * PowerOfTen(Decimal::kMaxScale - d.Scale));
    };
    return split(a) <=> split(b);
}
