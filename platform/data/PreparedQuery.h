// A query's statement as prepared on its connection, with what is known of its columns.
#pragma once
#include "platform/data/fields/BaseField.h"
#include "platform/data/firebird/RowLayout.h"
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
    const ColumnList& Inputs() const { return FInputs; }
    bool HasCursor() const { return FHasCursor; }

    // The prepared statement, for one use. When the one from the beginning is in use it is prepared again,
    // and what this object knows of columns follows it.
    StatementLease Take();

    // Whether the column is one of `table` as the statement's main table.
    bool IsOf(const ColumnInfo& column, const UnicodeString& table) const;
    // What fields are told of their columns when posts go to `table`.
    std::vector<TFieldDescription> Describe(const UnicodeString& table) const;

  private:
    void Learn();
    TFieldDescription Describe(const ColumnInfo& column, const UnicodeString& table) const;

    std::shared_ptr<Attachment> FAttachment;
    ScannedSql FSql;
    SqlShape FShape;
    StatementLease FStatement;
    ColumnList FColumns, FInputs;
    bool FHasCursor = false;
};

}  // namespace fichario
