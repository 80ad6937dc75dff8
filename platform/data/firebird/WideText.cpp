#include "platform/data/firebird/WideText.h"

#include <algorithm>
#include "platform/data/firebird/CharacterSets.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

constexpr int kBytesOfCharacter = 4;
constexpr int kMostCharacters = kLongestVarying / kBytesOfCharacter;

bool IsWidened(const ColumnInfo& column) {
    const bool untouched = column.CharacterSet == kNoSet || column.CharacterSet == kOctetsSet;
    return HasCharacterSet(column) && !untouched;
}

UnicodeString Utf8Of(const ColumnInfo& column, const UnicodeString& name) {
    if (column.Kind == WireKind::Blob || column.Characters > kMostCharacters)
        return u"CAST(%1 AS BLOB SUB_TYPE TEXT CHARACTER SET UTF8)"_s.arg(name);
    return u"CAST(%1 AS VARCHAR(%2) CHARACTER SET UTF8)"_s.arg(name).arg(column.Characters);
}

// A CHAR loses its blanks: the bytes of its own would be filled up with zeros.
UnicodeString WideItem(const ColumnInfo& column, const UnicodeString& name) {
    if (!IsWidened(column)) return name;
    const UnicodeString wide = Utf8Of(column, name);
    if (column.Kind == WireKind::Blob) return u"CAST(%1 AS BLOB SUB_TYPE BINARY)"_s.arg(wide);
    return u"CAST(%1 AS VARCHAR(%2) CHARACTER SET OCTETS)"_s
        .arg(column.Kind == WireKind::Text ? u"TRIM(TRAILING FROM %1)"_s.arg(wide) : wide)
        .arg(std::min(column.Characters * kBytesOfCharacter, kLongestVarying));
}

}  // namespace

TStringArray WideItems(const ColumnList& columns) {
    TStringArray items;
    for (size_t i = 0; i < columns.size(); ++i) items.push_back(WideItem(columns[i], u"R.C%1"_s.arg(i + 1)));
    return items;
}

ColumnList WideColumns(const ColumnList& columns, const ColumnList& described) {
    ColumnList wide = columns;
    for (size_t i = 0; i < wide.size(); ++i) {
        wide[i].Kind = described[i].Kind;
        wide[i].Scale = described[i].Scale;
        wide[i].Length = described[i].Length;
        wide[i].Offset = described[i].Offset;
        wide[i].NullOffset = described[i].NullOffset;
        if (IsWidened(columns[i])) wide[i].Encoding = TextEncoding::Utf8Signs;
    }
    return wide;
}

}  // namespace fichario
