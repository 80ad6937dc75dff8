// Fields: what the database describes, how values read, write and show.
#include "tests/platform/data/TestDatabase.h"

namespace {

const UnicodeString kAll = u"SELECT * FROM CLIENTE ORDER BY ID"_s;

TEST_F(DataTest, ColumnsBecomeFieldsOfTheirKind) {
    struct {
        QStringView Name;
        TFieldType Type;
        int Size;
        QStringView Text, Display;
    } const cases[] = {
        {u"ID", ftInteger, 0, u"1", u"1"},
        {u"NM", ftString, 20, u"Ação", u"Ação"},
        {u"UF", ftFixedChar, 2, u"SP", u"SP"},
        {u"SALDO", ftBCD, 2, u"1234,5", u"1.234,50"},
        {u"PESO", ftFloat, 0, u"70,5", u"70,50"},
        {u"QTD", ftSmallint, 0, u"3", u"3,00"},
        {u"CODIGO", ftLargeint, 0, u"9000000000", u"9.000.000.000,00"},
        {u"NASC", ftDate, 0, u"31/01/2000", u"31/01/2000"},
        {u"HORA", ftTime, 0, u"12:30:00", u"12:30:00"},
        {u"CRIADO", ftTimeStamp, 0, u"03/02/2001 04:05:06", u"03/02/2001 04:05:06"},
        {u"ATIVO", ftBoolean, 0, u"Sim", u"Sim"},
        {u"OBS", ftMemo, 0, u"memória", u"memória"},
        {u"FOTO", ftBlob, 0, u"", u""},
        {u"DOBRO", ftBCD, 2, u"2469", u"2.469,00"},
    };
    TFDQuery* query = Open(kAll);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name.toString().toStdString());
        TField* field = query->FieldByName(c.Name.toString().toLower());
        if (auto* number = dynamic_cast<TNumericField*>(field); number && c.Type != ftInteger) {
            number->SetDisplayFormat(u"#,##0.00"_s);
        }
        EXPECT_EQ(field->DataType(), c.Type);
        EXPECT_EQ(field->Size(), c.Size);
        EXPECT_EQ(field->AsString(), c.Text);
        EXPECT_EQ(field->DisplayText(), c.Display);
    }
    EXPECT_TRUE(dynamic_cast<TDateTimeField*>(query->FieldByName(u"NASC"_s)));
    EXPECT_FALSE(dynamic_cast<TDateTimeField*>(query->FieldByName(u"CRIADO"_s)));
    EXPECT_TRUE(dynamic_cast<TSQLTimeStampField*>(query->FieldByName(u"CRIADO"_s)));
    EXPECT_EQ(MessageOf([&] { query->FieldByName(u"X"_s); }), u"Field 'X' not found");
    query->Next();
    for (TField* field : query->Fields()) {
        const bool given = field->Index() < 2 || field->FieldName() == u"ID_CIDADE";
        EXPECT_EQ(field->IsNull(), !given) << field->FieldName().toStdString();
        EXPECT_TRUE(given || (field->AsString() + field->DisplayText()).isEmpty());
    }
}

TEST_F(DataTest, DescriptionTellsKeyOriginAndRequired) {
    TFDQuery* query = Query(
        u"SELECT C.ID, C.NM NOME, C.UF, UPPER(C.NM) M, D.NM CIDADE, C.DOBRO, D.ID FROM CLIENTE C "
        u"LEFT JOIN CIDADE D ON D.ID = C.ID_CIDADE"_s);
    query->DescribeFields();
    EXPECT_FALSE(query->Active());
    struct {
        QStringView Name, Origin, Table;
        bool Key, Required;
    } const cases[] = {
        {u"ID", u"ID", u"CLIENTE", true, true},      {u"NOME", u"NM", u"CLIENTE", false, true},
        {u"UF", u"UF", u"CLIENTE", false, false},    {u"M", u"", u"", false, false},
        {u"CIDADE", u"NM", u"CIDADE", false, false}, {u"DOBRO", u"DOBRO", u"CLIENTE", false, false},
        {u"ID_1", u"ID", u"CIDADE", false, false}};
    ASSERT_EQ(query->FieldCount(), 7);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name.toString().toStdString());
        const TField* field = query->FieldByName(c.Name.toString());
        EXPECT_EQ(field->Origin(), c.Origin);
        EXPECT_EQ(field->BaseTable(), c.Table);
        EXPECT_EQ((field->ProviderFlags() & pfInKey) != 0, c.Key);
        EXPECT_EQ(field->Required(), c.Required);
    }
}

TEST_F(DataTest, ASelfJoinKnowsWhichColumnsAreTheMainTables) {
    Exec(u"CREATE TABLE ARVORE (ID INTEGER NOT NULL PRIMARY KEY, PAI INTEGER, NM VARCHAR(10))"_s);
    Exec(u"INSERT INTO ARVORE VALUES (1, NULL, 'raiz')"_s);
    Exec(u"INSERT INTO ARVORE VALUES (2, 1, 'folha')"_s);
    TFDQuery* query = Open(
        u"SELECT P.ID, P.NM, F.ID, F.NM FROM ARVORE F LEFT JOIN ARVORE P ON P.ID = F.PAI "
        u"WHERE F.ID = 2"_s);
    query->Edit();
    query->FieldByName(u"NM_1"_s)->SetAsString(u"nova"_s);
    query->Post();
    EXPECT_EQ(Scalar(u"SELECT NM FROM ARVORE WHERE ID = 1"_s), u"raiz");
    EXPECT_EQ(Scalar(u"SELECT NM FROM ARVORE WHERE ID = 2"_s), u"nova");
    EXPECT_FALSE(query->FieldByName(u"ID"_s)->ProviderFlags() & pfInKey);
}

TEST_F(DataTest, FieldsStayTheSameObjectsWithWhatTheHostSet) {
    TFDQuery* query = Query(u"SELECT ID, NM FROM CLIENTE"_s);
    query->DescribeFields();
    TField* id = query->FieldByName(u"ID"_s);
    TField* name = query->FieldByName(u"NM"_s);
    bool gone = false;
    const TFreeNotice notice = id->AddFreeNotification([&] { gone = true; });
    name->SetOrigin(u"#0"_s);
    name->SetDisplayLabel(u"Nome"_s);
    name->SetRequired(false);
    name->SetProviderFlags(pfInKey);
    name->SetTag(16706);
    query->Open();
    query->Close();
    query->SQL()->SetText(u"SELECT NM, CAST(1 AS VARCHAR(5)) ID, UF FROM CLIENTE"_s);
    query->Open();
    EXPECT_TRUE(gone) << "the type of ID changed";
    EXPECT_EQ(query->FieldByName(u"NM"_s), name);
    EXPECT_EQ(name->Index(), 0);
    EXPECT_EQ(name->Origin(), u"#0");
    EXPECT_EQ(name->DisplayLabel(), u"Nome");
    EXPECT_FALSE(name->Required());
    EXPECT_EQ(name->ProviderFlags(), pfInKey);
    EXPECT_EQ(name->Tag(), 16706);
    EXPECT_EQ(query->FieldByName(u"UF"_s)->DisplayLabel(), u"UF");
}

TEST_F(DataTest, TextsAreConvertedOrRefusedByTheLabel) {
    TFDQuery* query = Open(kAll);
    query->Edit();
    struct {
        QStringView Field, Text, Result, Error;
    } const cases[] = {
        {u"SALDO", u"1.234,567", u"1234,57", u""},
        {u"SALDO", u"-0,005", u"-0,01", u""},
        {u"SALDO", u"92233720368547758,07", u"92233720368547758,07", u""},
        {u"SALDO", u"92233720368547758,08", u"",
         u"\"92233720368547758,08\" não é um valor numérico válido para o campo \"SALDO\"."},
        {u"PESO", u"1.5", u"", u"\"1.5\" não é um valor numérico válido para o campo \"PESO\"."},
        {u"PESO", u"1,2,3", u"", u"\"1,2,3\" não é um valor numérico válido para o campo \"PESO\"."},
        {u"QTD", u"32768", u"", u"\"32768\" não é um número inteiro válido para o campo \"QTD\"."},
        {u"QTD", u"-32768", u"-32768", u""},
        {u"NASC", u"31/02/2000", u"", u"\"31/02/2000\" não é uma data válida para o campo \"NASC\"."},
        {u"NASC", u"29/02/2000", u"29/02/2000", u""},
        {u"NASC", u"  /  /    ", u"", u""},
        {u"HORA", u"25:00", u"", u"\"25:00\" não é uma hora válida para o campo \"HORA\"."},
        {u"ATIVO", u"não", u"Não", u""},
        {u"ATIVO", u"talvez", u"", u"\"talvez\" não é Sim ou Não para o campo \"ATIVO\"."},
        {u"NM", u"", u"", u""},
        {u"ID", u"", u"", u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE((c.Field.toString() + u' ' + c.Text.toString()).toStdString());
        TField* field = query->FieldByName(c.Field.toString());
        const UnicodeString before = field->AsString();
        EXPECT_EQ(MessageOf([&] { field->SetText(c.Text.toString()); }), c.Error);
        EXPECT_EQ(field->AsString(), c.Error.isEmpty() ? c.Result.toString() : before);
    }
    EXPECT_FALSE(query->FieldByName(u"NM"_s)->IsNull());
    EXPECT_TRUE(query->FieldByName(u"ID"_s)->IsNull());
}

TEST_F(DataTest, ValidationSeesAndMayChangeTheNewValue) {
    TFDQuery* query = Open(kAll);
    TField* weight = query->FieldByName(u"PESO"_s);
    int validated = 0, changed = 0;
    weight->OnValidate = [&](TField* field) {
        if (++validated > 1) return;
        EXPECT_EQ(field->AsFloat(), 10.126);
        field->SetAsFloat(10.13);
    };
    weight->OnChange = [&](TField*) { ++changed; };
    query->Edit();
    weight->SetAsFloat(10.126);
    EXPECT_EQ(weight->AsFloat(), 10.13);
    EXPECT_EQ(weight->OldValue(), Variant(70.5));
    EXPECT_EQ(validated, 2);
    EXPECT_EQ(changed, 1);
    weight->OnValidate = [](TField*) { Abort(); };
    EXPECT_THROW(weight->SetAsFloat(1), EAbort);
    EXPECT_EQ(weight->AsFloat(), 10.13);
}

TEST_F(DataTest, GetAndSetTextEventsStandBetweenValueAndControl) {
    TFDQuery* query = Open(kAll);
    TField* state = query->FieldByName(u"UF"_s);
    state->OnGetText = [](TField* field, UnicodeString& text, bool display) {
        text = display ? u"Estado de "_s + field->AsString() : field->AsString().toLower();
    };
    state->OnSetText = [](TField* field, const UnicodeString& text) { field->SetAsString(text.toUpper()); };
    EXPECT_EQ(state->DisplayText(), u"Estado de SP");
    EXPECT_EQ(state->Text(), u"sp");
    EXPECT_EQ(MessageOf([&] { state->SetText(u"pr"_s); }), u"Dataset not in edit or insert mode");
    query->Edit();
    state->SetText(u"pr"_s);
    EXPECT_EQ(state->AsString(), u"PR");
    state->SetReadOnly(true);
    EXPECT_EQ(MessageOf([&] { state->SetAsString(u"x"_s); }), u"Field 'UF' cannot be modified");
}

}  // namespace
