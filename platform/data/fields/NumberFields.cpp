#include "platform/data/fields/NumberFields.h"

#include <cmath>
#include <limits>
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kWholeNumber = u"um número inteiro válido"_s;
const UnicodeString kNumber = u"um valor numérico válido"_s;

// The text without thousand separators when they stand where they belong (1.234,5), unchanged when not: 1.5
// is no number here, and must not become fifteen.
UnicodeString WithoutThousands(const UnicodeString& typed) {
    const UnicodeString text = typed.trimmed();
    const QChar separator = FormatSettings.ThousandSeparator;
    qsizetype end = text.indexOf(QChar(FormatSettings.DecimalSeparator));
    if (end < 0) end = text.size();
    qsizetype last = text.lastIndexOf(separator);
    if (last < 0 || last > end) return text;
    for (qsizetype next = end; last >= 0;
         next = last, last = last > 0 ? text.lastIndexOf(separator, last - 1) : -1) {
        if (next - last != 4 || last == 0 || !text[last - 1].isDigit()) return text;
    }
    UnicodeString plain = text;
    return plain.remove(separator);
}

constexpr double kRounding = 1 + 1e-14;  // Largest() has 15 digits

}  // namespace

void TNumericField::SetDisplayFormat(const UnicodeString& mask) {
    FDisplayFormat = mask;
    PropertyChanged();
}

void TNumericField::SetEditFormat(const UnicodeString& mask) {
    FEditFormat = mask;
    PropertyChanged();
}

UnicodeString TNumericField::FormatValue(const Variant& value, bool display) const {
    const UnicodeString& mask = display ? FDisplayFormat : FEditFormat;
    return mask.isEmpty() ? value.ToText() : ByMask(mask, value);
}

UnicodeString TNumericField::ByMask(const UnicodeString& mask, const Variant& value) const {
    return FormatFloat(mask, value.ToExtended());
}

// ---- whole numbers ----

// Beyond 64 bits there is no whole number.
int64_t TNumericField::WholeOf(const Variant& value) const {
    try {
        return value.ToInt64();
    } catch (const EConvertError&) {
        RefuseText(value.ToText(), kWholeNumber);
    }
}

Variant TIntegerField::Convert(const Variant& value) const {
    const int64_t number = WholeOf(value);
    const bool small = DataType() == ftSmallint;
    const int64_t limit = small ? std::numeric_limits<int16_t>::max() : std::numeric_limits<int32_t>::max();
    if (number > limit || number < -limit - 1) RefuseText(value.ToText(), kWholeNumber);
    return number;
}

Variant TIntegerField::ConvertText(const UnicodeString& text) const {
    if (text.trimmed().isEmpty()) return Variant::Null();
    int64_t number;
    if (!TryStrToInt64(WithoutThousands(text), number)) RefuseText(text, kWholeNumber);
    return Convert(number);
}

Variant TLargeintField::Convert(const Variant& value) const {
    return WholeOf(value);
}

Variant TLargeintField::ConvertText(const UnicodeString& text) const {
    if (text.trimmed().isEmpty()) return Variant::Null();
    int64_t number;
    if (!TryStrToInt64(WithoutThousands(text), number)) RefuseText(text, kWholeNumber);
    return number;
}

// ---- numbers with decimals ----

// Whether the column can hold it.
bool TNumericField::Fits(double number) const {
    return std::isfinite(number) && (Largest() <= 0 || std::fabs(number) <= Largest() * kRounding);
}

// Without a division.
bool TBCDField::FitsUnscaled(const Decimal& number) const {
    return Largest() <= 0 || std::fabs(static_cast<double>(number.Unscaled)) <=
                                 Largest() * kRounding * static_cast<double>(PowerOfTen(number.Scale));
}

Variant TFloatField::Convert(const Variant& value) const {
    const double number = value.ToDouble();
    if (!Fits(number)) RefuseText(value.ToText(), kNumber);
    return number;
}

Variant TFloatField::ConvertText(const UnicodeString& text) const {
    if (text.trimmed().isEmpty()) return Variant::Null();
    double number;
    if (!TryStrToFloat(WithoutThousands(text), number) || !Fits(number)) RefuseText(text, kNumber);
    return number;
}

Variant TBCDField::Convert(const Variant& value) const {
    std::optional<Decimal> number;
    try {
        number = value.ToDecimal().Rescale(Size());
    } catch (const EConvertError&) {
    }
    if (!number || !FitsUnscaled(*number)) RefuseText(value.ToText(), kNumber);
    return *number;
}

Variant TBCDField::ConvertText(const UnicodeString& text) const {
    if (text.trimmed().isEmpty()) return Variant::Null();
    const auto number = Decimal::Parse(WithoutThousands(text), FormatSettings.DecimalSeparator);
    if (!number) RefuseText(text, kNumber);
    return Convert(*number);
}

UnicodeString TBCDField::ByMask(const UnicodeString& mask, const Variant& value) const {
    return FormatDecimal(mask, value.ToDecimal());
}
