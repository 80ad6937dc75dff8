#include "platform/rtl/Variant.h"

#include <cmath>
#include <limits>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Digits.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

namespace {

[[noreturn]] void RaiseCannot(const char16_t* what) {
    throw EConvertError(QStringLiteral("Cannot convert the value to %1").arg(QStringView(what)));
}

bool IsExact(const Variant& value) {
    return value.Kind() == vkBoolean || value.Kind() == vkInteger || value.Kind() == vkCurrency ||
           value.Kind() == vkDecimal;
}

bool ReadBoolean(QStringView text) {
    if (SameText(text, u"True")) return true;
    if (SameText(text, u"False")) return false;
    return StrToExtended(text) != 0;
}

bool SameValue(const Variant& a, const Variant& b) {
    if (IsExact(a) && IsExact(b)) return a.ToDecimal() == b.ToDecimal();
    return a.ToExtended() == b.ToExtended();
}

bool TextEquals(const UnicodeString& text, const Variant& other) {
    try {
        if (other.Kind() == vkBoolean) return ReadBoolean(text) == other.ToBool();
        if (other.Kind() == vkDateTime) return StrToDateTime(text) == other.ToDateTime();
        if (const auto exact = Decimal::Parse(text, FormatSettings.DecimalSeparator))
            return SameValue(*exact, other);
        return StrToExtended(text) == other.ToExtended();
    } catch (const EConvertError&) {
        return false;
    }
}

bool IsMeasure(const Variant& value) {
    return value.IsNumber() || value.Kind() == vkDateTime;
}

Decimal DecimalOf(long double value) {
    if (!std::isfinite(value)) RaiseCannot(u"a decimal");
    const fichario::TDigits digits = fichario::DigitsOf(value);
    const QByteArray fraction = digits.Fraction().left(Decimal::kMaxScale);
    const QByteArray text = (digits.Negative ? "-" : "") + digits.Whole() + '.' + fraction;
    const auto result =
        Decimal::Parse(digits.IsZero() ? QStringLiteral("0") : QString::fromLatin1(text), u'.');
    if (!result) RaiseCannot(u"a decimal");
    return *result;
}

}  // namespace

Variant Variant::Null() {
    Variant value;
    value.FValue = TNull();
    return value;
}

Variant Variant::Array(std::vector<Variant> values) {
    Variant value;
    value.FValue = std::move(values);
    return value;
}

UnicodeString Variant::ToText() && {
    return Kind() == vkText ? std::move(std::get<UnicodeString>(FValue)) : std::as_const(*this).ToText();
}

UnicodeString Variant::ToText() const& {
    switch (Kind()) {
        case vkUnassigned:
        case vkNull: return {};
        case vkBoolean: return As<bool>() ? QStringLiteral("True") : QStringLiteral("False");
        case vkInteger: return IntToStr(As<int64_t>());
        case vkFloat: return FloatToStr(As<double>());
        case vkCurrency: return CurrToStr(As<Currency>());
        case vkDecimal: return As<Decimal>().Trimmed().ToText(FormatSettings.DecimalSeparator);
        case vkDateTime: return DateTimeToStr(As<TDateTime>());
        case vkText: return As<UnicodeString>();
        case vkBytes: return FromAnsi(As<QByteArray>());
        case vkArray: break;
    }
    RaiseCannot(u"text");
}

int Variant::ToInt() const {
    const int64_t value = ToInt64();
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max()) {
        RaiseCannot(u"a 32-bit integer");
    }
    return static_cast<int>(value);
}

int64_t Variant::ToInt64() const {
    if (Kind() == vkInteger) return As<int64_t>();
    int64_t value;
    if (Kind() == vkText && TryStrToInt64(As<UnicodeString>(), value)) return value;
    constexpr long double kLimit = 9223372036854775808.0L;  // 2^63
    const long double nearest = std::nearbyint(ToExtended());
    if (!(nearest >= -kLimit && nearest < kLimit)) RaiseCannot(u"a 64-bit integer");
    return static_cast<int64_t>(nearest);
}

long double Variant::ToExtended() const {
    switch (Kind()) {
        case vkUnassigned: return 0;
        case vkBoolean: return As<bool>() ? 1 : 0;
        case vkInteger: return As<int64_t>();
        case vkFloat: return As<double>();
        case vkCurrency: return As<Currency>().ToExtended();
        case vkDecimal: return As<Decimal>().ToExtended();
        case vkDateTime: return As<TDateTime>().Value;
        case vkText: return StrToExtended(As<UnicodeString>());
        default: RaiseCannot(u"a number");
    }
}

Currency Variant::ToCurrency() const {
    if (Kind() == vkCurrency) return As<Currency>();
    if (Kind() == vkText) return StrToCurr(As<UnicodeString>());
    return IsExact(*this) ? Currency::FromDecimal(ToDecimal()) : Currency::FromDouble(ToExtended());
}

Decimal Variant::ToDecimal() const {
    switch (Kind()) {
        case vkBoolean: return {As<bool>() ? 1 : 0, 0};
        case vkInteger: return {As<int64_t>(), 0};
        case vkCurrency: return As<Currency>().ToDecimal();
        case vkDecimal: return As<Decimal>();
        case vkText:
            if (const auto exact = Decimal::Parse(As<UnicodeString>(), FormatSettings.DecimalSeparator))
                return *exact;
            [[fallthrough]];
        default: return DecimalOf(ToExtended());
    }
}

TDateTime Variant::ToDateTime() const {
    if (Kind() == vkDateTime) return As<TDateTime>();
    if (Kind() == vkText) return StrToDateTime(As<UnicodeString>());
    return TDateTime(ToDouble());
}

bool Variant::ToBool() const {
    if (Kind() == vkText) return ReadBoolean(As<UnicodeString>());
    return ToExtended() != 0;
}

QByteArray Variant::ToBytes() const {
    return Kind() == vkBytes ? As<QByteArray>() : ToAnsi(ToText());
}

const std::vector<Variant>& Variant::Elements() const {
    if (!IsArray()) RaiseCannot(u"an array");
    return As<TArray>();
}

bool operator==(const Variant& a, const Variant& b) {
    if (IsMeasure(a) && IsMeasure(b)) return SameValue(a, b);
    if (a.Kind() == vkText && IsMeasure(b)) return TextEquals(a.As<UnicodeString>(), b);
    if (b.Kind() == vkText && IsMeasure(a)) return TextEquals(b.As<UnicodeString>(), a);
    if (a.Kind() != b.Kind()) return false;
    switch (a.Kind()) {
        case vkText: return a.As<UnicodeString>() == b.As<UnicodeString>();
        case vkBytes: return a.As<QByteArray>() == b.As<QByteArray>();
        case vkArray: return a.Elements() == b.Elements();
        default: return true;
    }
}
