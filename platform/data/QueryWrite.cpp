// A query's records written to its table, and read again afterwards.
#include "platform/data/Field.h"
#include "platform/data/firebird/Cursor.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

// The columns of the record that belong to the table being written.
std::vector<WriteColumn> TFDCustomQuery::WriteColumns() const {
    const UnicodeString table = UpdateTable();
    if (table.isEmpty()) throw EDatabaseError(u"The statement has no table that records can be written to"_s);
    std::vector<WriteColumn> columns;
    for (int i = 0; i < FieldCount(); ++i) {
        const ColumnInfo& info = FPrepared->Columns()[static_cast<size_t>(i)];
        if (!FPrepared->IsOf(info, table)) continue;
        const TField& field = *FieldOfColumn(i);
        const bool blob = info.Kind == WireKind::Blob;
        const bool inKey = field.ProviderFlags() & pfInKey;
        const bool writable = (field.ProviderFlags() & pfInUpdate) && !field.Description().ReadOnly;
        const bool set = State() == dsInsert ? IsAssigned(i) : IsChanged(i);
        WriteColumn column{i,
                           info.BaseColumn,
                           field.DisplayLabel(),
                           field.DataType(),
                           {},
                           {},
                           writable && set,
                           (field.ProviderFlags() & pfInWhere) && !blob,
                           inKey};
        column.Value = blob && !set ? Variant::Null() : EditedValue(i);
        if (!blob) column.OldValue = RowValue(CurrentRow(), i);
        columns.push_back(column);
    }
    return columns;
}

// After a lost connection the statement is prepared anew, and must still give the columns that the rows here
// have.
void TFDCustomQuery::RequireWriting() {
    if (RowLayout(RequirePrepared().Columns()) == Rows().Layout()) return;
    throw EDatabaseError(u"The columns of the statement have changed; refresh the dataset"_s);
}

void TFDCustomQuery::DoPost() {
    RequireWriting();
    std::vector<WriteColumn> columns = WriteColumns();
    RecordWriter writer(*FPrepared->On(), UpdateTable(), columns);
    if (State() == dsInsert) {
        const std::vector<Variant> key = writer.Insert();
        size_t next = 0;
        for (WriteColumn& column : columns) {
            if (column.Key) column.Value = key[next++];
        }
    } else {
        writer.Update();
    }
    RenewRow(columns);
}

void TFDCustomQuery::DoDelete() {
    RequireWriting();
    std::vector<WriteColumn> columns = WriteColumns();
    for (WriteColumn& column : columns) column.Write = false;
    RecordWriter(*FPrepared->On(), UpdateTable(), columns).Delete();
}

// The record is written: a failure to read it again must not look like a failure to write it, and shows at
// the next call.
void TFDCustomQuery::RenewRow(const std::vector<WriteColumn>& columns) {
    try {
        if (!ReadAgain(columns)) TakeValues(columns, ReadWritten(columns));
    } catch (const EFDError&) {
        TakeValues(columns, {});
    }
}

// Runs the statement for this record alone, so that computed and joined columns are right too.
bool TFDCustomQuery::ReadAgain(const std::vector<WriteColumn>& columns) {
    const SqlShape& shape = FPrepared->Shape();
    TStringArray names;
    std::vector<InputValue> key;
    for (const WriteColumn& column : columns) {
        if (!column.Key) continue;
        names.push_back(column.Name);
        key.push_back({column.Value, column.Type});
    }
    if (names.empty() || !shape.IsPlain() || UpdateTable() != shape.MainTable()) return false;
    std::vector<InputValue> values = Inputs();
    values.insert(values.begin() + shape.ParamsBeforeWhere(), key.begin(), key.end());
    const RowStore found = ReadRows(*FPrepared->On(), shape.KeyedText(names), values);
    if (found.Count() != 1 || !(found.Layout() == Rows().Layout())) return false;
    Rows().CopyRow(CurrentRow(), found, 0);
    return true;
}

// The record's columns of its own table: for one that no longer is among the statement's rows.
RowStore TFDCustomQuery::ReadWritten(const std::vector<WriteColumn>& columns) {
    TStringArray names, conditions;
    std::vector<InputValue> key;
    for (const WriteColumn& column : columns) {
        names.push_back(QuoteIdentifier(column.Name));
        if (!column.Key) continue;
        conditions.push_back(names.back() + u" = ?"_s);
        key.push_back({column.Value, column.Type});
    }
    if (conditions.empty()) return {};
    const UnicodeString sql = u"SELECT "_s + Joined(names, u", "_s) + u" FROM "_s +
                              QuoteIdentifier(UpdateTable()) + u" WHERE "_s + Joined(conditions, u" AND "_s);
    return ReadRows(*FPrepared->On(), sql, key);
}

// The row takes what its table holds now, or, when that cannot be asked for, what was written.
void TFDCustomQuery::TakeValues(const std::vector<WriteColumn>& columns, const RowStore& written) {
    std::vector<Variant> values;
    for (int i = 0; i < FieldCount(); ++i) values.push_back(Rows().Value(CurrentRow(), i));
    int next = 0;
    for (const WriteColumn& column : columns) {
        Variant& value = values[static_cast<size_t>(column.Column)];
        const bool blob = column.Type == ftMemo || column.Type == ftBlob;
        if (written.Count() == 1) {
            value = written.Value(0, next++);
        } else if (!blob) {
            value = column.Value;
        }
    }
    Rows().SetValues(CurrentRow(), values);
}
