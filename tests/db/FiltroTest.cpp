// The filter, generator values and flag columns on a real database.
#include "db/UDBUtils.h"

#include <gtest/gtest.h>
#include <QStringList>
#include <QTemporaryDir>

#include "db/UDM_Base.h"
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/Exceptions.h"

namespace {

class FilterOnDatabase : public ::testing::Test {
  protected:
    void SetUp() override {
        Owner = new TDataModule(nullptr);
        Connection = new TFDConnection(Owner);
        Connection->Params()->SetText(
            u"Protocol=Local\nUser_Name=SYSDBA\nCharacterSet=ISO8859_1\nForcedWrites=False");
        Connection->Params()->SetValue("Database", Folder.filePath("filtro.fdb"));
        Connection->CreateDatabase();
        Connection->ExecSQL(
            "CREATE TABLE T (ID INTEGER NOT NULL PRIMARY KEY, NOME VARCHAR(40), VALOR NUMERIC(15,2), "
            "DATA TIMESTAMP, OK BOOLEAN, TF_DEL CHAR(1))");
        const char* rows[] = {"1, 'ANA', 1.5, '2024-03-07 10:00', TRUE, 'N'",
                              "2, 'O''BRIEN', 2.5, '2024-03-08', FALSE, NULL",
                              "3, 'ANDRÉ', 3.5, '2024-03-09 23:59', TRUE, 'S'",
                              "4, 'BANANA', 3.5, NULL, NULL, 'N'", "5, 'µ\n5', NULL, NULL, NULL, 'S'"};
        for (const char* row : rows)
            Connection->ExecSQL("INSERT INTO T VALUES (" + QString::fromUtf8(row) + ")");
        Query = new TFDQuery(Owner);
        Query->SetConnection(Connection);
        Query->SQL()->SetText(u"SELECT * FROM T\nWHERE 1 = 0\nORDER BY 1 DESC");
        Query->DescribeFields();
    }
    void TearDown() override { Owner->Free(); }

    TField* Field(const char* name) { return Query->FieldByName(name); }

    // Filters and gives the keys found, in order.
    QString Found(const std::vector<TField*>& fields, const TStringArray& values,
                  const UnicodeString& order = "ID", const UnicodeString& condition = {},
                  bool showDeleted = false) {
        Filtro(Query, fields, values, order, condition, {}, {}, ktNone, showDeleted);
        return Keys();
    }
    QString Keys() {
        QStringList keys;
        for (Query->First(); !Query->Eof(); Query->Next()) keys << Field("ID")->AsString();
        return keys.join(' ');
    }

    QTemporaryDir Folder;
    TDataModule* Owner;
    TFDConnection* Connection;
    TFDQuery* Query;
};

TEST_F(FilterOnDatabase, FindsWhatTheFieldsSay) {
    TField *nome = Field("NOME"), *valor = Field("VALOR"), *data = Field("DATA"), *ok = Field("OK");
    const struct {
        std::vector<TField*> Fields;
        TStringArray Values;
        const char* Keys;
    } cases[] = {{{nome}, {"an"}, "1 3"},
                 {{nome}, {"*an"}, "1 3 4"},
                 {{nome}, {"o'b"}, "2"},
                 {{nome}, {"x' OR '1'='1"}, ""},
                 {{nome}, {"*😀"}, ""},
                 {{nome}, {"x\r\nwhere"}, ""},
                 {{nome}, {" OR 1=1 OR 1=1 --"}, ""},
                 {{nome}, {"µ\n5"}, "5"},
                 {{nome}, {"µ\r\n5"}, ""},
                 {{valor}, {"3,5"}, "3 4"},
                 {{data}, {"09/03/2024"}, "3"},
                 {{ok}, {"true"}, "1 3"},
                 {{nome, data}, {"a", "07/03/2024"}, "1"},
                 {{data, data}, {"08/03/2024", "09/03/2024"}, "2 3"},
                 {{valor, valor}, {"1,5", "2,5"}, "1 2"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Keys);
        EXPECT_EQ(Found(c.Fields, c.Values, "ID", {}, true), c.Keys);
    }
}

TEST_F(FilterOnDatabase, HidesDeletedRowsUnlessAskedFor) {
    EXPECT_EQ(Found({Field("VALOR")}, {"3,5"}), "4");
    EXPECT_TRUE(Query->SQL()->Text().contains("\r\n AND COALESCE(TF_DEL, 'N') = 'N' \r\n"));
    EXPECT_EQ(Found({Field("NOME")}, {"*"}, "ID DESC", "VALOR > 2"), "4 2");
}

TEST_F(FilterOnDatabase, OrdersByTheKeyAndSetsFurtherParameters) {
    Field("ID")->SetProviderFlags(pfInUpdate | pfInKey);
    TField* const fields[] = {Field("NOME")};
    const UnicodeString values[] = {"*"}, names[] = {"MIN"};
    const Variant minimum[] = {2};
    Filtro(Query, fields, 0, values, 0, "VALOR DESC", "VALOR > :MIN", names, 0, minimum, 0,
           ktFieldProviderFlag, true);
    EXPECT_EQ(Keys(), "3 4 2");
    EXPECT_TRUE(Query->SQL()->Text().endsWith("ORDER BY VALOR DESC, ID\r\n"));
}

TEST_F(FilterOnDatabase, RefusesWhatItCannotFilter) {
    EXPECT_THROW(Found({Field("DATA")}, {"31/02/2024"}), EConvertError);
    EXPECT_FALSE(Query->Active());
    EXPECT_THROW(Found({Field("VALOR")}, {"x"}), EConvertError);
    EXPECT_THROW(Found({Field("VALOR")}, {}), EDatabaseError);
    const UnicodeString names[] = {"A"};
    EXPECT_THROW(Filtro(Query, {}, {}, {}, {}, names, {}, ktNone, true), EDatabaseError);
    for (TField* field : Query->Fields()) field->SetProviderFlags(0);
    try {
        Filtro(Query, {}, {}, {}, {}, {}, {}, ktFieldProviderFlag, true);
        FAIL() << "filtered without a key";
    } catch (const Exception& e) {
        EXPECT_EQ(e.Message, "Nenhuma chave primaria foi definida.");
    }
}

TEST_F(FilterOnDatabase, GeneratorsCount) {
    Connection->ExecSQL("CREATE SEQUENCE GEN_CLIENTE");
    EXPECT_EQ(GetGeneratorID(Connection, "GEN_CLIENTE", 0), 0);
    EXPECT_EQ(GetGeneratorID(Connection, "GEN_CLIENTE", 1), 1);
    EXPECT_EQ(GetGeneratorID(Connection, "GEN_CLIENTE", 10), 11);
    EXPECT_EQ(GetGeneratorID(Connection, "GEN_CLIENTE", 0), 11);
    EXPECT_THROW(GetGeneratorID(Connection, "NENHUM", 1), EDatabaseError);
    const int queries = ApplicationRoot()->ComponentCount();
    auto* left = dynamic_cast<TFDQuery*>(ApplicationRoot()->Components(queries - 1));
    ASSERT_TRUE(left);
    EXPECT_EQ(left->SQL()->Text(), "SELECT GEN_ID(NENHUM, 1) GEN_VALUE FROM RDB$DATABASE\r\n");
    Connection->ExecSQL("ALTER SEQUENCE GEN_CLIENTE RESTART WITH 3000000000");
    try {
        GetGeneratorID(Connection, "GEN_CLIENTE", 0);
        FAIL() << "a value beyond an int";
    } catch (const EConvertError& e) {
        EXPECT_TRUE(e.Message.contains("3000000000 do gerador GEN_CLIENTE"));
    }
    EXPECT_EQ(ApplicationRoot()->ComponentCount(), queries);
}

TEST_F(FilterOnDatabase, FlagColumnsAreShownAndStored) {
    auto* module = new TDM_Base(Owner, nullptr);
    TField* flag = Field("NOME");
    flag->OnGetText = [=](TField* f, UnicodeString& text, bool display) {
        module->TrueFalseGetText(f, text, display);
    };
    flag->OnSetText = [=](TField* f, const UnicodeString& text) { module->TrueFalseSetText(f, text); };
    Found({Field("ID")}, {"1"});
    Query->Edit();
    const QString no = QString::fromUtf8("NÃO");
    for (const auto& [typed, stored, shown] :
         {std::tuple(QString("SIM"), "S", QString("SIM")), {no, "N", no}, {"Sim", "", ""}, {"S", "", ""}}) {
        flag->SetText(typed);
        EXPECT_EQ(flag->AsString(), stored);
        EXPECT_EQ(flag->DisplayText(), shown);
    }
    flag->SetAsString("s");
    EXPECT_EQ(flag->DisplayText(), "");
    Query->Cancel();
}

}  // namespace
