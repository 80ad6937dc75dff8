#include "platform/data/firebird/RawFetch.h"

#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/Statement.h"

namespace fichario {

int64_t FetchRaw(Attachment& attachment, const UnicodeString& sql, int firstOnly) {
    const StatementLease statement = attachment.Prepare(sql);
    const std::shared_ptr<Transaction> transaction = attachment.Reading();
    std::vector<uint8_t> row(statement->RowBytes());
    int64_t rows = 0;
    attachment.Call(CallKind::Fetch, [&](Firebird::ThrowStatusWrapper& status) {
        Firebird::IResultSet* cursor = statement->Handle()->openCursor(
            &status, transaction->Handle(), nullptr, nullptr, statement->RowFormat(), 0);
        while ((firstOnly == 0 || rows < firstOnly) &&
               cursor->fetchNext(&status, row.data()) == Firebird::IStatus::RESULT_OK) {
            ++rows;
        }
        cursor->close(&status);
    });
    return rows;
}

}  // namespace fichario
