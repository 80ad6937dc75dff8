#include "platform/data/firebird/Metadata.h"

#include <algorithm>
#include "platform/data/firebird/SqlRunner.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

const UnicodeString kKeySql =
    u"SELECT s.RDB$FIELD_NAME FROM RDB$RELATION_CONSTRAINTS c "
    u"JOIN RDB$INDEX_SEGMENTS s ON s.RDB$INDEX_NAME = c.RDB$INDEX_NAME "
    u"WHERE c.RDB$RELATION_NAME = ? AND c.RDB$CONSTRAINT_TYPE = 'PRIMARY KEY' ORDER BY s.RDB$FIELD_POSITION"_s;

// A default is told by its presence: its text is a blob that need not be read.
const UnicodeString kColumnSql =
    u"SELECT rf.RDB$FIELD_NAME, COALESCE(rf.RDB$NULL_FLAG, 0) + COALESCE(f.RDB$NULL_FLAG, 0), "
    u"IIF(rf.RDB$DEFAULT_SOURCE IS NULL AND f.RDB$DEFAULT_SOURCE IS NULL, 0, 1), "
    u"IIF(f.RDB$COMPUTED_BLR IS NULL AND COALESCE(rf.RDB$UPDATE_FLAG, 1) <> 0, 0, 1), "
    u"IIF(rf.RDB$IDENTITY_TYPE IS NULL, 0, 1), COALESCE(f.RDB$CHARACTER_SET_ID, 0), f.RDB$FIELD_TYPE, "
    u"COALESCE(f.RDB$CHARACTER_LENGTH, 0), COALESCE(rf.RDB$COLLATION_ID, f.RDB$COLLATION_ID, 0), "
    u"COALESCE(s.RDB$CHARACTER_SET_NAME, ''), COALESCE(s.RDB$BYTES_PER_CHARACTER, 1) "
    u"FROM RDB$RELATION_FIELDS rf JOIN RDB$FIELDS f ON f.RDB$FIELD_NAME = rf.RDB$FIELD_SOURCE "
    u"LEFT JOIN RDB$CHARACTER_SETS s ON s.RDB$CHARACTER_SET_ID = f.RDB$CHARACTER_SET_ID "
    u"WHERE rf.RDB$RELATION_NAME = ?"_s;

}  // namespace

bool TableInfo::InKey(const UnicodeString& column) const {
    return std::find(Key.begin(), Key.end(), column) != Key.end();
}

const TableColumn* TableInfo::Find(const UnicodeString& column) const {
    const auto found = Columns.find(column);
    return found == Columns.end() ? nullptr : &found->second;
}

TableInfo Metadata::Read(const UnicodeString& name) {
    TableInfo table;
    const Variant wanted = name;
    const RowStore keys = ReadRows(FAttachment, kKeySql, {{wanted}});
    for (int i = 0; i < keys.Count(); ++i) table.Key.push_back(keys.Value(i, 0).ToText());
    const RowStore columns = ReadRows(FAttachment, kColumnSql, {{wanted}});
    for (int i = 0; i < columns.Count(); ++i) {
        const auto number = [&](int column) { return columns.Value(i, column).ToInt(); };
        const auto flag = [&](int column) { return number(column) != 0; };
        table.Columns[columns.Value(i, 0).ToText()] = {flag(1),
                                                       flag(2),
                                                       flag(3),
                                                       flag(4),
                                                       number(5),
                                                       {static_cast<TextFacts::Kind>(number(6)), number(7),
                                                        flag(8), columns.Value(i, 9).ToText(), number(10)}};
    }
    return table;
}

const TableInfo& Metadata::Table(const UnicodeString& name) {
    const auto known = FTables.find(name);
    return known != FTables.end() ? known->second : FTables.emplace(name, Read(name)).first->second;
}

}  // namespace fichario
