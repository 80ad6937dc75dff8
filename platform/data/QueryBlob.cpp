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

// One that the statement made tells nothing of what the record holds.
bool IsSame(const Variant& now, const Variant& before) {
    return now == before || (!now.IsNull() && IsTemporaryBlob(now.ToInt64()));
}

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
    const int64_t id = Rows().Value(row, column).ToInt64();
    if (IsTemporaryBlob(id)) return TemporaryBlob(row, column, id);
    QByteArray bytes;
    try {
        bytes = ReadStored(column, id);
    } catch (const EFDError& error) {
        // What the identity leads to when it is nobody's any more, the server tells in many ways.
        if (!error.ConnectionUsable || error.BrokenOff || StillHolds(row, column)) throw;
        return std::nullopt;
    }
    return StillHolds(row, column) ? std::optional(bytes) : std::nullopt;
}

// In the encoding of the row's column. A wide statement gives a stored memo itself when that is in UTF-8;
// others come so only from the table, when the record was read again there.
QByteArray TFDCustomQuery::ReadStored(int column, int64_t id) const {
    Attachment& attachment = *FPrepared->On();
    const bool wide = IsWide(column), asIs = wide && !IsOfOtherSet(column);
    const QByteArray bytes = ReadBlob(attachment, *attachment.Reading(), id, asIs);
    return wide && !asIs ? DecodeText(attachment.Encoding(), bytes).toUtf8() : bytes;
}

bool TFDCustomQuery::IsOfOtherSet(int column) const {
    if (UpdateTable().isEmpty()) return false;
    const std::vector<WriteColumn>& columns = TableColumns();
    return std::any_of(columns.begin(), columns.end(), [&](const WriteColumn& own) {
        return own.Column == column && own.CharacterSet != kUtf8Set;
    });
}

bool TFDCustomQuery::IsWide(int column) const {
    return Rows().Layout().Encoding(column) == TextEncoding::Utf8Signs;
}

// What a statement made lives as long as the transaction that the row was read in; afterwards it is made once
// more.
std::optional<QByteArray> TFDCustomQuery::TemporaryBlob(int row, int column, int64_t id) const {
    Attachment& attachment = *FPrepared->On();
    const auto elsewhere = FReadAgainIn.find(Rows().Address(row));
    const auto readIn = (elsewhere == FReadAgainIn.end() ? FReadIn : elsewhere->second).lock();
    if (readIn && readIn->Open() && readIn->IsOn(attachment))
        return ReadBlob(attachment, *readIn, id, IsWide(column));
    const RowStore found = HasKey() ? ReadKeyed(KeyedColumns(row)) : RowStore();
    if (found.Count() != 1 || !(found.Layout() == Rows().Layout()))
        throw EUnreadableText({}, u"a consulta precisa ser atualizada"_s);
    const Variant again = found.Value(0, column);
    if (again.IsNull()) return std::nullopt;
    return ReadBlob(attachment, *attachment.Reading(), again.ToInt64(), IsWide(column));
}

// A row that took new values keeps the blobs that it had.
void TFDCustomQuery::DoRowMoved(uint64_t from, uint64_t to) const {
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

// Of a statement without a key nobody can tell, nor of a joined table's column where several rows have the
// key.
bool TFDCustomQuery::StillHolds(int row, int column) const {
    if (!HasKey()) return true;
    const Variant id = Rows().Value(row, column);
    const std::vector<WriteColumn> columns = KeyedColumns(row);
    const RowStore found = ReadKeyed(columns);
    if (found.Count() > 0) return found.Count() > 1 || IsSame(found.Value(0, column), id);
    const auto own = std::find_if(columns.begin(), columns.end(),
                                  [&](const WriteColumn& other) { return other.Column == column; });
    if (own == columns.end()) return true;
    const RowStore written = ReadWritten(columns);
    return written.Count() == 1 && IsSame(written.Value(0, static_cast<int>(own - columns.begin())), id);
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
