// A query's statement as prepared on its connection, with what is known of its columns.
#pragma once
#include <limits>
#include "platform/data/fields/BaseField.h"
#include "platform/data/firebird/BoundStatement.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/Statement.h"
#include "platform/data/ParamScanner.h"
#include "platform/data/SqlShape.h"

namespace fichario {

class PreparedQuery {
  public:
    // EDatabaseError, EFDError.
    PreparedQuery(std::shared_ptr<Attachment> attachment, const UnicodeString& sql);

    const std::shared_ptr<Attachment>& On() const { return FAttachment; }
    const ScannedSql& Sql() const { return FSql; }
    const SqlShape& Shape() const { return FShape; }
    const ColumnList& Columns() const { return FColumns; }
    // How rows of these columns are kept.
    const RowLayout& Layout() const { return FLayout; }
    bool HasCursor() const { return FHasCursor; }

    // What the last record was inserted with, for those who write them.
    Insertion LastInsert;

    // The prepared statement with its input, for one use. When the one from the beginning is in use, or
    // `values` need casts, it is prepared again, and what this object knows of columns follows it.
    BoundStatement Bind(const std::vector<InputValue>& values);

    // Has texts come as UTF-8 from now on, past the connection's character set. False when that cannot be, or
    // is so already.
    bool Widen();
    // As before Widen, when that was of no use.
    void Narrow();
    bool IsWide() const { return FWide; }
    // All rows of a statement that gives this one's columns.
    RowStore Read(const UnicodeString& sql, const std::vector<InputValue>& values) const;

    // Whether the column is one of `table` as the statement's main table.
    bool IsOf(const ColumnInfo& column, const UnicodeString& table) const;
    // What fields are told of their columns when posts go to `table`.
    std::vector<TFieldDescription> Describe(const UnicodeString& table) const;

  private:
    StatementLease First(const UnicodeString& sql);
    void PrepareAgain();
    void Learn(Statement& statement);
    void ForgetForeignTables();
    TFieldDescription Describe(const ColumnInfo& column, const UnicodeString& table) const;

    std::shared_ptr<Attachment> FAttachment;
    ScannedSql FSql;
    SqlShape FShape;
    StatementLease FStatement;
    ColumnList FColumns;
    RowLayout FLayout;
    ColumnList FNarrow;  // the columns before they were wide
    bool FHasCursor = false;
    bool FWide = false;
};

// All rows of a SELECT, past the connection's set where a stored character lies outside it.
RowStore ReadWhole(const std::shared_ptr<Attachment>& attachment, const UnicodeString& sql,
                   const std::vector<InputValue>& values, int most = std::numeric_limits<int>::max());

}  // namespace fichario
