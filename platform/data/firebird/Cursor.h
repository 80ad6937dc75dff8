// The rows of an executed SELECT, brought in batches.
//
//     Cursor cursor(attachment, std::move(statement), attachment->Reading(), input, store, 64);
//     while (!cursor.AtEnd()) cursor.Fetch(store, 1000);
#pragma once
#include <exception>
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/RowStore.h"

namespace Firebird {
class IResultSet;
}

namespace fichario {

class Cursor {
  public:
    // Executes in `transaction`, which it keeps, and brings the first `rows` rows into `store` in the same
    // call. EFDError. A value that is longer than any key of the index it is sought in finds nothing.
    Cursor(std::shared_ptr<Attachment> attachment, StatementLease statement,
           std::shared_ptr<Transaction> transaction, InputMessage& input, RowStore& store, int rows);
    ~Cursor();
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    // Appends up to `rows` rows to `store`. Returns how many; AtEnd() holds when there are no more. After a
    // failure every further call fails the same way: what the client answers then would look like the end of
    // the data.
    int Fetch(RowStore& store, int rows);
    bool AtEnd() const { return !FHandle; }
    const std::shared_ptr<Attachment>& On() const { return FAttachment; }
    const std::shared_ptr<Transaction>& InTransaction() const { return FTransaction; }

  private:
    int TakeRows(Firebird::ThrowStatusWrapper& status, RowStore& store, int rows);
    void Finish(RowStore& store, bool ended);
    void Close();

    std::shared_ptr<Attachment> FAttachment;
    std::shared_ptr<Transaction> FTransaction;
    StatementLease FStatement;
    Firebird::IResultSet* FHandle = nullptr;
    std::vector<uint8_t> FRow;
    std::exception_ptr FFailure;
};

}  // namespace fichario
