#include "platform/data/PreparedQuery.h"

#include <cmath>
#include <utility>

#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/Metadata.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/firebird/WideText.h"
#include "platform/data/Searchable.h"

namespace fichario {

namespace {

// In digits that a double's text of 15 digits writes exactly.
double LargestOf(const ColumnInfo& column) {
    const double unit = std::pow(10.0, column.Scale);
    switch (column.Kind) {
        case WireKind::Short: return 32767 / unit;
        case WireKind::Long: return 2147483647 / unit;
        case WireKind::Int64: return 9.22337203685477e18 / unit;
        case WireKind::Float: return 3.40282e38;
        default: return 0;
    }
}

}  // namespace

PreparedQuery::PreparedQuery(std::shared_ptr<Attachment> attachment, const UnicodeString& sql)
    : FAttachment(std::move(attachment)),
      FSql(ScanParams(
          Searchable(sql, [&](QStringView text) { return FirstForeign(FAttachment->Encoding(), text); }))),
      FShape(FSql.Text),
      FStatement(First(sql)) {
    Learn(*FStatement);
}

// A literal is brought into its column's set while the statement is prepared.
StatementLease PreparedQuery::First(const UnicodeString& sql) {
    try {
        return FAttachment->Prepare(FSql.Text);
    } catch (const EFDError& error) {
        if (!error.Has(kTransliteration)) throw;
        const auto doubtful = [&](QStringView text) {
            return FirstDoubtful(FAttachment->CharacterSet(), text);
        };
        FSql = ScanParams(Searchable(sql, doubtful));
        FShape = SqlShape(FSql.Text);
        return FAttachment->Prepare(FSql.Text);
    }
}

void PreparedQuery::Learn(Statement& statement) {
    if (FShape.IsJoin() && !FWide) statement.DescribeAliases();
    FColumns = FWide ? WideColumns(FNarrow, statement.Columns()) : statement.Columns();
    ForgetForeignTables();
    FLayout = RowLayout(FColumns);
    FHasCursor = statement.HasCursor();
}

// The server tells the table inside a SELECT among the columns, and that of a UNION's first part.
void PreparedQuery::ForgetForeignTables() {
    const int count = static_cast<int>(FColumns.size());
    for (int i = 0; i < count; ++i) {
        if (!FShape.IsUnion() && !FShape.IsSelected(i, count)) continue;
        ColumnInfo& column = FColumns[static_cast<size_t>(i)];
        column.BaseTable = column.BaseColumn = column.BaseAlias = UnicodeString();
    }
}

void PreparedQuery::PrepareAgain() {
    FStatement = FAttachment->Prepare(FWide ? FShape.AroundText(WideItems(FNarrow)) : FSql.Text);
    Learn(*FStatement);
}

BoundStatement PreparedQuery::Bind(const std::vector<InputValue>& values) {
    if (FStatement && !FStatement->IsCurrent()) FStatement = {};
    if (!FStatement) PrepareAgain();
    BoundStatement bound(*FAttachment, std::move(FStatement), values);
    if (bound.Cast()) Learn(*bound.Statement);
    return bound;
}

bool PreparedQuery::Widen() {
    if (FWide || !FHasCursor || !FShape.IsSelect()) return false;
    FNarrow = FColumns;
    FWide = true;
    try {
        PrepareAgain();
    } catch (const EFDError& error) {
        FWide = false;
        if (!error.Has(kSqlError)) throw;
    }
    return FWide;
}

void PreparedQuery::Narrow() {
    if (!std::exchange(FWide, false)) return;
    FStatement = {};
    FColumns = FNarrow;
    FLayout = RowLayout(FColumns);
}

RowStore PreparedQuery::Read(const UnicodeString& sql, const std::vector<InputValue>& values) const {
    if (!FWide) return ReadRows(*FAttachment, sql, values);
    return ReadRows(*FAttachment, SqlShape(sql).AroundText(WideItems(FNarrow)), values, &FNarrow);
}

bool PreparedQuery::IsOf(const ColumnInfo& column, const UnicodeString& table) const {
    if (column.BaseTable.isEmpty() || column.BaseTable != table) return false;
    return column.BaseAlias.isEmpty() || table != FShape.MainTable() ||
           column.BaseAlias == FShape.MainAlias();
}

TFieldDescription PreparedQuery::Describe(const ColumnInfo& column, const UnicodeString& table) const {
    TFieldDescription description;
    description.Type = FieldTypeOf(column);
    description.Size = IsText(column.Kind) ? column.Characters : column.Scale;
    description.Largest = LargestOf(column);
    description.BaseColumn = column.BaseColumn;
    description.BaseTable = column.BaseTable;
    description.ReadOnly = !table.isEmpty() && !IsOf(column, table);
    if (!IsOf(column, table)) return description;

    const TableInfo& known = FAttachment->Tables().Table(table);
    if (known.InKey(column.BaseColumn)) description.ProviderFlags |= pfInKey;
    if (const TableColumn* facts = known.Find(column.BaseColumn)) {
        description.Required = facts->NotNull && !facts->HasDefault && !facts->Computed && !facts->Identity;
        description.Computed = description.ReadOnly = facts->Computed;
    }
    return description;
}

std::vector<TFieldDescription> PreparedQuery::Describe(const UnicodeString& table) const {
    std::vector<TFieldDescription> descriptions;
    for (const ColumnInfo& column : FColumns) descriptions.push_back(Describe(column, table));
    return descriptions;
}

// Such a character fails its whole row.
RowStore ReadWhole(const std::shared_ptr<Attachment>& attachment, const UnicodeString& sql,
                   const std::vector<InputValue>& values, int most) {
    try {
        return ReadRows(*attachment, sql, values, nullptr, most);
    } catch (const EFDError& error) {
        if (!error.Has(kTransliteration)) throw;
        PreparedQuery wide(attachment, sql);
        if (!wide.Widen()) throw;
        return wide.Read(wide.Sql().Text, values);
    }
}

}  // namespace fichario
