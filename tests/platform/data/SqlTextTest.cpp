// SQL texts as the data layer reads them, without a database.
#include <gtest/gtest.h>
#include "platform/data/ParamScanner.h"
#include "platform/data/Sql.h"
#include "platform/data/SqlShape.h"
#include "tests/platform/data/TestDatabase.h"
#include "tests/support/TextTable.h"

using namespace fichario;

namespace {

QString Scanned(const QStringList& a) {
    const ScannedSql sql = ScanParams(a[0]);
    QString places;
    for (const int place : sql.Places) places += QString::number(place);
    return sql.Text + u" | "_s + Joined(sql.Names, u","_s) + u" | "_s + places;
}

QString Shape(const QStringList& a) {
    const SqlShape shape(a[0]);
    return shape.MainTable() + u"; "_s + shape.MainAlias() + (shape.IsPlain() ? u"; plain"_s : u"; no"_s);
}

QString Keyed(const QStringList& a) {
    const SqlShape shape(a[0]);
    const QStringList keys = a[1].split(u',');
    return QString::number(shape.ParamsBeforeWhere()) + u' ' + shape.KeyedText({keys.begin(), keys.end()});
}

TEST(SqlText, IsReadAndRewritten) {
    CheckTextTable(QStringLiteral(DATA_TESTS "/tables/sql.txt"),
                   {{"Params", Scanned},
                    {"Shape", Shape},
                    {"Count", [](const QStringList& a) { return SqlShape(a[0]).CountText(a[1].toInt()); }},
                    {"Keyed", Keyed},
                    {"Identifier", [](const QStringList& a) { return QuoteIdentifier(a[0]); }},
                    {"Literal", [](const QStringList& a) { return QuoteLiteral(a[0]); }}});
}

}  // namespace
