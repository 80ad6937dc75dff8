#include "platform/data/firebird/Casts.h"

#include <bit>
#include <cmath>
#include "platform/data/firebird/CharacterSets.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

// In the column's smallest unit; 0 for kinds that hold no exact numbers. For 64 bits what a double holds too.
int64_t LimitOf(WireKind kind) {
    switch (kind) {
        case WireKind::Short: return 32767;
        case WireKind::Long: return 2147483647;
        case WireKind::Int64: return 9223372036854774784;
        default: return 0;
    }
}

bool HoldsFloat(int scale, int64_t limit, double number) {
    const auto unit = static_cast<double>(PowerOfTen(scale));
    const double units = std::round(number * unit);
    return std::fabs(units) <= static_cast<double>(limit) && units / unit == number;
}

bool HoldsDecimal(int scale, int64_t limit, const Decimal& number) {
    int64_t units;
    return number.Scale <= scale &&
           !__builtin_mul_overflow(number.Unscaled, PowerOfTen(scale - number.Scale), &units) &&
           units >= -limit && units <= limit;
}

}  // namespace

UnicodeString CastOfNumber(const ColumnInfo& described, const Variant& number) {
    const int64_t limit = LimitOf(described.Kind);
    if (limit == 0) return {};
    if (number.Kind() == vkFloat) {
        const bool held = HoldsFloat(described.Scale, limit, number.ToDouble());
        return held ? UnicodeString() : u"DOUBLE PRECISION"_s;
    }
    const Decimal decimal = number.ToDecimal().Trimmed();
    if (HoldsDecimal(described.Scale, limit, decimal)) return {};
    return u"NUMERIC(18,%1)"_s.arg(decimal.Scale);
}

// In a comparison the server brings UTF-8 into the set of the other side, so that nothing of that is lost.
// Few different lengths, so that the prepared statement serves again.
UnicodeString CastOfText(const ColumnInfo& described, qsizetype characters) {
    constexpr qsizetype kMost = kLongestVarying / 4;
    if (characters > kMost) return {};
    const auto length = std::min<qsizetype>(kMost, std::bit_ceil(static_cast<size_t>(characters)));
    const bool bytes = described.CharacterSet == kNoSet || described.CharacterSet == kOctetsSet;
    return u"VARCHAR(%1) CHARACTER SET %2"_s.arg(length).arg(bytes ? u"NONE"_s : u"UTF8"_s);
}

}  // namespace fichario
