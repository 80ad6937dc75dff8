// A query's statement as prepared on its connection, with what is known of its columns.
#pragma once
#include "platform/data/fields/BaseField.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/Statement.h"
#include "platform/data/ParamScanner.h"
#include "platform/data/SqlShape.h"

namespace fichario {

struct InputValue;

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
    const ColumnList& Inputs() const { return FInputs; }
    bool HasCursor() const { return FHasCursor; }

    // What the last record was inserted with, for those who write them.
    Insertion LastInsert;

    // The prepared statement, for one use. When the one from the beginning is in use it is prepared again,
    // and what this object knows of columns follows it.
    StatementLease Take();

    // Has texts come as UTF-8 from now on, past the connection's character set. False when that cannot be, or
    // is so already.
    bool Widen();
    bool IsWide() const { return FWide; }
    // All rows of a statement that gives this one's columns.
    RowStore Read(const UnicodeString& sql, const std::vector<InputValue>& values) const;

    // Whether the column is one of `table` as the statement's main table.
    bool IsOf(const ColumnInfo& column, const UnicodeString& table) const;
    // What fields are told of their columns when posts go to `table`.
    std::vector<TFieldDescription> Describe(const UnicodeString& table) const;

  private:
    StatementLease First(const UnicodeString& sql);
    void Learn();
    void ForgetForeignTables();
    void PrepareWide();
    TFieldDescription Describe(const ColumnInfo& column, const UnicodeString& table) const;

    std::shared_ptr<Attachment> FAttachment;
    ScannedSql FSql;
    SqlShape FShape;
    StatementLease FStatement;
    ColumnList FColumns, FInputs;
    RowLayout FLayout;
    ColumnList FNarrow;  // the columns before they were wide
    bool FHasCursor = false;
    bool FWide = false;
};

}  // namespace fichario
