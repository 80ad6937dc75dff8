// Data-aware controls writing to a real table.
#include "tests/platform/ui/GridFixture.h"

namespace {

class DBCtrlsTest : public GridFixture {
  protected:
    void SetUp() override {
        GridFixture::SetUp();
        Plain = NewControl<TEdit>(Form, Form, u"Plain"_s, QRect(450, 4, 90, 25));
        Application->OnException = [this](const Exception& e) { Shown = e.Message; };
        Fill(3);
    }
    TField* Field(const UnicodeString& name) { return Query->FieldByName(name); }

    TEdit* Plain = nullptr;
    UnicodeString Shown;
};

}  // namespace

TEST_F(DBCtrlsTest, TypingBeginsTheEditAndLeavingCommits) {
    auto* name = NewEdit<TDBEdit>(u"NM"_s);
    EXPECT_EQ(name->Text(), u""_s);
    Query->Open();
    EXPECT_EQ(name->Text(), u"Cliente 1"_s);
    name->SetFocus();
    Type(u"ab"_s);
    EXPECT_EQ(Query->State(), dsEdit);
    EXPECT_EQ(name->Text(), u"ab"_s);
    EXPECT_EQ(Field(u"NM"_s)->AsString(), u"Cliente 1"_s);
    Plain->SetFocus();
    EXPECT_EQ(Field(u"NM"_s)->AsString(), u"ab"_s);
    name->SetFocus();
    Type(u"posted while focused"_s);
    Query->Post();
    EXPECT_EQ(Stored(u"NM"_s, 1), u"posted while focused"_s);
    Type(u"x"_s);
    Query->Cancel();
    EXPECT_EQ(name->Text(), u"posted while focused"_s);
    Query->Next();
    EXPECT_EQ(name->Text(), u"Cliente 2"_s);
}

TEST_F(DBCtrlsTest, ARefusedTextTakesTheFocusBack) {
    auto* value = NewEdit<TDBEdit>(u"VL"_s);
    Query->Open();
    value->SetFocus();
    Type(u"1x"_s);
    EXPECT_ANY_THROW(Plain->SetFocus());
    EXPECT_TRUE(value->Focused());
    EXPECT_EQ(value->Text(), u"1x"_s);
    EXPECT_EQ(value->selectedText(), u"1x"_s);
    EXPECT_ANY_THROW(Query->Post());
    QTest::mouseClick(Plain, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Shown.isEmpty(); }));
    EXPECT_TRUE(value->Focused());
    Type(u"12,5"_s);
    Plain->SetFocus();
    EXPECT_EQ(Field(u"VL"_s)->AsString(), u"12,5"_s);
    Query->Cancel();
}

TEST_F(DBCtrlsTest, NumbersShowTheirFormatUntilTheyAreEdited) {
    auto* value = NewEdit<TDBEdit>(u"VL"_s);
    Query->Open();
    static_cast<TNumericField*>(Field(u"VL"_s))->SetDisplayFormat(u"#,##0.00"_s);
    EXPECT_EQ(value->Text(), u"1,50"_s);
    value->SetFocus();
    EXPECT_EQ(value->Text(), u"1,5"_s);
    Type(u"1234"_s);
    Plain->SetFocus();
    EXPECT_EQ(value->Text(), u"1.234,00"_s);
    Query->Cancel();
}

TEST_F(DBCtrlsTest, MasksFillAndCheckTheText) {
    auto* cpf = NewEdit<TDBEdit>(u"CPF"_s);
    Query->DescribeFields();
    Field(u"CPF"_s)->SetEditMask(u"000.000.000-00;0;_"_s);
    Query->Open();
    cpf->SetFocus();
    Type(u"123"_s);
    EXPECT_ANY_THROW(Plain->SetFocus());
    EXPECT_TRUE(cpf->Focused());
    Type(u"12345678909"_s);
    Plain->SetFocus();
    EXPECT_EQ(cpf->EditText(), u"123.456.789-09"_s);
    Query->Post();
    EXPECT_EQ(Stored(u"CPF"_s, 1), u"12345678909"_s);
}

TEST_F(DBCtrlsTest, WithoutAutoEditTypingChangesNothing) {
    auto* name = NewEdit<TDBEdit>(u"NM"_s);
    auto* box = NewEdit<TDBCheckBox>(u"TF_DEL"_s, 100);
    Source->SetAutoEdit(false);
    Query->Open();
    name->SetFocus();
    Type(u"x"_s);
    box->SetFocus();
    Type(u" "_s);
    EXPECT_EQ(name->Text(), u"Cliente 1"_s);
    EXPECT_EQ(box->checkState(), Qt::Unchecked);
    EXPECT_EQ(Query->State(), dsBrowse);
    Query->Edit();
    Type(u" "_s);
    EXPECT_EQ(Field(u"TF_DEL"_s)->AsString(), u"S"_s);
    Query->Cancel();
    EXPECT_EQ(box->checkState(), Qt::Unchecked);
}

TEST_F(DBCtrlsTest, CheckBoxTellsThreeStatesAndSetsTwo) {
    auto* box = NewEdit<TDBCheckBox>(u"TF_DEL"_s);
    Connection->ExecSQL(u"UPDATE CLIENTE SET TF_DEL = CASE ID WHEN 1 THEN 'S' WHEN 2 THEN 'N' END"_s);
    Query->Open();
    box->SetFocus();
    const struct {
        Qt::CheckState Shown;
        UnicodeString AfterClick;
    } cases[] = {{Qt::Checked, u"N"_s}, {Qt::Unchecked, u"S"_s}, {Qt::PartiallyChecked, u"S"_s}};
    for (const auto& each : cases) {
        EXPECT_EQ(box->checkState(), each.Shown);
        Type(u" "_s);
        EXPECT_EQ(Field(u"TF_DEL"_s)->AsString(), each.AfterClick);
        Query->Next();
    }
}

TEST_F(DBCtrlsTest, ComboStoresTheChosenText) {
    auto* combo = NewEdit<TDBComboBox>(u"CD_UF"_s);
    combo->Items()->SetText(u"SP\nRJ\nMG"_s);
    Query->Open();
    EXPECT_EQ(combo->ItemIndex(), -1);
    combo->SetFocus();
    Type(u"r"_s);
    EXPECT_EQ(Query->State(), dsEdit);
    Plain->SetFocus();
    EXPECT_EQ(Field(u"CD_UF"_s)->AsString(), u"RJ"_s);
    Query->Next();
    EXPECT_EQ(combo->ItemIndex(), -1);
    Query->Prior();
    EXPECT_EQ(combo->ItemIndex(), 1);
}

TEST_F(DBCtrlsTest, LookupStoresTheKeyAndShowsTheText) {
    Connection->ExecSQL(u"CREATE TABLE UF (CD VARCHAR(2) PRIMARY KEY, NM VARCHAR(30))"_s);
    Connection->ExecSQL(u"INSERT INTO UF VALUES ('SP', 'São Paulo')"_s);
    Connection->ExecSQL(u"INSERT INTO UF VALUES ('RJ', 'Rio de Janeiro')"_s);
    auto* states = new TDataSource(Form);
    states->SetDataSet(NewQuery(u"SELECT CD, NM FROM UF ORDER BY NM"_s));
    auto* lookup = NewEdit<TDBLookupComboBox>(u"CD_UF"_s);
    lookup->SetListSource(states);
    lookup->SetKeyField(u"CD"_s);
    lookup->SetListField(u"NM"_s);
    states->DataSet()->Open();
    Query->Open();
    EXPECT_EQ(lookup->Text(), u""_s);
    lookup->SetFocus();
    Type(u"s"_s);
    EXPECT_EQ(Field(u"CD_UF"_s)->AsString(), u"SP"_s);
    EXPECT_EQ(lookup->Text(), u"São Paulo"_s);
    EXPECT_EQ(lookup->KeyValue(), Variant(u"SP"_s));
    lookup->DropDown();
    EXPECT_TRUE(lookup->ListVisible());
    EXPECT_TRUE(lookup->Focused());
    lookup->CloseUp();
    lookup->SetKeyValue(Variant::Null());
    EXPECT_TRUE(Field(u"CD_UF"_s)->IsNull());
    EXPECT_EQ(lookup->Text(), u""_s);
    Field(u"CD_UF"_s)->SetAsString(u"XX"_s);
    EXPECT_EQ(lookup->Text(), u""_s) << "no row has that key";
    Query->Cancel();
}

TEST_F(DBCtrlsTest, MemoAndTextShowTheField) {
    auto* memo = NewEdit<TDBMemo>(u"OBS"_s);
    auto* text = NewEdit<TDBText>(u"NM"_s, 100);
    Query->Open();
    EXPECT_EQ(text->text(), u"Cliente 1"_s);
    memo->SetFocus();
    Type(u"um"_s);
    Key(Qt::Key_Return);
    Type(u"dois"_s);
    Query->Post();
    EXPECT_EQ(Stored(u"CAST(OBS AS VARCHAR(100))"_s, 1), u"um\r\ndois"_s);
    Query->Next();
    EXPECT_EQ(memo->Text(), u""_s);
    EXPECT_EQ(Query->State(), dsBrowse);
}

TEST_F(DBCtrlsTest, ControlsAreNamedAfterTheirFieldAndSurviveIt) {
    auto* name = NewEdit<TDBEdit>(u"NM"_s);
    Query->DescribeFields();
    EXPECT_EQ(name->Field(), Field(u"NM"_s));
    EXPECT_EQ(name->AccessibleName(), u"NM"_s);
    Query->Open();
    Query->SQL()->SetText(u"SELECT ID FROM CLIENTE"_s);
    Query->Open();
    EXPECT_EQ(name->Field(), nullptr);
    EXPECT_EQ(name->Text(), u""_s);
    Source->Free();
    EXPECT_EQ(name->DataSource(), nullptr);
}
