// Records changed, added and deleted, alone and against other users.
#include "tests/platform/data/TestDatabase.h"

namespace {

const UnicodeString kAll = u"SELECT * FROM CLIENTE ORDER BY ID"_s;
const UnicodeString kChangedByOther = u"Este registro foi alterado ou excluído por outro usuário."_s;

TEST_F(DataTest, APostWritesWhatChangedAndReadsTheRecordAgain) {
    TFDQuery* query = Open(
        u"SELECT C.*, D.NM CIDADE, C.SALDO + 1 MAIS FROM CLIENTE C JOIN CIDADE D ON D.ID = C.ID_CIDADE "
        u"WHERE C.ID = :ID AND C.UF = 'SP'"_s);
    ASSERT_TRUE(query->IsEmpty());
    query->Close();
    query->ParamByName(u"id"_s)->SetAsInteger(1);
    query->Open();
    query->Edit();
    EXPECT_FALSE(query->Modified());
    query->FieldByName(u"SALDO"_s)->SetAsString(u"10,25"_s);
    query->FieldByName(u"ID_CIDADE"_s)->SetAsInteger(2);
    query->FieldByName(u"OBS"_s)->SetAsString(UnicodeString(70000, u'é'));
    query->FieldByName(u"FOTO"_s)->SetValue(QByteArray(65536, '\0'));
    Exec(u"UPDATE CLIENTE SET PESO = 1 WHERE ID = 1"_s);
    EXPECT_TRUE(query->Modified());
    query->Post();
    EXPECT_EQ(query->State(), dsBrowse);
    EXPECT_EQ(query->FieldByName(u"DOBRO"_s)->AsString(), u"20,5");
    EXPECT_EQ(query->FieldByName(u"MAIS"_s)->AsString(), u"11,25");
    EXPECT_EQ(query->FieldByName(u"CIDADE"_s)->AsString(), u"Curitiba");
    EXPECT_EQ(query->FieldByName(u"PESO"_s)->AsFloat(), 1) << "the other user's column was left alone";
    EXPECT_EQ(query->FieldByName(u"OBS"_s)->AsString(), UnicodeString(70000, u'é'));
    EXPECT_EQ(static_cast<TBlobField*>(query->FieldByName(u"FOTO"_s))->AsBytes(), QByteArray(65536, '\0'));

    query->Edit();
    query->FieldByName(u"UF"_s)->SetAsString(u"RJ"_s);
    query->FieldByName(u"OBS"_s)->SetAsString(u"curta"_s);
    query->Post();
    EXPECT_EQ(query->FieldByName(u"UF"_s)->AsString(), u"RJ")
        << "no row of the statement any more, but still shown";
    EXPECT_EQ(query->FieldByName(u"OBS"_s)->AsString(), u"curta");
    EXPECT_EQ(query->FieldByName(u"CIDADE"_s)->AsString(), u"Curitiba");
}

TEST_F(DataTest, SettingTheSameValueAgainIsNoChange) {
    TFDQuery* query = Open(kAll);
    query->Edit();
    query->FieldByName(u"SALDO"_s)->SetAsString(u"1.234,5"_s);
    query->FieldByName(u"HORA"_s)->SetAsString(u"12:30:00"_s);
    query->FieldByName(u"NASC"_s)->SetAsDateTime(EncodeDate(2000, 1, 31));
    query->FieldByName(u"OBS"_s)->SetAsString(u"memória"_s);
    EXPECT_FALSE(query->Modified());
    Exec(u"DELETE FROM CLIENTE WHERE ID = 1"_s);
    query->Post();
    EXPECT_EQ(query->State(), dsBrowse);
}

TEST_F(DataTest, AnInsertNamesAssignedColumnsAndReadsTheKeyBack) {
    Exec(u"ALTER TABLE CLIENTE ALTER UF SET DEFAULT 'MG'"_s);
    TFDQuery* query = Open(kAll);
    query->OnNewRecord = [](TDataSet* dataSet) { dataSet->FieldByName(u"QTD"_s)->SetAsInteger(1); };
    query->Append();
    EXPECT_EQ(query->State(), dsInsert);
    EXPECT_EQ(query->RowCount(), 4);
    EXPECT_EQ(query->RecordCount(), 3);
    EXPECT_EQ(query->RecNo(), 4);
    EXPECT_FALSE(query->Modified()) << "defaults are no change";
    query->FieldByName(u"NM"_s)->SetAsString(UnicodeString());
    EXPECT_TRUE(query->Modified());
    query->Post();
    EXPECT_EQ(query->FieldByName(u"ID"_s)->AsInteger(), 1001);
    EXPECT_EQ(query->FieldByName(u"UF"_s)->AsString(), u"MG");
    EXPECT_EQ(query->FieldByName(u"QTD"_s)->AsInteger(), 1);
    EXPECT_FALSE(query->FieldByName(u"NM"_s)->IsNull()) << "an empty text is not null";
    EXPECT_EQ(Scalar(u"SELECT COUNT(*) FROM CLIENTE WHERE NM = '' AND NM IS NOT NULL"_s), u"1");

    query->First();
    query->Insert();
    EXPECT_EQ(query->RecNo(), 1);
    query->CheckBrowseMode();
    EXPECT_EQ(query->RowCount(), 4) << "an unmodified new record is dropped";
    EXPECT_EQ(query->FieldByName(u"ID"_s)->AsInteger(), 1);
}

TEST_F(DataTest, MovingAwayPostsAndCancelTakesBack) {
    TFDQuery* query = Open(kAll);
    query->Edit();
    query->FieldByName(u"NM"_s)->SetAsString(u"Zé"_s);
    query->Next();
    EXPECT_EQ(Scalar(u"SELECT NM FROM CLIENTE WHERE ID = 1"_s), u"Zé");
    query->Edit();
    query->FieldByName(u"NM"_s)->SetAsString(u"x"_s);
    query->Cancel();
    EXPECT_EQ(query->FieldByName(u"NM"_s)->AsString(), u"Bia");
    query->Delete();
    EXPECT_EQ(query->FieldByName(u"ID"_s)->AsInteger(), 3);
    query->Delete();
    EXPECT_EQ(query->FieldByName(u"ID"_s)->AsInteger(), 1);
    EXPECT_EQ(Scalar(u"SELECT COUNT(*) FROM CLIENTE"_s), u"1");
}

TEST_F(DataTest, AnotherUsersChangeIsNeverOverwritten) {
    struct {
        QStringView Other;
        UnicodeString Message;
    } const cases[] = {
        {u"UPDATE CLIENTE SET NM = 'outro' WHERE ID = 1", kChangedByOther},
        {u"UPDATE CLIENTE SET NASC = NULL WHERE ID = 1", kChangedByOther},
        {u"UPDATE CLIENTE SET UF = 'RS' WHERE ID = 1", UnicodeString()},
        {u"DELETE FROM CLIENTE WHERE ID = 1", kChangedByOther},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Other.toString().toStdString());
        TFDQuery* query = Open(kAll);
        query->Edit();
        query->FieldByName(u"NM"_s)->SetAsString(query->FieldByName(u"NM"_s)->AsString() + u'!');
        query->FieldByName(u"NASC"_s)->SetAsString(u"01/01/2010"_s);
        const UnicodeString typed = query->FieldByName(u"NM"_s)->AsString();
        Exec(c.Other.toString());
        EXPECT_EQ(MessageOf([&] { query->Post(); }), c.Message);
        if (c.Message.isEmpty()) continue;
        EXPECT_EQ(query->State(), dsEdit);
        EXPECT_EQ(query->FieldByName(u"NM"_s)->AsString(), typed);
        query->Cancel();
    }
}

TEST_F(DataTest, ARefusedPostKeepsWhatWasTyped) {
    TFDConnection* other = Connect();
    struct {
        QStringView Field, Value, Message;
        int64_t Code;
        QStringView Constraint = {};
    } const cases[] = {
        {u"ID", u"2", u"Já existe um registro com este valor.", 335544665},
        {u"CODIGO", u"9000000000", u"Já existe um registro com este valor.", 335544349, u"I_CODIGO"},
        {u"ID_CIDADE", u"77", u"O registro relacionado não existe.", 335544838},
        {u"QTD", u"5", u"Este registro está sendo alterado por outro usuário. Tente novamente.", 335544451},
        {u"NM", u"123456789012345678901", u"Texto maior que o permitido no campo \"NM\": até 20 caracteres.",
         0},
        {u"OBS", u"a → b", u"Caractere não permitido no campo \"OBS\": “→”.", 0},
        {u"NM", u"😀", u"Caractere não permitido no campo \"NM\": “😀”.", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Message.toString().toStdString());
        TFDQuery* query = Open(kAll);
        ASSERT_TRUE(query->Locate(u"ID"_s, 3));
        query->Edit();
        TField* field = query->FieldByName(c.Field.toString());
        field->SetAsString(c.Value.toString());
        if (c.Field == u"QTD") {
            other->StartTransaction();
            other->ExecSQL(u"UPDATE CLIENTE SET QTD = 9 WHERE ID = 3"_s);
        }
        try {
            query->Post();
            ADD_FAILURE() << "it should have been refused";
        } catch (const EDatabaseError& error) {
            EXPECT_EQ(error.Message, c.Message);
            const auto* server = dynamic_cast<const EFDError*>(&error);
            EXPECT_EQ(server != nullptr, c.Code != 0);
            EXPECT_TRUE(c.Constraint.isEmpty() || server->Constraint == c.Constraint);
            EXPECT_TRUE(!server || (server->Has(c.Code) && server->ConnectionUsable));
        }
        EXPECT_EQ(query->State(), dsEdit);
        EXPECT_EQ(field->AsString(), c.Value);
        if (other->InTransaction()) other->Rollback();
    }
    EXPECT_EQ(MessageOf([&] { Exec(u"DELETE FROM CIDADE WHERE ID = 1"_s); }),
              u"Registro em uso por outro cadastro.");
    EXPECT_EQ(MessageOf([&] { Exec(u"INSERT INTO CIDADE (ID) VALUES (9)"_s); }),
              u"Preencha o campo obrigatório.");
    EXPECT_EQ(MessageOf([&] { Exec(u"EXECUTE BLOCK AS BEGIN EXCEPTION PROIBIDO; END"_s); }),
              u"Não é permitido.");
}

TEST_F(DataTest, RecordsWithoutKeyOrTableCannotBeChanged) {
    TFDQuery* noKey = Open(u"SELECT NM FROM CLIENTE"_s);
    noKey->Edit();
    noKey->FieldByName(u"NM"_s)->SetAsString(u"x"_s);
    EXPECT_EQ(MessageOf([&] { noKey->Post(); }),
              u"No key field in table 'CLIENTE': the record cannot be written");
    TFDQuery* noTable = Open(u"SELECT 1 N FROM RDB$DATABASE UNION SELECT 2 FROM RDB$DATABASE"_s);
    EXPECT_EQ(MessageOf([&] { noTable->Delete(); }),
              u"The statement has no table that records can be written to");
}

TEST_F(DataTest, ARecordIsReadAgainWithTheStatementsOwnParameters) {
    TFDQuery* query = Query(
        u"SELECT :MARCA M, C.ID, C.QTD, C.QTD * CAST(:VEZES AS INTEGER) V FROM CLIENTE C LEFT JOIN CIDADE D "
        u"ON D.ID = "
        u"C.ID_CIDADE "
        u"AND D.NM <> :NM WHERE C.ID < :MAX AND C.UF = :UF ORDER BY C.ID"_s);
    query->SQL()->SetText(query->SQL()->Text().replace(u":MARCA"_s, u"CAST(:MARCA AS VARCHAR(9))"_s));
    query->ParamByName(u"MARCA"_s)->SetAsString(u"marca"_s);
    query->ParamByName(u"VEZES"_s)->SetAsInteger(10);
    query->ParamByName(u"NM"_s)->SetAsString(u"x"_s);
    query->ParamByName(u"MAX"_s)->SetAsInteger(9);
    query->ParamByName(u"UF"_s)->SetAsString(u"SP"_s);
    query->Open();
    query->Edit();
    query->FieldByName(u"QTD"_s)->SetAsInteger(4);
    query->Post();
    EXPECT_EQ(query->FieldByName(u"V"_s)->AsInteger(), 40);
    EXPECT_EQ(query->FieldByName(u"M"_s)->AsString(), u"marca");
}

TEST_F(DataTest, KeysOfSeveralColumnsAndKeysTheServerMakes) {
    Exec(
        u"CREATE TABLE \"Item x\" (PEDIDO INTEGER NOT NULL, SEQ INTEGER NOT NULL, QTD NUMERIC(9,3), "
        u"PRIMARY KEY (PEDIDO, SEQ))"_s);
    Exec(u"INSERT INTO \"Item x\" VALUES (1, 1, 5)"_s);
    Exec(u"INSERT INTO \"Item x\" VALUES (1, 2, 6)"_s);
    TFDQuery* items = Open(u"SELECT * FROM \"Item x\" ORDER BY SEQ"_s);
    ASSERT_TRUE(items->Locate(u"PEDIDO;SEQ"_s, Variant::Array({1, u"2"_s})));
    items->Edit();
    items->FieldByName(u"SEQ"_s)->SetAsInteger(3);
    items->FieldByName(u"QTD"_s)->SetAsDecimal({12345, 4});
    items->Post();
    EXPECT_EQ(Scalar(u"SELECT LIST(SEQ || '=' || QTD) FROM \"Item x\""_s), u"1=5.000,3=1.235");
    Exec(
        u"CREATE TABLE AUTO (ID INTEGER GENERATED BY DEFAULT AS IDENTITY PRIMARY KEY, A INTEGER DEFAULT 7)"_s);
    TFDQuery* numbered = Open(u"SELECT * FROM AUTO"_s);
    EXPECT_FALSE(numbered->FieldByName(u"ID"_s)->Required());
    numbered->Append();
    numbered->Post();
    EXPECT_EQ(numbered->FieldByName(u"ID"_s)->AsInteger(), 1);
    EXPECT_EQ(numbered->FieldByName(u"A"_s)->AsInteger(), 7);
}

TEST_F(DataTest, NoIncrementIsLostBetweenUsers) {
    Exec(u"UPDATE CLIENTE SET QTD = 0 WHERE ID = 1"_s);
    std::vector<TFDQuery*> users;
    for (int i = 0; i < 3; ++i)
        users.push_back(Open(u"SELECT ID, QTD FROM CLIENTE WHERE ID = 1"_s, Connect()));
    int accepted = 0;
    for (int i = 0; i < 60; ++i) {
        TFDQuery* user = users[static_cast<size_t>(i * 7 % 11 % 3)];
        user->Edit();
        user->FieldByName(u"QTD"_s)->SetAsInteger(user->FieldByName(u"QTD"_s)->AsInteger() + 1);
        const UnicodeString message = MessageOf([&] { user->Post(); });
        accepted += message.isEmpty();
        if (message.isEmpty()) continue;
        EXPECT_EQ(message, kChangedByOther);
        user->Cancel();
        user->Refresh();
    }
    EXPECT_EQ(Scalar(u"SELECT QTD FROM CLIENTE WHERE ID = 1"_s).toInt(), accepted);
    EXPECT_TRUE(accepted > 10 && accepted < 60);
}

TEST_F(DataTest, EventsComeInOrderAndMayRefuse) {
    TFDQuery* query = Query(kAll);
    UnicodeString heard;
    const auto hear = [&](QChar name) { return [&heard, name](TDataSet*) { heard += name; }; };
    query->BeforeOpen = hear(u'o');
    query->AfterOpen = hear(u'O');
    query->AfterScroll = hear(u's');
    query->BeforeInsert = hear(u'i');
    query->OnNewRecord = hear(u'n');
    query->AfterInsert = hear(u'I');
    query->BeforeEdit = hear(u'e');
    query->AfterEdit = hear(u'E');
    query->BeforePost = hear(u'p');
    query->AfterPost = hear(u'P');
    query->BeforeCancel = hear(u'c');
    query->AfterCancel = hear(u'C');
    query->BeforeDelete = hear(u'd');
    query->AfterDelete = hear(u'D');
    query->BeforeClose = hear(u'x');
    query->AfterClose = hear(u'X');
    query->Open();
    query->Next();
    query->Edit();
    query->FieldByName(u"QTD"_s)->SetAsInteger(8);
    query->Post();
    query->Append();
    query->Cancel();
    query->Delete();
    query->Close();
    EXPECT_EQ(heard, u"oOsseEpPinIscCdDsxX");

    query->Open();
    query->BeforeDelete = [](TDataSet*) { Abort(); };
    EXPECT_THROW(query->Delete(), EAbort);
    query->OnNewRecord = [](TDataSet*) { Abort(); };
    EXPECT_THROW(query->Insert(), EAbort);
    EXPECT_EQ(query->State(), dsBrowse);
    EXPECT_EQ(query->RowCount(), 2);
}

}  // namespace
