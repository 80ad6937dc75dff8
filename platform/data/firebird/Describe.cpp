#include "platform/data/firebird/Describe.h"

#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/FbApi.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

constexpr unsigned kSetBits = 0xFF;  // the collation stands above them

WireKind KindOf(unsigned type) {
    switch (type & ~1u) {
        case SQL_TEXT: return WireKind::Text;
        case SQL_VARYING: return WireKind::Varying;
        case SQL_SHORT: return WireKind::Short;
        case SQL_LONG: return WireKind::Long;
        case SQL_INT64: return WireKind::Int64;
        case SQL_FLOAT: return WireKind::Float;
        case SQL_D_FLOAT:
        case SQL_DOUBLE: return WireKind::Double;
        case SQL_TYPE_DATE: return WireKind::Date;
        case SQL_TYPE_TIME: return WireKind::Time;
        case SQL_TIMESTAMP: return WireKind::Timestamp;
        case SQL_BOOLEAN: return WireKind::Boolean;
        case SQL_BLOB: return WireKind::Blob;
        case SQL_NULL: return WireKind::NullTest;
        default: throw EDatabaseError(u"Column type %1 is not supported"_s.arg(type & ~1u));
    }
}

}  // namespace

ColumnList ColumnsOf(Firebird::ThrowStatusWrapper& status, Firebird::IMessageMetadata& format,
                     const Attachment& attachment) {
    const auto text = [&](const char* bytes) { return DecodeName(bytes).trimmed(); };
    ColumnList columns(format.getCount(&status));
    for (unsigned i = 0; i < columns.size(); ++i) {
        ColumnInfo& column = columns[i];
        column.Kind = KindOf(format.getType(&status, i));
        column.Name = text(format.getAlias(&status, i));
        column.BaseTable = text(format.getRelation(&status, i));
        if (!column.BaseTable.isEmpty()) column.BaseColumn = text(format.getField(&status, i));
        column.SubType = format.getSubType(&status, i);
        if (column.Kind != WireKind::Blob)
            column.Scale = -format.getScale(&status, i);  // there it is a character set
        column.Length = format.getLength(&status, i);
        column.Offset = format.getOffset(&status, i);
        column.NullOffset = format.getNullOffset(&status, i);
        column.CharacterSet = format.getCharSet(&status, i) & kSetBits;
        column.Encoding = HasCharacterSet(column) ? EncodingOf(column.CharacterSet) : attachment.Encoding();
        if (IsText(column.Kind))
            column.Characters = static_cast<int>(column.Length / BytesOfCharacter(column.CharacterSet));
    }
    return columns;
}

}  // namespace fichario
