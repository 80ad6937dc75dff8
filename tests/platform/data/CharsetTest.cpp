// Texts between connections and columns of different character sets.
#include <map>
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
            u"A VARCHAR(20) CHARACTER SET ASCII, M BLOB SUB_TYPE TEXT CHARACTER SET ISO8859_1, "
            u"B BLOB SUB_TYPE TEXT CHARACTER SET NONE, T BLOB SUB_TYPE TEXT CHARACTER SET UTF8)"_s);
        Exec(u"INSERT INTO LETRAS (ID) VALUES (1)"_s);
    }
};

// Each text comes back as it was, or is refused by field and character with nothing stored.
TEST_F(Charset, EveryCharacterComesBackOrIsRefusedByName) {
    TFDConnection* const connections[] = {FConnection, Connect(u"WIN_1252"_s), Connect(u"utf-8"_s),
                                          Connect(u"NONE"_s)};
    const auto taken = [&](const QStringList& a) {
        QStringList all;
        for (TFDConnection* connection : connections) {
            QString columns;
            for (const QChar name : u"LWUNAMBT"_s) {
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
    std::map<UnicodeString, TFDConnection*> connections;
    for (const UnicodeString& set : {u"UTF8"_s, u"WIN1252"_s, u"iso88591"_s, u"NONE"_s})
        connections[set] = Connect(set);
    for (const auto& [set, writer] : connections) {
        for (const int times : {1, 4000}) {
            const UnicodeString text = u"ÇÃÕÁÉÍÓÚÂÊÔÀÜçãõáéí"_s.repeated(times);
            const UnicodeString names = times == 1 ? u"L, N, M, B, T"_s : u"M, B, T"_s;
            TFDQuery* query = Open(u"SELECT ID, %1 FROM LETRAS"_s.arg(names), writer);
            query->Edit();
            for (size_t i = 1; i < query->Fields().size(); ++i) query->Fields()[i]->SetAsString(text);
            query->Post();
            for (const auto& [other, reader] : connections) {
                TFDQuery* read = Open(u"SELECT %1 FROM LETRAS"_s.arg(names), reader);
                for (const auto& field : read->Fields())
                    EXPECT_EQ(field->AsString(), text) << (set + other + field->FieldName()).toStdString();
            }
        }
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

TEST_F(Charset, NamesAndMessagesComeAsTheyAre) {
    Connect(u"NONE"_s)->ExecSQL(u"CREATE TABLE \"AÇÃO\" (\"É\" VARCHAR(9) NOT NULL PRIMARY KEY)"_s);
    for (const UnicodeString& set : {u"ISO8859_1"_s, u"UTF8"_s, u"NONE"_s}) {
        SCOPED_TRACE(set.toStdString());
        TFDConnection* connection = Connect(set);
        TFDQuery* query = Open(u"SELECT \"É\", 'é' \"à\" FROM \"AÇÃO\" WHERE \"É\" <> 'ã'"_s, connection);
        query->Append();
        query->Fields()[0]->SetAsString(set);
        query->Post();
        EXPECT_EQ(query->FieldByName(u"à"_s)->AsString(), u"é");
        EXPECT_EQ(
            MessageOf([&] { connection->ExecSQL(u"EXECUTE BLOCK AS BEGIN EXCEPTION PROIBIDO; END"_s); }),
            u"Não é permitido.");
        EXPECT_TRUE(MessageOf([&] { connection->ExecSQL(u"DELETE FROM \"É\""_s); }).contains(u"\n-É\n"));
    }
}

}  // namespace
