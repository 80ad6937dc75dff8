// Values made to break out of a statement, stored and searched.
#include "platform/data/Sql.h"
#include "tests/platform/data/Script.h"

namespace {

TEST_F(ScriptTest, HostileValuesAreStoredAndFoundAsTheyAre) {
    Exec(u"CREATE TABLE ALVO (ID INTEGER NOT NULL PRIMARY KEY, T VARCHAR(10000), M BLOB SUB_TYPE TEXT)"_s);
    TFDQuery* table = Open(u"SELECT * FROM ALVO ORDER BY ID"_s);
    TFDQuery* byParameter = Query(u"SELECT ID FROM ALVO WHERE T = :P"_s);
    int rows = 0;
    const auto kept = [&](const UnicodeString& text) {
        const UnicodeString id = UnicodeString::number(++rows);
        table->Append();
        table->FieldByName(u"ID"_s)->SetAsString(id);
        table->FieldByName(u"T"_s)->SetAsString(text);
        table->FieldByName(u"M"_s)->SetAsString(text);
        table->Post();
        table->Refresh();
        table->First();
        EXPECT_TRUE(table->Locate(u"T"_s, text));
        EXPECT_EQ(table->FieldByName(u"ID"_s)->AsString(), id);
        EXPECT_EQ(table->FieldByName(u"T"_s)->AsString(), text);
        EXPECT_EQ(table->FieldByName(u"M"_s)->AsString(), text);
        byParameter->Close();
        byParameter->ParamByName(u"P"_s)->SetAsString(text);
        byParameter->Open();
        EXPECT_EQ(byParameter->RecordCount(), 1);
        EXPECT_EQ(byParameter->Fields()[0]->AsString(), id);
        EXPECT_EQ(Scalar(u"SELECT ID FROM ALVO WHERE T = "_s + QuoteLiteral(text)), id);
        return Scalar(u"SELECT COUNT(*) FROM ALVO"_s) == id ? "yes" : "no";
    };
    Run("hostil", {{"Kept", [&](const QStringList& a) { return kept(a[0]); }}});
    kept(UnicodeString(10000, u'\''));
    kept(u'%' + UnicodeString(9999, u'é'));
}

}  // namespace
