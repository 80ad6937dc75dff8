// A query's records written to its table.
#include <algorithm>
#include <QVarLengthArray>
#include <utility>
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/Blob.h"
#include "platform/data/firebird/Metadata.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/SameValue.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

namespace {

// Fills in the key's values, where there are any.
void TakeKey(std::vector<WriteColumn>& columns, const std::vector<Variant>& key) {
    auto next = key.begin();
    for (WriteColumn& column : columns) {
        if (column.Key && next != key.end()) column.Value = *next++;
    }
}

// A key that the server made proves by itself whose record it is, whatever triggers made of the rest.
std::vector<WriteColumn> DoubtfulOf(std::vector<WriteColumn> columns, const std::vector<Variant>& key) {
    const auto made = [](const WriteColumn& column) { return column.Key && column.Value.IsNull(); };
    const bool proof = std::any_of(columns.begin(), columns.end(), made);
    TakeKey(columns, key);
    for (WriteColumn& column : columns) column.Write = column.Write && !proof;
    return columns;
}

UnicodeString WithoutBlanks(UnicodeString text) {
    while (text.endsWith(u' ')) text.chop(1);
    return text;
}

}  // namespace

// The columns that belong to the table being written, with the values of whichever record was there last.
std::vector<WriteColumn>& TFDCustomQuery::TableColumns() const {
    if (FColumnsVersion == FieldsVersion()) return FTableColumns;
    FColumnsTable = UpdateTable();
    if (FColumnsTable.isEmpty())
        throw EDatabaseError(u"The statement has no table that records can be written to"_s);
    FTableColumns = DescribeTable(FColumnsTable);
    FSomeAgain = std::any_of(FTableColumns.begin(), FTableColumns.end(),
                             [](const WriteColumn& column) { return column.Again; });
    FColumnsVersion = FieldsVersion();
    return FTableColumns;
}

std::vector<WriteColumn> TFDCustomQuery::DescribeTable(const UnicodeString& table) const {
    const TableInfo& known = FPrepared->On()->Tables().Table(table);
    std::vector<WriteColumn> columns;
    columns.reserve(static_cast<size_t>(FieldCount()));
    // A table altered while the connection was lost may give fewer columns than there are fields.
    const int count = std::min(FieldCount(), static_cast<int>(FPrepared->Columns().size()));
    for (int i = 0; i < count; ++i) {
        const ColumnInfo& info = FPrepared->Columns()[static_cast<size_t>(i)];
        if (!FPrepared->IsOf(info, table)) continue;
        const TField& field = *FieldOfColumn(i);
        WriteColumn& column = columns.emplace_back();
        column.Column = i;
        column.Name = info.BaseColumn;
        column.Label = field.DisplayLabel();
        column.Type = field.DataType();
        const TableColumn* facts = known.Find(info.BaseColumn);
        if (facts) column.CharacterSet = static_cast<unsigned>(facts->CharacterSet);
        if (field.ProviderFlags() & pfInWhere) column.Same = SameValue(column.Name, facts);
        column.Largest = field.Description().Largest;
        column.CanWrite = (field.ProviderFlags() & pfInUpdate) && !field.Description().ReadOnly;
        column.Key = field.ProviderFlags() & pfInKey;
        column.Again = std::any_of(columns.begin(), columns.end() - 1,
                                   [&](const WriteColumn& other) { return other.Name == column.Name; });
    }
    return columns;
}

// The record being written, with its values, in the table's columns.
std::vector<WriteColumn>& TFDCustomQuery::WriteColumns() const {
    std::vector<WriteColumn>& columns = TableColumns();
    for (WriteColumn& column : columns) State() == dsInsert ? TakeNew(column) : TakeChanged(column);
    if (FSomeAgain) WriteOnce(columns);
    return columns;
}

// A base column that the statement gives twice is written once, with what was set last.
void TFDCustomQuery::WriteOnce(std::vector<WriteColumn>& columns) const {
    for (WriteColumn& column : columns) {
        if (!column.Again || !column.Write) continue;
        for (WriteColumn* other = columns.data(); other != &column; ++other) {
            if (!other->Write || other->Name != column.Name) continue;
            (Turn(other->Column) > Turn(column.Column) ? column : *other).Write = false;
        }
    }
}

void TFDCustomQuery::TakeNew(WriteColumn& column) const {
    const Variant* value = Assigned(column.Column);
    column.Write = column.CanWrite && value;
    if (!column.OldValue.IsUnassigned()) column.OldValue = Variant();
    if (value) {
        column.Value = *value;
    } else {
        column.Value = Variant::Null();
    }
}

void TFDCustomQuery::TakeChanged(WriteColumn& column) const {
    const bool blob = Rows().Layout().IsBlob(column.Column);
    const bool changed = IsChanged(column.Column);
    column.Write = column.CanWrite && changed;
    column.OldValue = blob ? BlobBefore(column.Column) : RowValueOrBytes(CurrentRow(), column.Column);
    column.Value = changed ? EditedValue(column.Column) : column.OldValue;
}

// After a lost connection the statement is prepared anew, and must still give the columns that the rows here
// have.
void TFDCustomQuery::RequireWriting() {
    const PreparedQuery& prepared = RequirePrepared();
    FFits = FFits || prepared.Layout() == Rows().Layout();
    if (FFits) return;
    throw EDatabaseError(u"The columns of the statement have changed; refresh the dataset"_s);
}

// In a host's transaction nobody else can change the record: unless a control reads it at once, it is read
// again when it is first looked at, so that many posts in a row cost no more than their statements.
void TFDCustomQuery::DoPost() {
    if (FLog) return LogPost();
    RequireConnection().Lasting(TFDCustomConnection::Use::Writing, [this] {
        RequireWriting();
        Write(WriteColumns());
    });
    const std::vector<WriteColumn>& columns = FTableColumns;
    if (Heard() || !FPrepared->On()->Host()) return RenewRow(CurrentRow(), columns);
    TakeValues(CurrentRow(), columns, {});
    Rows().SetOutdated(CurrentRow());
}

void TFDCustomQuery::DoDelete() {
    if (FLog) return LogDelete();
    RequireConnection().Lasting(TFDCustomConnection::Use::Writing, [this] { DeleteRecord(); });
}

void TFDCustomQuery::DeleteRecord() {
    RequireWriting();
    std::vector<WriteColumn>& columns = WriteColumns();
    for (WriteColumn& column : columns) {
        column.Write = false;
        column.Value = column.OldValue;
    }
    const auto gone = [&] { return ReadWritten(columns).Count() == 0; };
    const std::vector<Variant> key = CurrentKey();
    const bool done = !key.empty() && FDoubtfulDeletion == key && gone();
    FDoubtfulDeletion.clear();
    if (done) return;
    RecordWriter writer(*FPrepared->On(), FColumnsTable, columns);
    try {
        writer.Delete();
    } catch (const EFDError&) {
        if (!writer.InDoubt()) throw;
        if (IsSoAnew(gone)) return;
        FDoubtfulDeletion = key;
        throw;
    }
}

// ---- a commit in doubt ----

// Whether `check` finds on a new connection that what was lost in the commit had been done. False also when
// nobody can be asked.
template <class Check>
bool TFDCustomQuery::IsSoAnew(Check check) {
    try {
        RequireWriting();
        return check();
    } catch (const EDatabaseError&) {
        return false;
    }
}

// A connection lost during the commit tells nothing of the record: that is read before anything is said, and,
// when that cannot be now, before it is written again.
void TFDCustomQuery::Write(std::vector<WriteColumn>& columns) {
    const bool stored = TakeStored(columns);
    const std::vector<WriteColumn> before = FRemember ? columns : std::vector<WriteColumn>();
    RecordWriter writer(*FPrepared->On(), FColumnsTable, columns);
    std::vector<Variant> key;
    try {
        if (State() == dsInsert && !stored) {
            key = writer.Insert(FPrepared->LastInsert);
            TakeKey(columns, key);
        } else {
            writer.Update();
        }
        if (FRemember) FWritten = DoubtfulOf(before, key);
    } catch (const EFDError&) {
        if (!writer.InDoubt()) throw;
        Doubtful() = DoubtfulOf(columns, writer.DoubtfulKey());
        if (!IsSoAnew([&] { return IsStored(*Doubtful()); })) throw;
        TakeKey(columns, writer.DoubtfulKey());
    }
}

bool TFDCustomQuery::WrittenIsStored() {
    return IsSoAnew([this] { return IsStored(*FWritten); });
}

bool TFDCustomQuery::DoubtfulIsStored() {
    FWritten.reset();
    if (!Doubtful()) return false;
    RequireWriting();
    return IsStored(*Doubtful());
}

// Whether the doubtful record is stored; `columns` then are what is left to change in it.
bool TFDCustomQuery::TakeStored(std::vector<WriteColumn>& columns) const {
    if (!Doubtful() || !IsStored(*Doubtful())) return false;
    for (size_t i = 0; i < columns.size(); ++i) {
        const WriteColumn& before = (*Doubtful())[i];
        WriteColumn& now = columns[i];
        const bool written = now.Write || before.Write;
        if (written && !now.Write) now.Value = EditedValue(now.Column);
        if (now.Key && now.Value.IsNull()) now.Value = before.Value;
        if (written || now.Key) now.OldValue = before.Value;
        now.Write = written && !(now.Value == before.Value);
    }
    return true;
}

// Whether the table holds what was written.
bool TFDCustomQuery::IsStored(const std::vector<WriteColumn>& columns) const {
    const RowStore found = ReadWritten(columns);
    if (found.Count() != 1) return false;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].Write && !Holds(found, static_cast<int>(i), columns[i])) return false;
    }
    return true;
}

// Blanks at the end of a text are not kept everywhere.
bool TFDCustomQuery::Holds(const RowStore& found, int place, const WriteColumn& column) const {
    Variant stored = found.ValueOrBytes(0, place);
    if (found.Layout().IsBlob(place) && !stored.IsNull()) {
        Attachment& attachment = *FPrepared->On();
        const bool wide = found.Layout().Encoding(place) == TextEncoding::Utf8Signs;
        const QByteArray bytes = ReadBlob(attachment, *attachment.Reading(), stored.ToInt64(), wide);
        stored = column.Type == ftBlob ? Variant(bytes)
                                       : Variant(DecodeText(found.Layout().Encoding(place), bytes));
    }
    if (stored.Kind() != vkText || column.Value.Kind() != vkText) return stored == column.Value;
    return WithoutBlanks(stored.ToText()) == WithoutBlanks(column.Value.ToText());
}
