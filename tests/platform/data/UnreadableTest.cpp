// Stored texts that the connection's character set lacks, or that are no characters at all: one such value
// must not take the rest of its row, or of the rows, with it.
#include <QFile>
#include "platform/data/RowsFile.h"
#include "tests/platform/data/Script.h"

namespace {

constexpr int kRows = 5000, kBadRow = 3000;  // the bad one lies far behind the first page

class Unreadable : public ScriptTest {
  protected:
    void SetUp() override {
        DataTest::SetUp();
        Exec(
            u"CREATE TABLE SINAIS (ID INTEGER NOT NULL PRIMARY KEY, U VARCHAR(20) CHARACTER SET UTF8, "
            u"C CHAR(4) CHARACTER SET UTF8, N VARCHAR(20) CHARACTER SET NONE, L VARCHAR(20) CHARACTER SET "
            u"ISO8859_1, "
            u"M BLOB SUB_TYPE TEXT CHARACTER SET UTF8, B BLOB SUB_TYPE TEXT CHARACTER SET NONE, F BLOB)"_s);
        Exec(
            u"CREATE TABLE LONGOS (ID INTEGER, A VARCHAR(32765) CHARACTER SET WIN1252, B VARCHAR(8000) "
            u"CHARACTER SET "
            u"WIN1252, C VARCHAR(8000) CHARACTER SET WIN1252, D CHAR(9000) CHARACTER SET WIN1252)"_s);
        Exec(
            u"EXECUTE BLOCK AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= %1) DO BEGIN INSERT INTO SINAIS "
            u"VALUES (:I, 'u' || :I, 'c', 'ç', 'x€', 'm' || :I, 'b', 'f'); I = I + 1; END END"_s.arg(kRows));
    }

    // A record that holds what ISO8859_1 lacks.
    void SetBad(int id) {
        Connect(u"UTF8"_s)->ExecSQL(
            u"UPDATE SINAIS SET U = 'ação →', C = '→', M = 'memória →' WHERE ID = %1"_s.arg(id));
    }

    // Changes bytes of the closed database, as a program that checked nothing once left them.
    void Patch(const QByteArray& before, const QByteArray& after) {
        FConnection->Close();
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QByteArray all = file.readAll();
        const qsizetype at = all.indexOf(before);
        ASSERT_TRUE(at >= 0 && file.seek(at) && file.write(after) == after.size());
    }
};

TEST_F(Unreadable, CharactersThatTheConnectionLacksAreReadAllTheSame) {
    for (const int bad : {1, kBadRow}) {
        for (const QStringView set : {u"ISO8859_1", u"WIN1252"}) {
            SCOPED_TRACE(set.toString().toStdString() + std::to_string(bad));
            SetBad(bad);
            TFDQuery* query =
                Query(u"SELECT * FROM SINAIS WHERE ID > :I ORDER BY ID -- tudo"_s, Connect(set.toString()));
            query->ParamByName(u"I"_s)->SetAsInteger(0);
            query->Open();
            EXPECT_EQ(query->Fields()[2]->AsString(), bad == 1 ? u"→" : u"c");
            EXPECT_EQ(query->Fields()[5]->AsString(), bad == 1 ? u"memória →" : u"m1");
            query->Next();
            query->Last();
            ASSERT_EQ(query->RowCount(), kRows);
            ASSERT_TRUE(query->Locate(u"ID"_s, bad));
            const UnicodeString values[] = {u"ação →"_s,    u"→"_s, u"ç"_s, u"x€"_s,
                                            u"memória →"_s, u"b"_s, u"f"_s};
            for (int i = 0; i < 7; ++i) EXPECT_EQ(query->Fields()[size_t(i) + 1]->AsString(), values[i]);
            EXPECT_TRUE(query->Locate(u"U"_s, u"AÇÃO"_s, loPartialKey | loCaseInsensitive));
            EXPECT_TRUE(query->Locate(u"U"_s, u"u%1"_s.arg(kRows), 0));
            EXPECT_EQ(query->Fields()[5]->AsString(), u"m%1"_s.arg(kRows));
            query->Free();
            Exec(u"UPDATE SINAIS SET U = 'u', C = 'c', M = 'm1' WHERE ID = %1"_s.arg(bad));
        }
    }
}

// Longer than UTF-8 lets a text be, in rows longer than 64 KiB there.
TEST_F(Unreadable, LongTextsAreReadAllTheSame) {
    const UnicodeString text = UnicodeString(300, u'ç') + UnicodeString(32100, u'x') + u'€';
    TFDConnection* wide = Connect(u"WIN1252"_s);
    wide->ExecSQL(u"INSERT INTO LONGOS VALUES (1, :A, 'b', 'c€', 'd€')"_s, {text});
    TFDQuery* query =
        Open(u"SELECT ID, D, A, B, C FROM LONGOS UNION ALL SELECT 2, 'x', 'á', 'b', 'c' FROM RDB$DATABASE"_s);
    EXPECT_EQ(query->FieldByName(u"A"_s)->AsString(), text);
    EXPECT_EQ(query->FieldByName(u"C"_s)->AsString(), u"c€");
    EXPECT_EQ(query->FieldByName(u"D"_s)->AsString(), u"d€");
    query->Last();
    EXPECT_EQ(query->FieldByName(u"A"_s)->AsString(), u"á");
}

TEST_F(Unreadable, ARecordWithSuchCharactersIsWrittenAndReadAgain) {
    SetBad(2);
    Run("ilegivel");
}

TEST_F(Unreadable, BytesThatAreNoTextAreAnErrorOfTheirFieldAlone) {
    Exec(u"UPDATE SINAIS SET U = 'QXKWZJVY' WHERE ID = 2"_s);
    Exec(u"UPDATE SINAIS SET M = 'ZVKQWJXY' WHERE ID = 3"_s);
    Patch("QXKWZJVY", "QXKW\xE7JVY");
    Patch("ZVKQWJXY", "ZVKQ\xE7JXY");
    TFDConnection* connection = Connect(u"UTF8"_s);
    TFDQuery* kept = Query(u"SELECT ID, U, L FROM SINAIS WHERE ID = 2"_s, connection);
    kept->SetCachedUpdates(true);
    kept->Open();
    kept->Edit();
    kept->FieldByName(u"L"_s)->SetAsString(u"guardado"_s);
    EXPECT_EQ(MessageOf([&] { kept->ApplyUpdates(); }), u"");
    kept->Free();
    EXPECT_EQ(MessageOf([&] { connection->ExecSQLScalar(u"SELECT M FROM SINAIS WHERE ID = 3"_s); }),
              u"O texto guardado não pode ser lido: há bytes que não formam caracteres.");
    TFDQuery* query = Open(u"SELECT ID, U, L, M FROM SINAIS ORDER BY ID"_s, connection);
    TField *text = query->FieldByName(u"U"_s), *memo = query->FieldByName(u"M"_s);
    text->SetDisplayLabel(u"Nome"_s);
    memo->SetDisplayLabel(u"Observações"_s);
    query->SaveToFile(InFolder(u"linhas.dat"_s));
    TRowsReader saved(InFolder(u"linhas.dat"_s));
    std::vector<Variant> row;
    for (int id = 1; id <= 3; ++id) saved.Next(row);
    EXPECT_EQ(row[3].ToText() + row[1].ToText(), u"(ilegível)u3") << "the others are on paper";
    for (TField* field : {text, memo}) {
        SCOPED_TRACE(field->FieldName().toStdString());
        ASSERT_TRUE(query->Locate(u"ID"_s, field == text ? 2 : 3));
        const UnicodeString message =
            u"O texto guardado no campo \"%1\" não pode ser lido: há bytes que não formam caracteres."_s.arg(
                field->DisplayLabel());
        EXPECT_EQ(MessageOf([&] { field->AsString(); }), message);
        EXPECT_EQ(MessageOf([&] { field->Value(); }), message);
        EXPECT_EQ(field->DisplayText(), u"(ilegível)");
        EXPECT_FALSE(field->IsNull());
        EXPECT_EQ((field == text ? memo : text)->AsString(), field == text ? u"m2" : u"u3");

        for (const bool host : {false, true}) {
            if (host) connection->StartTransaction();
            query->Edit();
            query->FieldByName(u"L"_s)->SetAsString(host ? u"outro"_s : u"novo"_s);
            EXPECT_EQ(MessageOf([&] { query->Post(); }), u"");
            EXPECT_EQ(query->FieldByName(u"L"_s)->AsString(), host ? u"outro" : u"novo");
            EXPECT_EQ(MessageOf([&] { field->AsString(); }), message) << "left alone";
            if (host) connection->Commit();
        }
        EXPECT_TRUE(query->Locate(u"U"_s, u"u9"_s, 0)) << "behind it";
        query->Locate(u"ID"_s, field == text ? 2 : 3);
        query->Edit();
        field->SetAsString(u"são"_s);
        EXPECT_EQ(MessageOf([&] { query->Post(); }), u"");
        EXPECT_EQ(field->AsString(), u"são");
    }
    EXPECT_EQ(connection->ExecSQLScalar(u"SELECT U FROM SINAIS WHERE ID = 2"_s).ToText(), u"são");
}

}  // namespace
