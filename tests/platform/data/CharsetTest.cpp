// Texts between connections and columns of different character sets.
#include "tests/platform/data/Script.h"

namespace {

class Charset : public ScriptTest {
  protected:
    void SetUp() override {
        DataTest::SetUp();
        Exec(
            u"CREATE TABLE LETRAS (ID INTEGER NOT NULL PRIMARY KEY, "
            u"L VARCHAR(20) CHARACTER SET ISO8859_1, W VARCHAR(20) CHARACTER SET WIN1252, "
            u"U VARCHAR(20) CHARACTER SET UTF8 COLLATE UNICODE_CI_AI, N VARCHAR(20) CHARACTER SET NONE, "
            u"A VARCHAR(20) CHARACTER SET ASCII, M BLOB SUB_TYPE TEXT CHARACTER SET ISO8859_1)"_s);
        Exec(u"INSERT INTO LETRAS (ID) VALUES (1)"_s);
    }
};

// Each text comes back as it was, or is refused by field and character with nothing stored.
TEST_F(Charset, EveryCharacterComesBackOrIsRefusedByName) {
    TFDConnection* const connections[] = {FConnection, Connect(u"WIN1252"_s), Connect(u"UTF8"_s),
                                          Connect(u"NONE"_s)};
    const auto taken = [&](const QStringList& a) {
        QStringList all;
        for (TFDConnection* connection : connections) {
            QString columns;
            for (const QChar name : u"LWUNAM"_s) {
                TFDQuery* query = Open(u"SELECT ID, %1 FROM LETRAS"_s.arg(name), connection);
                TField* field = query->Fields()[1];
                query->Edit();
                field->SetAsString(a[0]);
                const UnicodeString message = MessageOf([&] { query->Post(); });
                EXPECT_EQ(field->AsString(), a[0]);
                if (message.isEmpty()) {
                    columns += name;
                } else {
                    EXPECT_TRUE(message.startsWith(u"Caractere não permitido no campo \"%1\": “"_s.arg(name)))
                        << message.toStdString();
                    query->Cancel();
                }
                query->Refresh();
                EXPECT_EQ(field->AsString(), message.isEmpty() ? a[0] : QString()) << name.toLatin1();
                query->Free();
                connection->ExecSQL(u"UPDATE LETRAS SET %1 = NULL"_s.arg(name));
            }
            all << columns;
        }
        return all.join(' ');
    };
    Run("letras", {{"Taken", taken}});
}

TEST_F(Charset, TextsAndMemosOfAnyLengthCrossSets) {
    const UnicodeString text = UnicodeString(70000, u'é');
    for (const QStringView set : {u"UTF8", u"WIN1252", u"ISO8859_1"}) {
        TFDConnection* connection = Connect(set.toString());
        TFDQuery* query = Open(u"SELECT ID, L, M FROM LETRAS"_s, connection);
        query->Edit();
        query->FieldByName(u"L"_s)->SetAsString(u"ÇÃÕÁÉÍÓÚÂÊÔÀÜçãõáéí"_s);
        query->FieldByName(u"M"_s)->SetAsString(text);
        query->Post();
        for (const QStringView other : {u"UTF8", u"WIN1252", u"ISO8859_1"}) {
            SCOPED_TRACE((set.toString() + other.toString()).toStdString());
            TFDQuery* read = Open(u"SELECT L, M FROM LETRAS"_s, Connect(other.toString()));
            EXPECT_EQ(read->Fields()[0]->AsString(), u"ÇÃÕÁÉÍÓÚÂÊÔÀÜçãõáéí");
            EXPECT_EQ(read->Fields()[1]->AsString(), text);
        }
        Exec(u"UPDATE LETRAS SET L = NULL, M = NULL"_s);
    }
}

TEST_F(Charset, WhatNoRecordCanHoldIsNotFound) {
    Exec(u"UPDATE LETRAS SET L = 'a', W = 'a', U = 'a', N = 'a', A = 'a'"_s);
    for (const QStringView set : {u"ISO8859_1", u"WIN1252", u"UTF8", u"NONE"}) {
        TFDConnection* connection = Connect(set.toString());
        for (const QChar name : u"LWUN"_s) {
            for (const UnicodeString& sought : {u"😀"_s, u"→"_s, u"€"_s, UnicodeString(QChar(0xD800))}) {
                SCOPED_TRACE((set.toString() + name + sought).toStdString());
                TFDQuery* query = Query(u"SELECT ID FROM LETRAS WHERE %1 = :T"_s.arg(name), connection);
                query->ParamByName(u"T"_s)->SetAsString(sought);
                EXPECT_NO_THROW(query->Open());
                EXPECT_TRUE(query->IsEmpty());
                query->Close();
                if (set == u"NONE") continue;
                query->SQL()->SetText(
                    u"SELECT ID, %1 FROM LETRAS WHERE %1 LIKE '%2%'"_s.arg(name).arg(sought));
                EXPECT_NO_THROW(query->Open());
                EXPECT_TRUE(query->IsEmpty());
                query->Close();
                query->SQL()->SetText(u"SELECT ID, %1 FROM LETRAS"_s.arg(name));
                query->Open();
                EXPECT_FALSE(query->Locate(UnicodeString(name), sought, loCaseInsensitive | loPartialKey));
                query->Free();
            }
        }
    }
    EXPECT_EQ(MessageOf([&] { Exec(u"UPDATE LETRAS SET L = '→'"_s); }), u"Caractere não permitido: “→”.");
}

}  // namespace
