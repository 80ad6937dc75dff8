// A query's records read again, by their keys.
#include <algorithm>
#include <QVarLengthArray>
#include "platform/data/Field.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

// Only the key matters: all else is read.
void TFDCustomQuery::DoRenew(int row) const {
    RenewRow(row, KeyedColumns(row));
}

// The table's columns with the values of a row.
std::vector<WriteColumn> TFDCustomQuery::KeyedColumns(int row) const {
    std::vector<WriteColumn> columns = TableColumns();
    for (WriteColumn& column : columns) column.Value = Rows().ValueOrBytes(row, column.Column);
    return columns;
}

// The record is written: a failure to read it again must not look like a failure to write it, and shows at
// the next call.
void TFDCustomQuery::RenewRow(int row, const std::vector<WriteColumn>& columns) const {
    try {
        if (!ReadAgain(row, columns)) TakeValues(row, columns, ReadWritten(columns));
    } catch (const EFDError&) {
        TakeValues(row, columns, {});
    }
}

bool TFDCustomQuery::ReadAgain(int row, const std::vector<WriteColumn>& columns) const {
    const RowStore found = ReadKeyed(columns);
    if (found.Count() != 1 || !(found.Layout() == Rows().Layout())) return false;
    Rows().CopyRow(row, found, 0);
    const std::shared_ptr<Transaction> readIn = FPrepared->On()->Reading();
    if (FReadIn.lock() != readIn) FReadAgainIn[Rows().Address(row)] = readIn;
    return true;
}

// Runs the statement for this record alone, so that computed and joined columns are right too; no rows when
// it cannot be run so.
RowStore TFDCustomQuery::ReadKeyed(const std::vector<WriteColumn>& columns) const {
    const SqlShape& shape = FPrepared->Shape();
    TStringArray names;
    std::vector<InputValue> key;
    for (const WriteColumn& column : columns) {
        if (!column.Key) continue;
        names.push_back(column.Name);
        key.emplace_back(column.Value, column.Type);
    }
    if (names.empty() || !shape.IsPlain() || FColumnsTable != shape.MainTable()) return {};
    std::vector<InputValue> values = InputsOf(FOpenedWith);
    values.insert(values.begin() + shape.ParamsBeforeWhere(), key.begin(), key.end());
    return FPrepared->Read(shape.KeyedText(names), values);
}

bool TFDCustomQuery::DoHolds(const std::vector<Variant>& key) {
    if (!HasKey()) return false;
    std::vector<WriteColumn> columns = TableColumns();
    const std::vector<int> places = KeyColumns();
    if (key.size() != places.size()) return false;
    for (WriteColumn& column : columns) {
        const auto place = std::find(places.begin(), places.end(), column.Column);
        if (place != places.end()) column.Value = key[static_cast<size_t>(place - places.begin())];
    }
    return ReadKeyed(columns).Count() > 0;
}

// The record's columns of its own table: for one that no longer is among the statement's rows.
RowStore TFDCustomQuery::ReadWritten(const std::vector<WriteColumn>& columns) const {
    TStringArray names, conditions;
    std::vector<InputValue> key;
    for (const WriteColumn& column : columns) {
        names.push_back(QuoteIdentifier(column.Name));
        if (!column.Key) continue;
        conditions.push_back(names.back() + u" = ?"_s);
        key.emplace_back(column.Value, column.Type);
    }
    if (conditions.empty()) return {};
    const UnicodeString sql = u"SELECT "_s + Joined(names, u", "_s) + u" FROM "_s +
                              QuoteIdentifier(FColumnsTable) + u" WHERE "_s + Joined(conditions, u" AND "_s);
    return ReadWhole(FPrepared->On(), sql, key);
}

// The row takes what its table holds now, or, when that cannot be asked for, what was written.
void TFDCustomQuery::TakeValues(int row, const std::vector<WriteColumn>& columns,
                                const RowStore& written) const {
    static const Variant null = Variant::Null();
    const bool isNew = State() == dsInsert && row == CurrentRow();
    const std::vector<Variant> read = isNew ? std::vector<Variant>() : ValuesOf(row);
    QVarLengthArray<const Variant*, 64> values(FieldCount(), &null);
    for (size_t i = 0; i < read.size(); ++i) values[static_cast<qsizetype>(i)] = &read[i];
    for (const WriteColumn& column : columns) {
        const bool blob = column.Type == ftMemo || column.Type == ftBlob;
        if (!blob) values[column.Column] = &column.Value;
    }
    std::vector<Variant> stored;
    if (written.Count() == 1) {
        stored.reserve(columns.size());
        for (size_t i = 0; i < columns.size(); ++i) {
            stored.push_back(written.ValueOrBytes(0, static_cast<int>(i)));
            values[columns[i].Column] = &stored.back();
        }
    }
    const uint64_t before = Rows().Address(row);
    Rows().SetValues(row, std::span<const Variant* const>(values.data(), static_cast<size_t>(values.size())));
    DoRowMoved(before, Rows().Address(row));
}
