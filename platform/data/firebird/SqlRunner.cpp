#include "platform/data/firebird/SqlRunner.h"

#include "platform/data/firebird/Cursor.h"
#include "platform/data/firebird/Misfits.h"
#include "platform/data/firebird/WideText.h"

namespace fichario {

RowStore ReadRows(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                  const ColumnList* wide, int most) {
    StatementLease statement = attachment.Prepare(sql);
    RowStore rows{RowLayout(wide ? WideColumns(*wide, statement->Columns()) : statement->Columns())};
    InputMessage input(attachment, statement->Inputs(), values);
    if (input.Misfit()) return rows;
    Cursor(attachment.shared_from_this(), std::move(statement), attachment.Reading(), input, rows, most);
    return rows;
}

int64_t ExecuteSql(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                   RowStore* returned) {
    StatementLease statement = attachment.Prepare(sql);
    if (statement->IsDefinition()) attachment.Forget();
    InputMessage input(attachment, statement->Inputs(), values);
    if (input.Misfit()) RefuseMisfit(*input.Misfit(), {});
    if (returned) *returned = RowStore(RowLayout(statement->Columns()));
    WriteScope write(attachment);
    const int64_t changed = statement->Execute(*write.Get(), input, returned);
    write.Commit();
    return changed;
}

}  // namespace fichario
