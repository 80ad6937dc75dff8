#include "forms/browse/UGrid_Master.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "platform/data/Connection.h"
#include "platform/data/Query.h"
#include "platform/rtl/DateTime.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const char* const kTable =
    "CREATE TABLE PESSOA (ID INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(40) COLLATE PT_BR, VL NUMERIC(15,2), "
    "DT DATE, "
    "ATIVO CHAR(1), TF_DEL CHAR(1))";
const char* const kRows[] = {
    "1, 'Ana', 10.50, '2024-03-01', 'S', 'N'",   "2, 'João', 20, '2024-03-31', 'N', NULL",
    "3, 'Joana', 30.25, '2024-04-01', 'S', 'N'", "4, 'O''Brien', 40, '2023-03-15', 'S', 'N'",
    "5, 'Jorge', 50, '2024-03-10', 'S', 'S'",    "6, 'Maria', NULL, NULL, 'N', 'N'"};

struct TOptions {
    TVizsualizationType VisType = vtFilter;
    TKeyType KeyType = ktFieldProviderFlag;
    int OrderTag = 1;
    bool Dataset = true;
    bool Columns = true;
};

class TFrmTeste : public TFrmGrid_Master {
  public:
    TFrmTeste(TModuleInstance* module, TFDConnection* connection, const TOptions& options)
        : TFrmGrid_Master(Application, module, false, options.VisType, options.KeyType),
          FConnection(connection),
          FOptions(options) {}
    using TFrmGrid_Master::FTmPesquisa;
    TLabel* LbRegCount = nullptr;
    TFDQuery* Query = nullptr;
    int Opened = 0;

  protected:
    void CreateControls() override {
        TFrmGrid_Master::CreateControls();
        SetClientWidth(760);
        SetClientHeight(420);
        LbRegCount = NewControl<TLabel>(this, this, u"LbRegCount"_s, QRect(8, 8, 120, 18));
        Query = new TFDQuery(this);
        Query->SetConnection(FConnection);
        Query->SQL()->SetText(FOptions.VisType == vtList ? u"SELECT * FROM PESSOA ORDER BY NM"_s
                                                         : u"SELECT * FROM PESSOA"_s);
        Query->SetTag(FOptions.OrderTag);
        Query->DescribeFields();
        Query->AfterOpen = [this](TDataSet*) { ++Opened; };
        if (FOptions.Dataset) MainDS->SetDataSet(Query);
        if (!FOptions.Columns) return;
        DBGrd->AddColumn(u"ID"_s, u"Código"_s, 80);
        DBGrd->AddColumn(u"NM"_s, u"Nome"_s, 200);
        DBGrd->AddColumn(u"VL"_s, u"Valor"_s, 100);
        DBGrd->AddColumn(u"DT"_s, u"Data"_s, 100);
        DBGrd->AddColumn(u"ATIVO"_s, u"Ativo"_s, 80)->PickList().SetText(u"SIM;S\nNÃO;N"_s);
    }

  private:
    TFDConnection* FConnection;
    TOptions FOptions;
};

class GridMaster : public testing::Test {
  protected:
    void SetUp() override {
        SetProgramFolder(Folder.path());
        Connection->Params()->SetText(
            u"Protocol=Local\nUser_Name=SYSDBA\nCharacterSet=ISO8859_1\nForcedWrites=False\nDatabase="_s +
            Folder.filePath(u"t.fdb"_s));
        Connection->CreateDatabase();
        Connection->ExecSQL(QString::fromUtf8(kTable));
        for (const char* row : kRows) {
            Connection->ExecSQL(u"INSERT INTO PESSOA VALUES (%1)"_s.arg(QString::fromUtf8(row)));
        }
    }
    void TearDown() override {
        for (TForm* form : std::vector(Application->Forms())) form->Free();
        Connection->Free();
        SetClock(nullptr);
        SetProgramFolder({});
    }
    TFrmTeste* Open(const TOptions& options = {}) {
        auto* form = NewForm<TFrmTeste>(&Module, Connection, options);
        Settle();
        return form;
    }
    // The names in the grid, in its order.
    static UnicodeString Names(TFrmTeste* form) {
        QStringList names;
        for (form->Query->First(); !form->Query->Eof(); form->Query->Next()) {
            names << form->Query->FieldByName(u"NM"_s)->AsString();
        }
        return names.join(u',');
    }
    static bool Searched(TFrmTeste* form) {
        return Until([&] { return !form->LookingForRecords; });
    }

    QTemporaryDir Folder;
    TFDConnection* Connection = new TFDConnection(nullptr);
    TModuleInstance Module{nullptr, {u"PESSOAS"_s, u"Pessoas"_s, {}}};
};

TEST_F(GridMaster, TakesTheOrderFromTheDatasetsTag) {
    TFrmTeste* form = Open();
    EXPECT_EQ(form->OrderFieldIndex(), 1);
    EXPECT_EQ(form->DBGrd->Columns()[1]->Title().Caption(), u"»Nome"_s);
    EXPECT_EQ(form->GetColumnTitle(1), u"Nome"_s);
    EXPECT_EQ(form->LbRegCount->Caption(), u"Nenhum registro"_s);
    form->SetOrderFieldIndex(0);
    EXPECT_EQ(form->DBGrd->Columns()[1]->Title().Caption(), u"Nome"_s);
    EXPECT_EQ(Open({.OrderTag = 5})->OrderFieldIndex(), 0);  // no column shows that field
    EXPECT_EQ(Open({.OrderTag = 99})->OrderFieldIndex(), 0);
}

TEST_F(GridMaster, RefusesWhatIsNotBound) {
    EXPECT_THROW(Open({.Dataset = false}), Exception);
    EXPECT_THROW(Open({.Columns = false}), Exception);
    TFrmTeste* form = Open();
    EXPECT_THROW(form->SetOrderFieldIndex(5), Exception);
    EXPECT_THROW(form->AddPrimaryKeyField(u"NM"_s), Exception);
    form->Query->FieldByName(u"VL"_s)->SetOrigin(u"#0"_s);
    EXPECT_THROW(form->SetOrderFieldIndex(2), EAbort);
    EXPECT_EQ(form->OrderFieldIndex(), 1);
    EXPECT_EQ(form->PrimaryKey, TStringArray{u"ID"_s});
}

TEST_F(GridMaster, SearchesOnceAfterTheLastKey) {
    TFrmTeste* form = Open();
    Press(VK_F3);
    EXPECT_TRUE(form->EdtPesquisa->Focused());
    EXPECT_EQ(form->EdtPesquisa->Text(), u""_s);
    TypeText(u"joa"_s);
    EXPECT_TRUE(form->LookingForRecords);
    EXPECT_EQ(form->Opened, 0);
    EXPECT_TRUE(form->ImgCancelPesq->Visible());
    EXPECT_TRUE(Searched(form));  // the real 200 ms
    EXPECT_EQ(form->Opened, 1);
    EXPECT_EQ(Names(form), u"Joana,João"_s);
    EXPECT_EQ(form->LbRegCount->Caption(), u"2 Registros"_s);
}

TEST_F(GridMaster, GivingTheGridTheFocusSearchesAtOnce) {
    TFrmTeste* form = Open();
    form->DBGrd->SetFocus();
    TypeText(u"m"_s);  // typing on the grid starts a search
    EXPECT_TRUE(form->EdtPesquisa->Focused());
    EXPECT_EQ(form->EdtPesquisa->Text(), u"m"_s);
    Press(VK_RETURN);
    EXPECT_TRUE(form->DBGrd->Focused());
    EXPECT_FALSE(form->LookingForRecords);
    EXPECT_EQ(form->Opened, 1);
    EXPECT_EQ(Names(form), u"Maria"_s);
}

TEST_F(GridMaster, EscapeClearsTheSearchAndThenCloses) {
    TFrmTeste* form = Open();
    Press(VK_F3);
    TypeText(u"ana"_s);
    Searched(form);
    Press(VK_ESCAPE);
    EXPECT_EQ(form->EdtPesquisa->Text(), u"Pesquisa (F3)"_s);
    EXPECT_TRUE(form->EdtPesquisa->Font().italic());
    EXPECT_TRUE(form->DBGrd->Focused());
    EXPECT_TRUE(form->Showing());
    Press(VK_ESCAPE);
    EXPECT_TRUE(Until([&] { return Application->Forms().empty(); }));
}

TEST_F(GridMaster, SurvivesHostileSearchTexts) {
    TFrmTeste* form = Open();
    const UnicodeString texts[] = {
        u"o'"_s,       u"'; DROP TABLE PESSOA; --"_s, u"%"_s, u"_"_s, u"*ana"_s, u"ÇÃ€"_s,
        u"\\\t\r\n"_s, UnicodeString(10000, u'x')};
    const char16_t* found[] = {
        u"O'Brien", u"", u"Ana,João,Joana,Maria,O'Brien", u"Ana,João,Joana,Maria,O'Brien", u"Ana,Joana", u"",
        u"",        u""};
    for (size_t i = 0; i < std::size(texts); ++i) {
        SCOPED_TRACE(texts[i].left(30).toStdString());
        form->EdtPesquisa->SetFocus();
        form->EdtPesquisa->SetText(texts[i]);
        form->FinishSearch();
        QStringList names = Names(form).split(u',');
        names.sort();
        QStringList expected = UnicodeString::fromUtf16(found[i]).split(u',');
        expected.sort();
        EXPECT_EQ(names, expected) << qPrintable(names.join(u','));
    }
    EXPECT_EQ(Connection->ExecSQLScalar(u"SELECT COUNT(*) FROM PESSOA"_s).ToInt(), 6);
}

TEST_F(GridMaster, SearchesNumbersSingleAndInRanges) {
    const struct {
        const char* Case;
        const char16_t *From, *To, *Found;
    } cases[] = {{"both boxes empty", u"", u"", u"Ana,João,Joana,O'Brien"},
                 {"single", u"20", u"", u"João"},
                 {"range", u"10,5", u"30,25", u"Ana,João,Joana"},
                 {"nothing", u"1", u"2", u""}};
    TFrmTeste* form = Open();
    form->SetOrderFieldIndex(2);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        Press(VK_F3);
        EXPECT_TRUE(form->EdtPesquisa2->Focused());
        EXPECT_EQ(form->PnPesquisa->Left(), form->PnPesquisa2->Left() + form->PnPesquisa2->Width() + 22);
        TypeText(UnicodeString::fromUtf16(c.From));
        Press(VK_RETURN);
        TypeText(UnicodeString::fromUtf16(c.To));
        form->RefreshData();
        EXPECT_EQ(Names(form), UnicodeString::fromUtf16(c.Found));
        form->ClearSearch();
        EXPECT_FALSE(form->PnPesquisa2->Visible());
        EXPECT_EQ(form->PnPesquisa->Width(), 250);
    }
}

TEST_F(GridMaster, LetsOnlyNumbersIntoANumericColumn) {
    TFrmTeste* form = Open();
    form->SetOrderFieldIndex(2);
    Press(VK_F3);
    TypeText(u"a1.2,3-x"_s);
    EXPECT_EQ(form->EdtPesquisa2->Text(), u"1,23"_s);
    form->SetOrderFieldIndex(0);
    Press(VK_F3);
    TypeText(u"1,2x"_s);
    EXPECT_EQ(form->EdtPesquisa2->Text(), u"12"_s);
}

TEST_F(GridMaster, SearchesTheMonthWhenADateColumnIsChosen) {
    SetClock([] { return EncodeDate(2024, 3, 15); });
    TFrmTeste* form = Open();
    form->SetOrderFieldIndex(3);
    EXPECT_EQ(Names(form), u"Ana,João"_s);  // the deleted one is hidden
    EXPECT_TRUE(form->DpPesq1->Visible());
    EXPECT_FALSE(form->EdtPesquisa->Visible());
    form->SetShowDeleted(true);
    form->DpPesq2->SetDate(EncodeDate(2024, 4, 1));
    form->RefreshData();
    EXPECT_EQ(Names(form), u"Ana,Jorge,João,Joana"_s);
}

TEST_F(GridMaster, OffersTheValuesOfAPickList) {
    TFrmTeste* form = Open();
    form->SetOrderFieldIndex(4);
    EXPECT_TRUE(form->CbPesquisa->Visible());
    EXPECT_EQ(form->CbPesquisa->Text(), u"SIM"_s);
    form->CbPesquisa->SetFocus();
    Press(VK_DOWN);
    EXPECT_EQ(Names(form), u"João,Maria"_s);
    form->SetOrderFieldIndex(1);
    EXPECT_FALSE(form->CbPesquisa->Visible());
    EXPECT_TRUE(form->EdtPesquisa->Visible());
}

TEST_F(GridMaster, ListModeMovesToTheFirstThatBeginsSo) {
    TFrmTeste* form = Open({.VisType = vtList});
    const auto current = [&] { return form->Query->FieldByName(u"NM"_s)->AsString(); };
    EXPECT_TRUE(form->Query->Active());
    Press(VK_F3);
    TypeText(u"JOR"_s);
    EXPECT_EQ(current(), u"Jorge"_s);
    Press(VK_UP);
    EXPECT_NE(current(), u"Jorge"_s);
    Press(VK_F5);
    EXPECT_EQ(current(), u"Ana"_s);
    form->EdtPesquisa->SetText(u"m"_s);
    EXPECT_EQ(current(), u"Maria"_s);
    form->EdtPesquisa->SetText({});
    EXPECT_EQ(current(), u"Ana"_s);
}

TEST_F(GridMaster, ADraggedColumnKeepsTheOrder) {
    TFrmTeste* form = Open();
    form->RefreshData();
    const auto title = [&](int column) { return form->DBGrd->Geometry().Title(column).center(); };
    Drag(form->DBGrd->viewport(), title(1), title(3));
    EXPECT_NE(form->DBGrd->Columns()[1]->FieldName(), u"NM"_s);
    EXPECT_EQ(form->DBGrd->Columns()[form->OrderFieldIndex()]->FieldName(), u"NM"_s);
    EXPECT_TRUE(form->Query->Active());
    ClickAt(form->DBGrd->viewport(), title(0));
    EXPECT_EQ(form->OrderFieldIndex(), 0);
    EXPECT_FALSE(form->Query->Active());
}

TEST_F(GridMaster, ALostTableIsToldAndSearchingWorksAgain) {
    TFrmTeste* form = Open();
    form->Query->SQL()->SetText(u"SELECT * FROM NAO_EXISTE"_s);
    EXPECT_THROW(form->RefreshData(), EDatabaseError);
    EXPECT_FALSE(form->LookingForRecords);
    form->Query->SQL()->SetText(u"SELECT * FROM PESSOA"_s);
    form->RefreshData();
    EXPECT_EQ(Names(form), u"Ana,Joana,João,Maria,O'Brien"_s);
}

}  // namespace
