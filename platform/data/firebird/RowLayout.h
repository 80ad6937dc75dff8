// How a row is kept: a bit for each null column and one that marks the row, the values of fixed size at fixed
// places, then the texts at their real length. A value is decoded when it is read.
//
//     RowLayout layout(statement.Columns());
//     uint8_t* end = layout.Pack(message, row);
//     Variant name = layout.Value(row, 1);
#pragma once
#include <span>
#include "platform/data/firebird/Columns.h"
#include "platform/rtl/Variant.h"

namespace fichario {

// The number that a FLOAT's shortest text means: 0.1, not the nearest of 24 bits, which is 0.100000001490116.
double FromFloat(float value);

class RowLayout {
  public:
    RowLayout() = default;
    explicit RowLayout(const ColumnList& columns);

    // The same columns at the same places.
    bool operator==(const RowLayout&) const = default;

    int Columns() const { return static_cast<int>(FPlaces.size()); }
    // The most bytes that a packed row can take.
    size_t MaxBytes() const { return FMaxBytes; }

    // Packs the row of a message as the server sent it into `row`, MaxBytes long. Returns the end of what it
    // wrote.
    uint8_t* Pack(const uint8_t* message, uint8_t* row) const;
    // Writes a row whose columns are all null.
    uint8_t* PackNull(uint8_t* row) const;
    // Packs values as ValueOrBytes gives them, one for each column; a text that is too long is cut, a foreign
    // one empty.
    uint8_t* PackValues(std::span<const Variant* const> values, uint8_t* row) const;
    // The length of a packed row.
    size_t Bytes(const uint8_t* row) const;

    bool IsNull(const uint8_t* row, int column) const { return row[column >> 3] >> (column & 7) & 1; }
    // The mark, which packing leaves unset.
    bool IsMarked(const uint8_t* row) const { return IsNull(row, Columns()); }
    void Mark(uint8_t* row) const { row[Columns() >> 3] |= static_cast<uint8_t>(1 << (Columns() & 7)); }
    // The value; null, or that of the column's kind. A blob gives its identity as an integer.
    // EUnreadableText.
    Variant Value(const uint8_t* row, int column) const;
    // The same, but a text that cannot be read gives its bytes.
    Variant ValueOrBytes(const uint8_t* row, int column) const;
    // A text column's bytes in the column's encoding; empty for null.
    std::span<const uint8_t> Text(const uint8_t* row, int column) const {
        const uint8_t* at = row + FFixedEnd;
        for (uint32_t before = FPlaces[static_cast<size_t>(column)].Packed, i = 0;; ++i) {
            const uint32_t length = TakeLength(FPlaces[FTexts[i]], at);
            if (i == before) return {at, length};
            at += length;
        }
    }
    TextEncoding Encoding(int column) const { return FPlaces[static_cast<size_t>(column)].Encoding; }
    TFieldType Type(int column) const { return FPlaces[static_cast<size_t>(column)].Type; }
    bool IsText(int column) const { return FPlaces[static_cast<size_t>(column)].IsText(); }
    bool IsFloat(int column) const { return FPlaces[static_cast<size_t>(column)].Kind == WireKind::Float; }
    bool IsBlob(int column) const { return FPlaces[static_cast<size_t>(column)].Kind == WireKind::Blob; }

  private:
    struct Place {
        WireKind Kind;
        TFieldType Type;
        TextEncoding Encoding;
        uint8_t Scale;
        bool Padded;      // CHAR: blanks at its end are no part of it
        uint8_t Size;     // fixed: bytes; text: bytes of the length in front of it
        uint32_t Offset;  // in the message
        uint32_t NullOffset;
        uint32_t Length;  // CHAR: bytes in the message
        uint32_t Packed;  // fixed: place in the packed row; text: how many texts stand before it
        bool IsText() const { return fichario::IsText(Kind); }
        bool operator==(const Place&) const = default;
    };

    static Place PlaceOf(const ColumnInfo& column);
    static uint8_t* PutText(const Place& place, const uint8_t* text, uint32_t length, uint8_t* out);
    static uint8_t* PutBytes(const Place& place, const QByteArray& bytes, uint8_t* out);
    static uint8_t* PutValue(const Place& place, const Variant& value, uint8_t* out);
    static uint8_t* PackText(const Place& place, const uint8_t* message, bool null, uint8_t* out);
    static uint32_t TakeLength(const Place& place, const uint8_t*& at) {
        uint32_t length = *at++;
        if (place.Size == 2) length |= uint32_t{*at++} << 8;
        return length;
    }

    std::vector<Place> FPlaces;
    std::vector<uint32_t> FTexts;  // the text columns, in order
    uint32_t FNullBytes = 0;
    uint32_t FFixedEnd = 0;  // where the texts begin
    size_t FMaxBytes = 0;
};

}  // namespace fichario
