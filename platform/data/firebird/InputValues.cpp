#include "platform/data/firebird/InputValues.h"

#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

bool IsTime(WireKind kind) {
    return kind == WireKind::Date || kind == WireKind::Time || kind == WireKind::Timestamp;
}

bool IsWhole(WireKind kind) {
    return kind == WireKind::Short || kind == WireKind::Long || kind == WireKind::Int64;
}

// A number typed as text keeps all its decimals.
Variant NumberOfText(const UnicodeString& text) {
    if (const auto decimal = Decimal::Parse(text, FormatSettings.DecimalSeparator)) return *decimal;
    return StrToFloat(text);
}

Variant TimeOfText(const UnicodeString& text) {
    TDateTime time;
    return TryStrToTime(text, time) ? Variant(time) : Variant(StrToDateTime(text));
}

Variant TextAs(WireKind kind, const UnicodeString& text) {
    if (IsWhole(kind) || kind == WireKind::Float || kind == WireKind::Double) return NumberOfText(text);
    if (kind == WireKind::Time) return TimeOfText(text);
    if (IsTime(kind)) return StrToDateTime(text);
    if (kind == WireKind::Boolean) return Variant(text).ToBool();
    return text;
}

Variant Typed(TFieldType type, const Variant& value) {
    switch (type) {
        case ftString:
        case ftFixedChar:
        case ftMemo: return value.ToText();
        case ftSmallint:
        case ftInteger:
        case ftLargeint: return value.ToInt64();
        case ftFloat: return value.ToDouble();
        case ftBCD: return value.ToDecimal();
        case ftDate: return DateOf(value.ToDateTime());
        case ftTime:
            return TimeOf(value.Kind() == vkText ? TimeOfText(value.ToText()).ToDateTime()
                                                 : value.ToDateTime());
        case ftTimeStamp: return value.ToDateTime();
        case ftBoolean: return value.ToBool();
        case ftBlob: return value.ToBytes();
        default: return value;
    }
}

}  // namespace

Variant MeantValue(const ColumnInfo& described, const InputValue& input) {
    if (input.Value().IsNull() || input.Value().IsUnassigned()) return Variant::Null();
    const Variant value = Typed(input.Type, input.Value());
    if (value.Kind() == vkText && input.Type == ftUnknown) return TextAs(described.Kind, value.ToText());
    if (value.IsNumber() && described.Kind == WireKind::Boolean) return value.ToBool();
    return value;
}

WireKind MeantTimeKind(const ColumnInfo& described, const InputValue& input) {
    switch (input.Type) {
        case ftDate: return WireKind::Date;
        case ftTime: return WireKind::Time;
        case ftTimeStamp: return WireKind::Timestamp;
        default: return IsTime(described.Kind) ? described.Kind : WireKind::Timestamp;
    }
}

}  // namespace fichario
