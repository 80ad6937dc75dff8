#include "bench/RawClient.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include "bench/ClienteTable.h"
#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/Statement.h"
#include "platform/data/firebird/Transaction.h"
#include "platform/data/firebird/WireTime.h"

using namespace fichario;

namespace {

// Calls of the client on this thread, without anything of the data layer.
template <class Body>
void Directly(Body body) {
    Firebird::ThrowStatusWrapper status(Firebird::fb_get_master_interface()->getStatus());
    body(status);
    status.dispose();
}

// Executes a prepared statement and fetches from it; `use` is called for each row.
template <class Use>
int64_t FetchFrom(Firebird::ThrowStatusWrapper& status, Firebird::IStatement& statement,
                  Firebird::IMessageMetadata& format, Transaction& transaction, int firstOnly, Use use) {
    std::vector<uint8_t> row(format.getMessageLength(&status));
    int64_t rows = 0;
    Firebird::IResultSet* cursor =
        statement.openCursor(&status, transaction.Handle(), nullptr, nullptr, &format, 0);
    while ((firstOnly == 0 || rows < firstOnly) &&
           cursor->fetchNext(&status, row.data()) == Firebird::IStatus::RESULT_OK) {
        use(row.data());
        ++rows;
    }
    cursor->close(&status);
    return rows;
}

template <class Use>
int64_t Fetch(Attachment& attachment, const UnicodeString& sql, int firstOnly, Use use) {
    const StatementLease statement = attachment.Prepare(sql);
    const std::shared_ptr<Transaction> transaction = attachment.Reading();
    int64_t rows = 0;
    Directly([&](Firebird::ThrowStatusWrapper& status) {
        rows = FetchFrom(status, *statement->Handle(), *statement->RowFormat(), *transaction, firstOnly,
                         [&](const uint8_t* row) { use(statement->Columns(), row); });
    });
    return rows;
}

template <class T>
T Read(const uint8_t* at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

void UseTyped(const ColumnInfo& column, const uint8_t* row) {
    const uint8_t* at = row + column.Offset;
    if (Read<int16_t>(row + column.NullOffset)) return;
    switch (column.Kind) {
        case WireKind::Long: return benchmark::DoNotOptimize(Read<int32_t>(at));
        case WireKind::Int64: return benchmark::DoNotOptimize(Decimal{Read<int64_t>(at), column.Scale});
        case WireKind::Date: return benchmark::DoNotOptimize(FromWire({Read<int32_t>(at), 0}));
        case WireKind::Timestamp: return benchmark::DoNotOptimize(FromWire(Read<WireStamp>(at)));
        case WireKind::Varying:
            return benchmark::DoNotOptimize(
                DecodeText(column.Encoding, QByteArrayView(at + 2, Read<uint16_t>(at))));
        case WireKind::Text:
            return benchmark::DoNotOptimize(DecodeText(column.Encoding, QByteArrayView(at, column.Length)));
        default: return;
    }
}

// Writes one parameter of the described kind.
class Message {
  public:
    explicit Message(Statement& statement) : FColumns(statement.Inputs()) {
        FBytes.resize(FColumns.back().NullOffset + sizeof(int16_t));
    }
    template <class T>
    void Set(size_t column, T value) {
        std::memcpy(FBytes.data() + FColumns[column].Offset, &value, sizeof value);
    }
    void SetText(size_t column, const UnicodeString& text) {
        const QByteArray bytes = text.toLatin1();
        uint8_t* at = FBytes.data() + FColumns[column].Offset;
        if (FColumns[column].Kind == WireKind::Varying) {
            Set(column, static_cast<uint16_t>(bytes.size()));
            at += sizeof(uint16_t);
        }
        std::memcpy(at, bytes.constData(), static_cast<size_t>(bytes.size()));
    }
    uint8_t* Bytes() { return FBytes.data(); }

  private:
    const ColumnList& FColumns;
    std::vector<uint8_t> FBytes;
};

}  // namespace

int64_t FetchRaw(Attachment& attachment, const UnicodeString& sql, int firstOnly) {
    return Fetch(attachment, sql, firstOnly, [](const ColumnList&, const uint8_t*) {});
}

void OpenRaw(Attachment& attachment, const UnicodeString& sql, int rows) {
    const QByteArray text = sql.toLatin1();
    const std::shared_ptr<Transaction> transaction = attachment.Reading();
    Directly([&](Firebird::ThrowStatusWrapper& status) {
        Firebird::IStatement* statement = attachment.Handle()->prepare(
            &status, transaction->Handle(), static_cast<unsigned>(text.size()), text.constData(),
            SQL_DIALECT_V6, Firebird::IStatement::PREPARE_PREFETCH_METADATA);
        Firebird::IMessageMetadata* format = statement->getOutputMetadata(&status);
        FetchFrom(status, *statement, *format, *transaction, rows, [](const uint8_t*) {});
        format->release();
        statement->free(&status);
    });
}

int64_t FetchTyped(Attachment& attachment, const UnicodeString& sql) {
    return Fetch(attachment, sql, 0, [](const ColumnList& columns, const uint8_t* row) {
        for (const ColumnInfo& column : columns) UseTyped(column, row);
    });
}

void InsertRaw(Attachment& attachment, int firstKey, int rows) {
    const StatementLease statement = attachment.Prepare(kInsertCliente);
    Message message(*statement);
    Directly([&](Firebird::ThrowStatusWrapper& status) {
        for (int key = firstKey; key < firstKey + rows; ++key) {
            message.Set(0, int32_t{key});
            message.SetText(1, novo::kNome);
            message.SetText(2, novo::kCpf);
            message.SetText(3, novo::kEmail);
            message.SetText(4, novo::kUf);
            message.Set(5, novo::kSaldo);
            message.Set(6, ToWire(TDateTime(novo::kNasc)).Days);
            message.Set(7, ToWire(TDateTime(novo::kCriado)));
            message.SetText(8, novo::kAtivo);
            statement->Handle()->execute(&status, attachment.Host()->Handle(), statement->InputFormat(),
                                         message.Bytes(), nullptr, nullptr);
        }
    });
}
