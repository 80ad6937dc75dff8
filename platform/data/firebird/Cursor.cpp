#include "platform/data/firebird/Cursor.h"

#include "platform/data/firebird/FbApi.h"

namespace fichario {

Cursor::Cursor(std::shared_ptr<Attachment> attachment, StatementLease statement,
               std::shared_ptr<Transaction> transaction, InputMessage& input)
    : FAttachment(std::move(attachment)),
      FTransaction(std::move(transaction)),
      FStatement(std::move(statement)),
      FRow(FStatement->RowBytes()) {
    input.Build(*FStatement, *FTransaction);
    FAttachment->Call(CallKind::Execute, [&](Firebird::ThrowStatusWrapper& status) {
        FHandle = FStatement->Handle()->openCursor(&status, FTransaction->Handle(), input.Format(),
                                                   input.Bytes(), FStatement->RowFormat(), 0);
    });
}

Cursor::~Cursor() {
    Close();
}

void Cursor::Close() {
    if (!FHandle) return;
    const bool closed = QuietClientCall(
        CallKind::Close, [&](Firebird::ThrowStatusWrapper& status) { FHandle->close(&status); });
    if (!closed) FHandle->release();
    FHandle = nullptr;
}

int Cursor::Fetch(RowStore& store, int rows) {
    if (FFailure) std::rethrow_exception(FFailure);
    if (!FHandle) return 0;
    int fetched = 0;
    try {
        FAttachment->Call(CallKind::Fetch, [&](Firebird::ThrowStatusWrapper& status) {
            for (; fetched < rows && FHandle->fetchNext(&status, FRow.data()) == Firebird::IStatus::RESULT_OK;
                 ++fetched) {
                store.Append(FRow.data());
            }
        });
    } catch (...) {
        FFailure = std::current_exception();
        throw;
    }
    if (fetched < rows) Close();
    return fetched;
}

}  // namespace fichario
