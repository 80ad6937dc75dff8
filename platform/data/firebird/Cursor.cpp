#include "platform/data/firebird/Cursor.h"

#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/FbApi.h"

namespace fichario {

Cursor::Cursor(std::shared_ptr<Attachment> attachment, StatementLease statement,
               std::shared_ptr<Transaction> transaction, InputMessage& input, RowStore& store, int rows)
    : FAttachment(std::move(attachment)),
      FTransaction(std::move(transaction)),
      FStatement(std::move(statement)),
      FRow(FStatement->RowBytes()) {
    input.Build(*FStatement, *FTransaction);
    int fetched = 0;
    try {
        FAttachment->Call(CallKind::Execute, [&](Firebird::ThrowStatusWrapper& status) {
            FHandle = FStatement->Handle()->openCursor(&status, FTransaction->Handle(), input.Format(),
                                                       input.Bytes(), FStatement->RowFormat(), 0);
            fetched = TakeRows(status, store, rows);
        });
    } catch (const EFDError& error) {
        Close();
        if (!error.Has(kKeyTooLong) || store.Count() > 0) throw;
    } catch (...) {
        Close();
        throw;
    }
    Finish(store, fetched < rows);
}

Cursor::~Cursor() {
    Close();
}

void Cursor::Close() {
    if (!FHandle) return;
    const bool closed = FAttachment->End(
        CallKind::Close, [&](Firebird::ThrowStatusWrapper& status) { FHandle->close(&status); });
    if (!closed) FHandle->release();
    FHandle = nullptr;
}

int Cursor::TakeRows(Firebird::ThrowStatusWrapper& status, RowStore& store, int rows) {
    int taken = 0;
    for (; taken < rows && FHandle->fetchNext(&status, FRow.data()) == Firebird::IStatus::RESULT_OK;
         ++taken) {
        store.Append(FRow.data());
        StopIfAsked();
    }
    return taken;
}

void Cursor::Finish(RowStore& store, bool ended) {
    if (!ended) return;
    Close();
    FStatement = {};  // for the next who needs it
    store.Fit();
}

int Cursor::Fetch(RowStore& store, int rows) {
    if (FFailure) std::rethrow_exception(FFailure);
    if (!FHandle) return 0;
    int fetched = 0;
    try {
        FAttachment->Call(CallKind::Fetch, [&](Firebird::ThrowStatusWrapper& status) {
            fetched = TakeRows(status, store, rows);
        });
    } catch (...) {
        FFailure = std::current_exception();
        throw;
    }
    Finish(store, fetched < rows);
    return fetched;
}

}  // namespace fichario
