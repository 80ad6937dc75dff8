// How one column or parameter of a statement looks on its way between client and server.
#pragma once
#include <cstdint>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/data/firebird/TextEncoding.h"

namespace fichario {

enum class WireKind : uint8_t {
    Text,     // padded with blanks to its length
    Varying,  // two bytes of length, then the text
    Short,
    Long,
    Int64,
    Float,
    Double,
    Date,       // days since 17 November 1858
    Time,       // 1/10000 seconds since midnight
    Timestamp,  // both
    Boolean,
    Blob,     // eight bytes of identity
    NullTest  // a parameter of which only null or not counts
};

constexpr int kLongestVarying = 32765;  // bytes of text that a Varying holds at most

constexpr bool IsText(WireKind kind) {
    return kind == WireKind::Text || kind == WireKind::Varying;
}

struct ColumnInfo {
    UnicodeString Name;        // the name it goes by in the result
    UnicodeString BaseColumn;  // empty for an expression
    UnicodeString BaseTable;
    // The name under which the statement speaks of the base table; empty when unknown.
    UnicodeString BaseAlias;
    WireKind Kind = WireKind::Long;
    int SubType = 0;      // blobs: 1 is text; numbers: 1 and 2 are exact decimals
    int Scale = 0;        // decimal places
    uint32_t Length = 0;  // bytes
    int Characters = 0;   // texts: how many fit
    TextEncoding Encoding = TextEncoding::Windows1252;
    unsigned CharacterSet = 0;  // in which a text or text blob comes, by the server's number
    uint32_t Offset = 0;        // of the value in the message
    uint32_t NullOffset = 0;    // of its null flag, two bytes
};

using ColumnList = std::vector<ColumnInfo>;

// Other values that come or go as texts are in the connection's set.
inline bool HasCharacterSet(const ColumnInfo& column) {
    return IsText(column.Kind) || (column.Kind == WireKind::Blob && column.SubType == 1);
}

// The kind of field for a column.
TFieldType FieldTypeOf(const ColumnInfo& column);

}  // namespace fichario
