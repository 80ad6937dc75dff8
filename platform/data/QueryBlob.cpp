// A query's blobs. A row holds only the identity of one, which the server gives to another record's as soon
// as its own was written anew: what is read by it counts only while the record still holds it.
#include <algorithm>
#include "platform/data/Connection.h"
#include "platform/data/firebird/Blob.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/UpdateLog.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

namespace {

constexpr int kTries = 3;  // that others may change the blob in between

}  // namespace

std::optional<QByteArray> TFDCustomQuery::DoReadBlob(int row, int column) const {
    return RequireConnection().Lasting(TFDCustomConnection::Use::Reading, [&]() -> std::optional<QByteArray> {
        RequirePrepared();
        for (int i = 0; i < kTries; ++i) {
            if (i > 0) RenewForBlob(row);
            if (Rows().Value(row, column).IsNull()) return std::nullopt;
            if (std::optional<QByteArray> bytes = BlobIfHeld(row, column)) return bytes;
        }
        throw EUnreadableText({}, u"outro usuário o está alterando"_s);
    });
}

std::optional<QByteArray> TFDCustomQuery::BlobIfHeld(int row, int column) const {
    Attachment& attachment = *FPrepared->On();
    const int64_t id = Rows().Value(row, column).ToInt64();
    if (IsTemporaryBlob(id)) return TemporaryBlob(row, id);
    try {
        QByteArray bytes = ReadBlob(attachment, *attachment.Reading(), id, FPrepared->IsWide());
        if (StillHolds(row, column)) return bytes;
    } catch (const EFDError& error) {
        // What the identity leads to when it is nobody's any more, the server tells in many ways.
        if (!error.ConnectionUsable || error.BrokenOff || StillHolds(row, column)) throw;
    }
    return std::nullopt;
}

// What a statement made lives as long as the transaction that the row was read in.
std::optional<QByteArray> TFDCustomQuery::TemporaryBlob(int row, int64_t id) const {
    Attachment& attachment = *FPrepared->On();
    const auto elsewhere = FReadAgainIn.find(Rows().Address(row));
    const auto readIn = (elsewhere == FReadAgainIn.end() ? FReadIn : elsewhere->second).lock();
    if (readIn && readIn->Open() && readIn->IsOn(attachment))
        return ReadBlob(attachment, *readIn, id, FPrepared->IsWide());
    if (!HasKey()) throw EUnreadableText({}, u"a consulta precisa ser atualizada"_s);
    return std::nullopt;
}

// A row that took new values keeps the blobs that it had.
void TFDCustomQuery::RowMoved(uint64_t from, uint64_t to) const {
    auto known = FReadAgainIn.extract(from);
    if (known.empty()) return;
    known.key() = to;
    FReadAgainIn.insert(std::move(known));
}

bool TFDCustomQuery::HasKey() const {
    if (UpdateTable().isEmpty()) return false;
    const std::vector<WriteColumn>& columns = TableColumns();
    return std::any_of(columns.begin(), columns.end(), [](const WriteColumn& column) { return column.Key; });
}

// Of a statement without a key nobody can tell.
bool TFDCustomQuery::StillHolds(int row, int column) const {
    if (!HasKey()) return true;
    const Variant id = Rows().Value(row, column);
    const std::vector<WriteColumn> columns = KeyedColumns(row);
    const RowStore found = ReadKeyed(columns);
    if (found.Count() == 1) return found.Value(0, column) == id;
    const RowStore written = ReadWritten(columns);
    for (size_t i = 0; i < columns.size() && written.Count() == 1; ++i) {
        if (columns[i].Column == column) return written.Value(0, static_cast<int>(i)) == id;
    }
    return false;
}

// A record that is being changed keeps what was read of it: it tells by that what others changed.
void TFDCustomQuery::RenewForBlob(int row) const {
    const bool editing = (State() == dsEdit || State() == dsInsert) && row == CurrentRow();
    const bool pending = FLog && FLog->Find(Rows().Address(row));
    if (editing || pending) throw EUnreadableText({}, u"o registro foi alterado por outro usuário"_s);
    const std::vector<WriteColumn> columns = KeyedColumns(row);
    if (ReadAgain(row, columns)) return;
    const RowStore written = ReadWritten(columns);
    if (written.Count() == 0) throw EUnreadableText({}, u"o registro foi excluído por outro usuário"_s);
    TakeValues(row, columns, written);
}
