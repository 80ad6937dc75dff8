// A prepared statement with the description of what goes in and comes out.
//
//     StatementLease statement = attachment.Prepare(u"UPDATE T SET A = ? WHERE ID = ?"_s);
//     InputMessage input(attachment, statement->Inputs(), {{a}, {id}});
//     int64_t changed = statement->Execute(*transaction, input);
#pragma once
#include <memory>
#include "platform/data/firebird/ClientCall.h"
#include "platform/data/firebird/Columns.h"
#include "platform/data/firebird/Transaction.h"

namespace Firebird {
class IMessageMetadata;
class IStatement;
}  // namespace Firebird

namespace fichario {

class InputMessage;
class RowStore;

class Statement {
  public:
    // Prepares in the transaction that reads happen in. EFDError; EDatabaseError for COMMIT, ROLLBACK and SET
    // TRANSACTION, and for a NUL outside literals.
    Statement(Attachment& attachment, const UnicodeString& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    const UnicodeString& Sql() const { return FSql; }
    // Gives rows one after the other, to be read by a cursor.
    bool HasCursor() const { return FHasCursor; }
    // No definition has changed over this connection since it was prepared.
    bool IsCurrent() const { return FDefinitions == FAttachment.Definitions(); }
    // Changes the definition of something in the database.
    bool IsDefinition() const;
    const ColumnList& Columns() const { return FColumns; }
    const ColumnList& Inputs() const { return FInputs; }
    // The length of a row's message in bytes.
    size_t RowBytes() const { return FRowBytes; }

    // Fills BaseAlias of the columns from the server: for statements on several tables.
    void DescribeAliases();

    // Executes. Returns how many records changed; with `returned`, which a single row that comes back
    // (RETURNING) is appended to, the server is not asked for their number, and the result is 0.
    int64_t Execute(Transaction& transaction, InputMessage& input, RowStore* returned = nullptr,
                    CallKind kind = CallKind::Execute);

    Firebird::IStatement* Handle() const { return FHandle; }
    Firebird::IMessageMetadata* InputFormat() const { return FInputFormat; }
    Firebird::IMessageMetadata* RowFormat() const { return FRowFormat; }

  private:
    void Prepare();
    void Describe();

    Attachment& FAttachment;
    UnicodeString FSql;
    int FDefinitions;
    Firebird::IStatement* FHandle = nullptr;
    Firebird::IMessageMetadata* FInputFormat = nullptr;
    Firebird::IMessageMetadata* FRowFormat = nullptr;
    unsigned FType = 0;
    bool FHasCursor = false;
    bool FAliases = false;
    size_t FRowBytes = 0;
    ColumnList FColumns, FInputs;
};

// The use of a prepared statement: at the end it goes back among the prepared ones of its connection.
class StatementLease {
  public:
    StatementLease() = default;
    StatementLease(std::shared_ptr<Attachment> attachment, std::unique_ptr<Statement> statement);
    ~StatementLease();
    StatementLease(StatementLease&&) noexcept = default;
    StatementLease& operator=(StatementLease&& other) noexcept;

    Statement* operator->() const { return FStatement.get(); }
    Statement& operator*() const { return *FStatement; }
    explicit operator bool() const { return FStatement != nullptr; }

  private:
    void End();

    std::shared_ptr<Attachment> FAttachment;
    std::unique_ptr<Statement> FStatement;
};

}  // namespace fichario
