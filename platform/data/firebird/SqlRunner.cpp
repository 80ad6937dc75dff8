#include "platform/data/firebird/SqlRunner.h"

#include "platform/data/firebird/BoundStatement.h"
#include "platform/data/firebird/Cursor.h"
#include "platform/data/firebird/FbErrors.h"
#include "platform/data/firebird/Misfits.h"
#include "platform/data/firebird/WideText.h"

namespace fichario {

RowStore ReadRows(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                  const ColumnList* wide, int most) {
    BoundStatement bound(attachment, attachment.Prepare(sql), values);
    bound.Cast();
    const ColumnList& columns = bound.Statement->Columns();
    RowStore rows{RowLayout(wide ? WideColumns(*wide, columns) : columns)};
    if (bound.Input->Misfit()) return rows;
    Cursor(attachment.shared_from_this(), std::move(bound.Statement), attachment.Reading(), *bound.Input,
           rows, most);
    return rows;
}

int64_t ExecuteSql(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                   RowStore* returned) {
    BoundStatement bound(attachment, attachment.Prepare(sql), values);
    if (bound.Statement->IsDefinition()) attachment.Forget();
    if (bound.Input->Misfit()) RefuseMisfit(*bound.Input->Misfit(), {});
    bound.Cast();
    if (returned) *returned = RowStore(RowLayout(bound.Statement->Columns()));
    WriteScope write(attachment);
    const int64_t changed = bound.Statement->Execute(*write.Get(), *bound.Input, returned);
    try {
        write.Commit();
    } catch (const EFDError& error) {
        throw Undecided(error);
    }
    return changed;
}

}  // namespace fichario
