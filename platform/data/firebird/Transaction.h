// One transaction: read committed, record version, no wait, read-only or writing.
//
//     WriteScope write(attachment);
//     statement.Execute(*write.Get(), input);
//     write.Commit();                        // without it the work is undone
#pragma once
#include <memory>
#include "platform/data/firebird/Attachment.h"

namespace Firebird {
class ITransaction;
}

namespace fichario {

class Transaction {
  public:
    enum class Mode { Read, Write };

    // EFDError when it cannot begin.
    Transaction(Attachment& attachment, Mode mode);
    // Undoes what is not committed.
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    Firebird::ITransaction* Handle() const { return FHandle; }
    // Whether it has neither been committed nor rolled back.
    bool Open() const { return FHandle != nullptr; }
    bool IsOn(const Attachment& attachment) const { return &FAttachment == &attachment; }
    // EFDError: it stays open.
    void Commit();
    void Rollback();

  private:
    Attachment& FAttachment;
    Firebird::ITransaction* FHandle = nullptr;
};

// Where something is written: the host's transaction, which it leaves open, or a short one of its own.
class WriteScope {
  public:
    explicit WriteScope(Attachment& attachment);

    const std::shared_ptr<Transaction>& Get() const { return FTransaction; }
    // Commits a transaction of its own.
    void Commit();

  private:
    bool FOwn;
    std::shared_ptr<Transaction> FTransaction;
};

}  // namespace fichario
