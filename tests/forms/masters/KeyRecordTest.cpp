#include "forms/masters/KeyRecord.h"

#include "db/Prefixos.h"
#include "platform/data/Field.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class KeyRecord : public Bancada {
  protected:
    TFDQuery* Query(const char* sql) {
        auto* query = new TFDQuery(Main);
        query->SetConnection(Caso.Connection);
        query->SQL()->SetText(QString::fromUtf8(sql));
        return query;
    }
};

TEST_F(KeyRecord, WritesKeysAsTheServerReadsThem) {
    TFDQuery* query = Query(
        "SELECT 7 I, CAST(-1.50 AS NUMERIC(9,2)) N, CAST('O''Brien' AS VARCHAR(20)) S, DATE '2024-12-31' D, "
        "TIME '13:05:09' T, TIMESTAMP '2024-12-31 13:05:09.123' TS FROM RDB$DATABASE");
    query->Open();
    const struct {
        const char16_t* Field;
        const char16_t* Literal;
    } cases[] = {{u"I", u"7"},
                 {u"N", u"-1.5"},
                 {u"S", u"'O''Brien'"},
                 {u"D", u"'2024-12-31'"},
                 {u"T", u"'13:05:09.000'"},
                 {u"TS", u"'2024-12-31 13:05:09.123'"}};
    for (const auto& c : cases) {
        const QString name = QString::fromUtf16(c.Field);
        SCOPED_TRACE(name.toStdString());
        const UnicodeString literal = KeyLiteral(*query->FieldByName(name));
        EXPECT_EQ(literal, QString::fromUtf16(c.Literal));
        const UnicodeString same =
            u"SELECT COUNT(*) FROM (%1) WHERE %2 = %3"_s.arg(query->SQL()->Text(), name, literal);
        EXPECT_EQ(Caso.Connection->ExecSQLScalar(same).ToInt(), 1);
    }
}

TEST_F(KeyRecord, FindsTheRecordOfAKeyOfTwoColumns) {
    TFDQuery* view = Query("SELECT ID_CLI, NM_CLI FROM CLIENTE ORDER BY ID_CLI DESC");
    TFDQuery* own = Query("SELECT C.ID_CLI, C.NM_CLI FROM CLIENTE C\nWHERE C.ID_CLI = 0\nORDER BY 1");
    view->Open();
    for (TField* field : view->Fields()) field->SetProviderFlags(pfInKey);
    own->DescribeFields();
    SetPrefix(own->FieldByName(u"ID_CLI"_s), u"C"_s);
    const UnicodeString where = KeyWhere(*view, *own, false);
    EXPECT_EQ(where.simplified(), u"WHERE C.ID_CLI = 3 AND NM_CLI = 'CARLA'"_s);
    OpenWhere(*own, where);
    EXPECT_EQ(own->RecordCount(), 1);
    OpenWhere(*own, KeyWhere(*view, *own, true));
    EXPECT_TRUE(own->IsEmpty());
}

}  // namespace
