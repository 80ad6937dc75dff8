// SQL texts as the data layer reads them, without a database.
#include <gtest/gtest.h>
#include "platform/data/ParamScanner.h"
#include "platform/data/Sql.h"
#include "platform/data/SqlShape.h"
#include "tests/platform/data/TestDatabase.h"

using namespace fichario;

namespace {

UnicodeString Shown(const ScannedSql& sql) {
    UnicodeString places;
    for (const int place : sql.Places) places += UnicodeString::number(place);
    return sql.Text + u" | "_s + Joined(sql.Names, u","_s) + u" | "_s + places;
}

TEST(SqlText, NamedParametersBecomePositional) {
    struct {
        QStringView Sql, Result;
    } const cases[] = {
        {u"SELECT :a, :B, :A", u"SELECT ?, ?, ? | a,B | 010"},
        {u"SELECT ':x''y:z' , \"q:x\" -- :c\n/* :d */ :e",
         u"SELECT ':x''y:z' , \"q:x\" -- :c\n/* :d */ ? | e | 0"},
        {u"SELECT q'{it's :a}', Q'!:b!' , :c", u"SELECT q'{it's :a}', Q'!:b!' , ? | c | 0"},
        {u"A[1:5] = :v1$_x", u"A[1:5] = ? | v1$_x | 0"},
        {u"X = :\"com espaço\"", u"X = ? | com espaço | 0"},
        {u"A = ? AND B = :c", u"A = ? AND B = ? | 1,c | 01"},
        {u"EXECUTE BLOCK (p INT = :p) AS BEGIN x = :p; END",
         u"EXECUTE BLOCK (p INT = ?) AS BEGIN x = :p; END | p | 0"},
        {u"/* */ create trigger t as begin x = :p; end",
         u"/* */ create trigger t as begin x = :p; end |  | "},
        {u"SELECT 'open :a", u"SELECT 'open :a |  | "},
        {u"a/*:b", u"a/*:b |  | "},
        {u":", u": |  | "},
    };
    for (const auto& c : cases) EXPECT_EQ(Shown(ScanParams(c.Sql)), c.Result.toString());
}

TEST(SqlText, AStatementsMainTableIsTheFirstOfFrom) {
    struct {
        QStringView Sql, Table, Alias;
        bool Plain;
    } const cases[] = {
        {u"select * from cliente", u"CLIENTE", u"CLIENTE", true},
        {u"SELECT (SELECT 1 FROM X) FROM \"Mi x\" AS c WHERE 1=1", u"Mi x", u"C", true},
        {u"SELECT A IS DISTINCT FROM B FROM T LEFT JOIN U ON 1=1", u"T", u"T", false},
        {u"WITH Q AS (SELECT 1 FROM Z) SELECT * FROM T -- FROM W\n;", u"T", u"T", true},
        {u"SELECT * FROM (SELECT 1 A FROM T) D", u"", u"D", false},
        {u"SELECT * FROM P(1) X", u"", u"P", false},
        {u"SELECT A FROM T UNION SELECT A FROM U", u"", u"T", false},
        {u"SELECT A, COUNT(*) FROM T GROUP BY A", u"T", u"T", false},
        {u"SELECT FIRST 5 A FROM T", u"T", u"T", false},
        {u"SELECT DISTINCT A FROM T", u"T", u"T", false},
        {u"SELECT A FROM T ORDER BY A ROWS 5", u"T", u"T", false},
        {u"UPDATE T SET A = 1", u"", u"", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Sql.toString().toStdString());
        const SqlShape shape(c.Sql.toString());
        EXPECT_EQ(shape.MainTable(), c.Table.toString());
        EXPECT_EQ(shape.IsPlain(), c.Plain);
        EXPECT_EQ(shape.MainAlias(), c.Alias.toString());
    }
}

TEST(SqlText, CountingAndKeyedTexts) {
    const SqlShape shape(
        u"SELECT A, ? FROM T X JOIN U ON U.I = ? WHERE X.B = ? OR 1=1 -- c\n PLAN (T NATURAL) ORDER BY A"_s);
    EXPECT_EQ(shape.CountText(2),
              u"SELECT COUNT(*) FROM (SELECT A, ? FROM T X JOIN U ON U.I = ? WHERE X.B = ? OR 1=1 -- c\n"
              u" PLAN (T NATURAL) \n) R (C1, C2)"_s);
    EXPECT_EQ(shape.KeyedText({u"ID"_s, u"N"_s}),
              u"SELECT A, ? FROM T X JOIN U ON U.I = ? \n"
              u"WHERE (\"X\".\"ID\" = ? AND \"X\".\"N\" = ?) AND ( X.B = ? OR 1=1 -- c\n \n)"_s);
    EXPECT_EQ(shape.ParamsBeforeWhere(), 2);
    EXPECT_TRUE(
        SqlShape(u"SELECT A FROM T ORDER BY A ROWS 5"_s).CountText(1).contains(u"ORDER BY A ROWS 5\n"_s));
    EXPECT_EQ(SqlShape(u"SELECT A FROM T;"_s).KeyedText({u"I"_s}),
              u"SELECT A FROM T\nWHERE (\"T\".\"I\" = ?)"_s);
}

TEST(SqlText, QuotesAreDoubled) {
    EXPECT_EQ(QuoteIdentifier(u"a\"b"), u"\"a\"\"b\""_s);
    EXPECT_EQ(QuoteLiteral(u"O'Brien"), u"'O''Brien'"_s);
}

}  // namespace
