#include "platform/data/firebird/RowLayout.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include "platform/data/Errors.h"
#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/WireTime.h"
#include "platform/rtl/CodePage.h"

namespace fichario {

namespace {

template <class T>
T Read(const uint8_t* place) {
    T value;
    std::memcpy(&value, place, sizeof value);
    return value;
}

uint8_t FixedSize(WireKind kind) {
    switch (kind) {
        case WireKind::Boolean: return 1;
        case WireKind::Short: return 2;
        case WireKind::Long:
        case WireKind::Float:
        case WireKind::Date:
        case WireKind::Time: return 4;
        case WireKind::NullTest: return 0;
        default: return 8;
    }
}

// Sizes known to the compiler become single moves.
void CopyFixed(uint8_t* to, const uint8_t* from, uint8_t size) {
    switch (size) {
        case 1: *to = *from; break;
        case 2: std::memcpy(to, from, 2); break;
        case 4: std::memcpy(to, from, 4); break;
        case 8: std::memcpy(to, from, 8); break;
        default: break;
    }
}

uint32_t WithoutTrailingBlanks(const uint8_t* text, uint32_t length) {
    while (length > 0 && text[length - 1] == ' ') --length;
    return length;
}

Variant Number(int64_t value, int scale) {
    return scale > 0 ? Variant(Decimal{value, scale}) : Variant(value);
}

Variant FixedValue(WireKind kind, int scale, const uint8_t* at) {
    switch (kind) {
        case WireKind::Short: return Number(Read<int16_t>(at), scale);
        case WireKind::Long: return Number(Read<int32_t>(at), scale);
        case WireKind::Int64: return Number(Read<int64_t>(at), scale);
        case WireKind::Float: return FromFloat(Read<float>(at));
        case WireKind::Double: return Read<double>(at);
        case WireKind::Date: return FromWire(WireStamp{Read<int32_t>(at), 0});
        case WireKind::Time: return TimeFromWire(Read<uint32_t>(at));
        case WireKind::Timestamp: return FromWire(Read<WireStamp>(at));
        case WireKind::Boolean: return *at != 0;
        case WireKind::Blob: return Read<int64_t>(at);
        default: return Variant::Null();
    }
}

template <class T>
void Write(uint8_t* place, T value) {
    std::memcpy(place, &value, sizeof value);
}

// The value as a whole number of the column's smallest unit.
int64_t UnitsOf(const Variant& value, int scale) {
    return scale > 0 ? value.ToDecimal().Rescale(scale).Unscaled : value.ToInt64();
}

void PutFixed(WireKind kind, int scale, const Variant& value, uint8_t* at) {
    switch (kind) {
        case WireKind::Short: return Write(at, static_cast<int16_t>(UnitsOf(value, scale)));
        case WireKind::Long: return Write(at, static_cast<int32_t>(UnitsOf(value, scale)));
        case WireKind::Blob:
        case WireKind::Int64: return Write(at, UnitsOf(value, scale));
        case WireKind::Float: return Write(at, static_cast<float>(value.ToDouble()));
        case WireKind::Double: return Write(at, value.ToDouble());
        case WireKind::Date: return Write(at, ToWire(value.ToDateTime()).Days);
        case WireKind::Time: return Write(at, ToWire(value.ToDateTime()).Ticks);
        case WireKind::Timestamp: return Write(at, ToWire(value.ToDateTime()));
        case WireKind::Boolean: return Write(at, static_cast<uint8_t>(value.ToBool()));
        default: return;
    }
}

}  // namespace

double FromFloat(float value) {
    char text[32];
    const char* end = std::to_chars(text, text + sizeof text, value).ptr;
    double number = value;
    std::from_chars(text, end, number);
    return number;
}

RowLayout::Place RowLayout::PlaceOf(const ColumnInfo& column) {
    Place place{};
    place.Kind = column.Kind;
    place.Type = FieldTypeOf(column);
    place.Encoding = column.Encoding;
    place.Scale = static_cast<uint8_t>(column.Scale);
    place.Offset = column.Offset;
    place.NullOffset = column.NullOffset;
    place.Length = column.Length;
    place.Padded = column.Kind == WireKind::Text && column.CharacterSet != kOctetsSet;
    place.Size = place.IsText() ? (column.Length > 255 ? 2 : 1) : FixedSize(column.Kind);
    return place;
}

RowLayout::RowLayout(const ColumnList& columns) {
    FNullBytes = static_cast<uint32_t>(columns.size()) / 8 + 1;
    FFixedEnd = FNullBytes;
    FPlaces.reserve(columns.size());
    FTexts.reserve(columns.size());
    for (const ColumnInfo& column : columns) {
        Place place = PlaceOf(column);
        if (place.IsText()) {
            place.Packed = static_cast<uint32_t>(FTexts.size());
            FTexts.push_back(static_cast<uint32_t>(FPlaces.size()));
            FMaxBytes += place.Size + place.Length;
        } else {
            place.Packed = FFixedEnd;
            FFixedEnd += place.Size;
        }
        FPlaces.push_back(place);
    }
    FMaxBytes += FFixedEnd;
}

uint8_t* RowLayout::PutText(const Place& place, const uint8_t* text, uint32_t length, uint8_t* out) {
    *out++ = static_cast<uint8_t>(length);
    if (place.Size == 2) *out++ = static_cast<uint8_t>(length >> 8);
    std::memmove(out, text, length);
    return out + length;
}

uint8_t* RowLayout::PackText(const Place& place, const uint8_t* message, bool null, uint8_t* out) {
    const uint8_t* text = message + place.Offset;
    if (null) return PutText(place, text, 0, out);
    if (place.Kind == WireKind::Text)
        return PutText(place, text, place.Padded ? WithoutTrailingBlanks(text, place.Length) : place.Length,
                       out);
    const uint32_t length = std::min<uint32_t>(Read<uint16_t>(text), place.Length);
    return PutText(place, text + sizeof(uint16_t), length, out);
}

uint8_t* RowLayout::Pack(const uint8_t* message, uint8_t* row) const {
    std::memset(row, 0, FNullBytes);
    uint8_t* texts = row + FFixedEnd;
    unsigned column = 0;
    for (const Place& place : FPlaces) {
        const bool null = Read<int16_t>(message + place.NullOffset) != 0;
        row[column >> 3] |= static_cast<uint8_t>(null << (column & 7));
        ++column;
        if (place.IsText()) {
            texts = PackText(place, message, null, texts);
        } else {
            CopyFixed(row + place.Packed, message + place.Offset, place.Size);
        }
    }
    return texts;
}

uint8_t* RowLayout::PackNull(uint8_t* row) const {
    std::memset(row, 0xFF, FNullBytes);
    row[Columns() >> 3] &= static_cast<uint8_t>(~(1u << (Columns() & 7)));
    uint8_t* end = row + FFixedEnd;
    for (const uint32_t text : FTexts) {
        for (uint8_t i = 0; i < FPlaces[text].Size; ++i) *end++ = 0;
    }
    return end;
}

uint8_t* RowLayout::PutBytes(const Place& place, const QByteArray& bytes, uint8_t* out) {
    const auto length = std::min<uint32_t>(static_cast<uint32_t>(bytes.size()), place.Length);
    return PutText(place, reinterpret_cast<const uint8_t*>(bytes.constData()), length, out);
}

uint8_t* RowLayout::PutValue(const Place& place, const Variant& value, uint8_t* out) {
    if (value.IsNull()) return PutText(place, out, 0, out);
    if (value.Kind() == vkBytes) return PutBytes(place, value.ToBytes(), out);
    const UnicodeString& text = value.Text();
    const auto size = static_cast<uint32_t>(text.size());
    const bool fits = place.Encoding == TextEncoding::Windows1252 && size <= place.Length;
    if (fits && PutAnsiExact(text, reinterpret_cast<char*>(out) + place.Size))
        return PutText(place, out + place.Size, size, out);
    return PutBytes(place, EncodeText(place.Encoding, text).value_or(QByteArray()), out);
}

uint8_t* RowLayout::PackValues(std::span<const Variant* const> values, uint8_t* row) const {
    std::memset(row, 0, FNullBytes);
    uint8_t* texts = row + FFixedEnd;
    for (size_t i = 0; i < FPlaces.size(); ++i) {
        const Place& place = FPlaces[i];
        const Variant& value = *values[i];
        const bool null = value.IsNull();
        row[i >> 3] |= static_cast<uint8_t>(null << (i & 7));
        if (place.IsText()) {
            texts = PutValue(place, value, texts);
        } else if (!null) {
            PutFixed(place.Kind, place.Scale, value, row + place.Packed);
        }
    }
    return texts;
}

size_t RowLayout::Bytes(const uint8_t* row) const {
    const uint8_t* at = row + FFixedEnd;
    for (const uint32_t text : FTexts) {
        const uint32_t length = TakeLength(FPlaces[text], at);
        at += length;
    }
    return static_cast<size_t>(at - row);
}

Variant RowLayout::ValueOrBytes(const uint8_t* row, int column) const {
    if (IsNull(row, column)) return Variant::Null();
    const Place& place = FPlaces[static_cast<size_t>(column)];
    if (!place.IsText()) return FixedValue(place.Kind, place.Scale, row + place.Packed);
    const std::span<const uint8_t> text = Text(row, column);
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    if (place.Encoding == TextEncoding::Windows1252) return DecodeText(place.Encoding, bytes);
    if (std::optional<UnicodeString> decoded = DecodeExact(place.Encoding, bytes)) return *std::move(decoded);
    return bytes.toByteArray();
}

Variant RowLayout::Value(const uint8_t* row, int column) const {
    Variant value = ValueOrBytes(row, column);
    if (value.Kind() == vkBytes) throw EUnreadableText();
    return value;
}

}  // namespace fichario
