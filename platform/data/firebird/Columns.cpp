#include "platform/data/firebird/Columns.h"

namespace fichario {

namespace {

TFieldType NumberOr(TFieldType whole, const ColumnInfo& column) {
    return column.Scale > 0 ? ftBCD : whole;
}

}  // namespace

TFieldType FieldTypeOf(const ColumnInfo& column) {
    switch (column.Kind) {
        case WireKind::Text: return ftFixedChar;
        case WireKind::Varying: return ftString;
        case WireKind::Short: return NumberOr(ftSmallint, column);
        case WireKind::Long: return NumberOr(ftInteger, column);
        case WireKind::Int64: return NumberOr(ftLargeint, column);
        case WireKind::Float:
        case WireKind::Double: return ftFloat;
        case WireKind::Date: return ftDate;
        case WireKind::Time: return ftTime;
        case WireKind::Timestamp: return ftTimeStamp;
        case WireKind::Boolean: return ftBoolean;
        case WireKind::Blob: return column.SubType == 1 ? ftMemo : ftBlob;
        case WireKind::NullTest: break;
    }
    return ftUnknown;
}

}  // namespace fichario
