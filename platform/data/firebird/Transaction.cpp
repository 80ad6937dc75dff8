#include "platform/data/firebird/Transaction.h"

#include "platform/data/firebird/FbApi.h"

namespace fichario {

namespace {

constexpr unsigned char kRead[] = {isc_tpb_version3, isc_tpb_read, isc_tpb_read_committed,
                                   isc_tpb_rec_version, isc_tpb_nowait};
constexpr unsigned char kWrite[] = {isc_tpb_version3, isc_tpb_write, isc_tpb_read_committed,
                                    isc_tpb_rec_version, isc_tpb_nowait};

}  // namespace

Transaction::Transaction(Attachment& attachment, Mode mode) : FAttachment(attachment) {
    const unsigned char* options = mode == Mode::Read ? kRead : kWrite;
    attachment.Call(CallKind::Start, [&](Firebird::ThrowStatusWrapper& status) {
        FHandle = attachment.Handle()->startTransaction(&status, sizeof kRead, options);
    });
}

Transaction::~Transaction() {
    if (!FHandle) return;
    const bool ended = FAttachment.End(
        CallKind::Rollback, [&](Firebird::ThrowStatusWrapper& status) { FHandle->rollback(&status); });
    if (!ended) FHandle->release();
}

void Transaction::Commit() {
    FAttachment.Call(CallKind::Commit,
                     [&](Firebird::ThrowStatusWrapper& status) { FHandle->commit(&status); });
    FHandle = nullptr;
}

void Transaction::Rollback() {
    FAttachment.Call(CallKind::Rollback,
                     [&](Firebird::ThrowStatusWrapper& status) { FHandle->rollback(&status); });
    FHandle = nullptr;
}

WriteScope::WriteScope(Attachment& attachment)
    : FOwn(!attachment.Host()),
      FTransaction(FOwn ? std::make_shared<Transaction>(attachment, Transaction::Mode::Write)
                        : attachment.Host()) {}

void WriteScope::Commit() {
    if (FOwn) FTransaction->Commit();
}

}  // namespace fichario
