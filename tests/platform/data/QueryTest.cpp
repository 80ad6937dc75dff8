// Statements and their parameters.
#include "tests/platform/data/TestDatabase.h"

namespace {

TEST_F(DataTest, ParametersKeepTheKindOfTheirCaller) {
    struct {
        QStringView Where;
        std::function<void(TFDParam&)> Set;
        int Count;
    } const cases[] = {
        {u"SALDO * :P > 1234.6", [](TFDParam& p) { p.SetAsFloat(1.5); }, 1},
        {u"SALDO = :P", [](TFDParam& p) { p.SetAsFloat(1234.5); }, 1},
        {u"SALDO = :P", [](TFDParam& p) { p.SetValue(u"1234,50"_s); }, 1},
        {u"SALDO = :P", [](TFDParam& p) { p.SetAsCurrency(Currency::FromDouble(1234.5L)); }, 1},
        {u"ID >= :P", [](TFDParam& p) { p.SetAsFloat(1.5); }, 2},
        {u"CAST(CRIADO AS DATE) = :P", [](TFDParam& p) { p.SetAsDate(EncodeDate(2001, 2, 3) + 0.9); }, 1},
        {u"NASC = :P", [](TFDParam& p) { p.SetValue(u"31/01/2000"_s); }, 1},
        {u"NASC = :P",
         [](TFDParam& p) {
             p.SetDataType(ftDate);
             p.SetValue(u"31/01/2000"_s);
         },
         1},
        {u"CRIADO >= :P AND CRIADO <= :P", [](TFDParam& p) { p.SetAsDateTime(TDateTime(0)); }, 0},
        {u"HORA = :P", [](TFDParam& p) { p.SetValue(EncodeTime(12, 30, 0)); }, 1},
        {u"ATIVO = :P", [](TFDParam& p) { p.SetAsBoolean(true); }, 1},
        {u"UPPER(NM) LIKE :P", [](TFDParam& p) { p.SetAsString(u"B%"_s); }, 2},
        {u"OBS LIKE :P", [](TFDParam& p) { p.SetAsString(u"mem%"_s); }, 1},
        {u"UF = :P", [](TFDParam& p) { p.SetAsString(u"P"_s); }, 1},
        {u"CODIGO = :P", [](TFDParam& p) { p.SetAsLargeInt(9000000000); }, 1},
        {u"(:P IS NULL OR ID = :P)", [](TFDParam& p) { p.Clear(); }, 3},
        {u"(:P IS NULL OR ID = :P)", [](TFDParam& p) { p.SetAsInteger(2); }, 1},
        {u"NM = :P", [](TFDParam& p) { p.SetAsString(UnicodeString(60, u'x')); }, 0},
        {u"NM LIKE :P", [](TFDParam& p) { p.SetAsString(u"→%"_s); }, 0},
        {u"NM = :P", [](TFDParam& p) { p.SetAsString(u"x' OR '1'='1"_s); }, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Where.toString().toStdString());
        TFDQuery* query = Query(u"SELECT ID FROM CLIENTE WHERE "_s + c.Where.toString());
        c.Set(*query->ParamByName(u"P"_s));
        query->Open();
        EXPECT_EQ(query->RowCount(), c.Count);
        EXPECT_TRUE(query->AllFetched());
    }
    TFDQuery* query = Query(u"SELECT ID FROM CLIENTE WHERE NASC = :P"_s);
    query->ParamByName(u"P"_s)->SetValue(u"31/02/2000"_s);
    EXPECT_THROW(query->Open(), EConvertError);
    EXPECT_FALSE(query->Active());
    EXPECT_EQ(MessageOf([&] { query->ParamByName(u"Q"_s); }), u"Parameter 'Q' not found");
}

TEST_F(DataTest, ChangingTheTextClosesAndKeepsValuesOfTheSameName) {
    TFDQuery* query = Query(u"SELECT ID FROM CLIENTE WHERE ID > :A AND ID < :B"_s);
    query->ParamByName(u"A"_s)->SetAsInteger(1);
    TFDParam* kept = query->ParamByName(u"A"_s);
    query->Open();
    query->SQL()->Add(u"AND ID <> :C"_s);
    EXPECT_FALSE(query->Active());
    EXPECT_EQ(query->Params().Count(), 3);
    query->SQL()->SetText(u"SELECT ID FROM CLIENTE WHERE ID > :a"_s);
    EXPECT_EQ(query->ParamByName(u"A"_s), kept);
    EXPECT_EQ(query->Params().Count(), 1);
    query->Open();
    EXPECT_EQ(query->RowCount(), 2);
}

TEST_F(DataTest, ExecutesStatementsOfEveryKind) {
    TFDQuery* update = Query(u"UPDATE NUMEROS SET T = :T WHERE N <= :N"_s);
    update->ParamByName(u"T"_s)->SetAsString(u"é"_s);
    update->ParamByName(u"N"_s)->SetAsInteger(7);
    EXPECT_EQ(update->ExecSQL(), 7);
    update->ParamByName(u"T"_s)->SetAsString(u"12345678901"_s);
    EXPECT_EQ(MessageOf([&] { update->ExecSQL(); }), u"Texto maior que o permitido: até 10 caracteres.");
    EXPECT_EQ(FConnection->ExecSQL(u"DELETE FROM NUMEROS WHERE N = :A OR N = :B OR N = :A"_s, {1, 2}), 2);
    EXPECT_EQ(MessageOf([&] { Exec(u"COMMIT"_s); }),
              u"Use StartTransaction, Commit and Rollback of the connection");
    EXPECT_EQ(MessageOf([&] { Exec(u"DELETE FROM NUMEROS WHERE N = :A"_s); }),
              u"The statement has 1 parameters, 0 values were given");
    EXPECT_EQ(MessageOf([&] { Query(u"UPDATE NUMEROS SET N = N"_s)->Open(); }),
              u"The statement returns no rows; use ExecSQL");
    EXPECT_EQ(MessageOf([&] { (new TFDQuery(FRoot))->Open(); }), u"Connection not assigned");

    TFDQuery* returning = Open(u"INSERT INTO NUMEROS VALUES (900, 'x') RETURNING N + 1 M"_s);
    EXPECT_EQ(returning->FieldByName(u"M"_s)->AsInteger(), 901);
    EXPECT_EQ(Scalar(u"SELECT GEN_ID(GEN_CLIENTE, 5) V FROM RDB$DATABASE"_s), u"5");
    EXPECT_EQ(Scalar(u"SELECT GEN_ID(GEN_CLIENTE, 0) V FROM RDB$DATABASE"_s), u"5");
}

TEST_F(DataTest, ASelectThatWritesRunsInAWriteTransaction) {
    Exec(
        u"CREATE PROCEDURE CRIA RETURNS (R INTEGER) AS BEGIN INSERT INTO CIDADE VALUES (50, 'Nova'); R = 1; "
        u"SUSPEND; R = 2; "
        u"SUSPEND; END"_s);
    TFDQuery* query = Open(u"SELECT R FROM CRIA"_s);
    EXPECT_EQ(query->RowCount(), 2);
    query->Close();
    EXPECT_EQ(Scalar(u"SELECT COUNT(*) FROM CIDADE WHERE ID = 50"_s), u"1");
}

TEST_F(DataTest, DefinitionsMayChangeUnderPreparedStatements) {
    Scalar(u"SELECT NM FROM CIDADE WHERE ID = 1"_s);
    TFDQuery* query = Open(u"SELECT * FROM CIDADE"_s);
    query->Close();
    Exec(u"ALTER TABLE CIDADE ADD UF CHAR(2) DEFAULT 'XX' NOT NULL"_s);
    query->SQL()->SetText(u"SELECT  * FROM CIDADE"_s);
    query->Open();
    EXPECT_EQ(query->FieldByName(u"UF"_s)->AsString(), u"XX");
    EXPECT_FALSE(query->FieldByName(u"UF"_s)->Required());
    Exec(u"ALTER TABLE CIDADE ADD PAIS VARCHAR(40) DEFAULT 'Brasil' NOT NULL"_s);
    query->Refresh();
    EXPECT_EQ(query->FieldByName(u"PAIS"_s)->AsString(), u"Brasil");
    query->Close();
    query->SQL()->Clear();
    Exec(u"DROP TABLE NUMEROS"_s);
}

TEST_F(DataTest, MemosGoThroughBothCharacterSets) {
    TFDConnection* utf8 = Connect(u"UTF8"_s);
    TFDQuery* query = Open(u"SELECT ID, NM, OBS FROM CLIENTE WHERE ID = 1"_s, utf8);
    EXPECT_EQ(query->FieldByName(u"NM"_s)->AsString(), u"Ação");
    EXPECT_EQ(query->FieldByName(u"OBS"_s)->AsString(), u"memória");
    query->Edit();
    query->FieldByName(u"NM"_s)->SetAsString(u"ÇÃÕÁÉÍÓÚÂÊÔÀÜçãõáéí"_s);
    query->FieldByName(u"OBS"_s)->SetAsString(u"coração"_s);
    query->Post();
    utf8->Close();
    TFDQuery* latin = Open(u"SELECT ID, NM, OBS FROM CLIENTE WHERE ID = 1"_s);
    EXPECT_EQ(latin->FieldByName(u"NM"_s)->AsString(), u"ÇÃÕÁÉÍÓÚÂÊÔÀÜçãõáéí");
    EXPECT_EQ(latin->FieldByName(u"OBS"_s)->AsString(), u"coração");
    latin->Edit();
    latin->FieldByName(u"NM"_s)->SetAsString(u"10 € “aspas” –"_s);
    latin->FieldByName(u"OBS"_s)->SetAsString(u"€"_s);
    latin->Post();
    EXPECT_EQ(latin->FieldByName(u"NM"_s)->AsString(), u"10 € “aspas” –");
    EXPECT_EQ(latin->FieldByName(u"OBS"_s)->AsString(), u"€");
}

}  // namespace
