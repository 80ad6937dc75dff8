#include "platform/data/firebird/PlainMessage.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include "platform/data/firebird/WireTime.h"
#include "platform/rtl/CodePage.h"

namespace fichario {

namespace {

template <class T>
bool Put(uint8_t* at, T value) {
    std::memcpy(at, &value, sizeof value);
    return true;
}

template <class T>
bool PutInRange(uint8_t* at, int64_t value) {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max() &&
           Put(at, static_cast<T>(value));
}

bool PutWhole(WireKind kind, int64_t value, uint8_t* at) {
    switch (kind) {
        case WireKind::Short: return PutInRange<int16_t>(at, value);
        case WireKind::Long: return PutInRange<int32_t>(at, value);
        default: return Put(at, value);
    }
}

bool PutNumber(const ColumnInfo& described, const InputValue& input, uint8_t* at) {
    const TFieldType type = input.Type;
    if (described.Scale == 0) {
        const bool whole = type == ftUnknown || type == ftSmallint || type == ftInteger || type == ftLargeint;
        return whole && input.Value().Kind() == vkInteger &&
               PutWhole(described.Kind, input.Value().ToInt64(), at);
    }
    if ((type != ftUnknown && type != ftBCD) || input.Value().Kind() != vkDecimal) return false;
    const Decimal value = input.Value().ToDecimal();
    return value.Scale == described.Scale && PutWhole(described.Kind, value.Unscaled, at);
}

bool PutMoment(const ColumnInfo& described, const InputValue& input, uint8_t* at) {
    if (input.Value().Kind() != vkDateTime || input.Type != FieldTypeOf(described)) return false;
    const TDateTime value = input.Value().ToDateTime();
    if (!IsWireDate(value)) return false;
    switch (described.Kind) {
        case WireKind::Date: return Put(at, ToWire(DateOf(value)).Days);
        case WireKind::Time: return Put(at, ToWire(TimeOf(value)).Ticks);
        default: return Put(at, ToWire(value));
    }
}

// A text that fills a CHAR only in part keeps its own length on the way: blanks would count in a comparison
// by pattern.
bool PutText(const ColumnInfo& described, const InputValue& input, uint8_t* at) {
    const bool kind = input.Type == ftUnknown || input.Type == ftString || input.Type == ftFixedChar;
    if (!kind || input.Value().Kind() != vkText || described.Encoding != TextEncoding::Windows1252)
        return false;
    const UnicodeString& text = input.Value().Text();
    if (text.size() > described.Characters) return false;
    if (described.Kind == WireKind::Varying) {
        Put(at, static_cast<uint16_t>(text.size()));
        at += sizeof(uint16_t);
    } else if (text.size() != described.Characters) {
        return false;
    }
    return PutAnsiExact(text, reinterpret_cast<char*>(at));
}

bool PutValue(const ColumnInfo& described, const InputValue& input, uint8_t* at) {
    switch (described.Kind) {
        case WireKind::Text:
        case WireKind::Varying: return PutText(described, input, at);
        case WireKind::Short:
        case WireKind::Long:
        case WireKind::Int64: return PutNumber(described, input, at);
        case WireKind::Date:
        case WireKind::Time:
        case WireKind::Timestamp: return PutMoment(described, input, at);
        default: return false;
    }
}

qsizetype LengthOf(const ColumnList& described) {
    qsizetype length = 0;
    for (const ColumnInfo& column : described)
        length = std::max<qsizetype>(length, column.NullOffset + sizeof(int16_t));
    return length;
}

}  // namespace

bool LayPlain(const ColumnList& described, const std::vector<InputValue>& values, MessageBytes& message) {
    message.resize(LengthOf(described));
    std::fill(message.begin(), message.end(), uint8_t{0});
    for (size_t i = 0; i < described.size(); ++i) {
        const bool null = values[i].Value().IsNull() || values[i].Value().IsUnassigned();
        if (null) {
            Put(message.data() + described[i].NullOffset, int16_t{-1});
        } else if (!PutValue(described[i], values[i], message.data() + described[i].Offset)) {
            return false;
        }
    }
    return true;
}

}  // namespace fichario
