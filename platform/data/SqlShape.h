// What a SELECT is made of, as far as counting its rows, reading one of them again and writing to its main
// table need.
//
//     SqlShape shape(u"SELECT C.ID, C.NM FROM CLIENTE C WHERE C.NM = ? ORDER BY 2");
//     shape.MainTable();                 // CLIENTE, read in the text as C
//     shape.CountText(2);                // SELECT COUNT(*) FROM (SELECT … WHERE C.NM = ?) R (C1, C2)
//     shape.KeyedText({u"ID"});          // SELECT … WHERE (C."ID" = ?) AND (C.NM = ?)
#pragma once
#include <QStringView>
#include <vector>
#include "platform/rtl/Types.h"

namespace fichario {

class SqlShape {
  public:
    // `sql` with positional parameters.
    explicit SqlShape(const UnicodeString& sql);

    // A SELECT (WITH … included); false for all other statements.
    bool IsSelect() const { return FFrom >= 0; }
    // The first table of FROM; empty when there is none: not a SELECT, several joined by UNION, a derived
    // table.
    const UnicodeString& MainTable() const { return FMainTable; }
    // The name under which the text speaks of the main table: its alias, or its own name, both as the server
    // knows them.
    const UnicodeString& MainAlias() const { return FMainAlias; }
    // FROM names more than one source.
    bool IsJoin() const { return FJoin; }
    // Parts joined by UNION: what comes out is of no table.
    bool IsUnion() const { return FUnion; }
    // Column `column` of `columns`, from 0, is a SELECT in parentheses; false also behind a * when another
    // one follows, where nobody can tell.
    bool IsSelected(int column, int columns) const;
    // One row of the result is one row of the main table or of a join on it: no GROUP BY, DISTINCT, FIRST,
    // ROWS.
    bool IsPlain() const { return FPlain && !FMainTable.isEmpty(); }

    // A statement that selects `items` of this one, whose columns they name R.C1, R.C2 and so on. Same
    // parameters.
    UnicodeString AroundText(const TStringArray& items) const;

    // A statement that counts the rows of this one; `columns` is how many columns it has. Same parameters.
    UnicodeString CountText(int columns) const;

    // This statement restricted to the rows whose main table has the given key columns equal to new
    // parameters, which come behind the first ParamsBeforeWhere parameters. Only for a plain statement.
    UnicodeString KeyedText(const TStringArray& keyColumns) const;
    int ParamsBeforeWhere() const { return FParamsBeforeWhere; }

  private:
    friend class SqlShapeReader;
    UnicodeString Around(const UnicodeString& items, qsizetype end, size_t columns) const;

    enum class Item : char { Value, Star, Select };

    UnicodeString FText, FMainTable, FMainAlias;
    qsizetype FFrom = -1, FWhere = -1, FConditionsEnd = -1, FOrder = -1, FEnd = 0;
    int FParamsBeforeWhere = 0;
    bool FJoin = false, FPlain = true, FUnion = false;
    std::vector<Item> FItems;  // of the column list
};

}  // namespace fichario
