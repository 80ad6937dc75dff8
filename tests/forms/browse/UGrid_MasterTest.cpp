#include "forms/browse/UGrid_Master.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "platform/data/Connection.h"
#include "platform/data/Query.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "tests/support/Screen.h"
#include "tests/support/ScreenScript.h"

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
    QString Kind;
    int OrderTag;
    TVizsualizationType VisType() const { return Kind == u"list" ? vtList : vtFilter; }
};

class TFrmTeste : public TFrmGrid_Master {
  public:
    TFrmTeste(TModuleInstance* module, TFDConnection* connection, const TOptions& options)
        : TFrmGrid_Master(Application, module, false, options.VisType(), ktFieldProviderFlag),
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
        Query->SetName(u"Query"_s);
        Query->SetConnection(FConnection);
        const QString fields = FOptions.Kind.contains(u"key") ? u"NM"_s : u"*"_s;
        const QString order = FOptions.Kind == u"list" ? u" ORDER BY NM"_s : QString();
        Query->SQL()->SetText(u"SELECT "_s + fields + u" FROM PESSOA"_s + order);
        Query->SetTag(FOptions.OrderTag);
        Query->DescribeFields();
        Query->AfterOpen = [this](TDataSet*) { ++Opened; };
        if (FOptions.Kind != u"keyless") AddPrimaryKeyField(u"NM"_s);
        if (FOptions.Kind != u"unbound") MainDS->SetDataSet(Query);
        if (FOptions.Kind == u"bare") return;
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
        Connection = new TFDConnection(nullptr);
        Connection->Params()->SetText(
            u"Protocol=Local\nUser_Name=SYSDBA\nCharacterSet=ISO8859_1\nForcedWrites=False\nDatabase="_s +
            Folder.filePath(u"t%1.fdb"_s.arg(++Databases)));
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
    void Open(const QString& kind, int tag) {
        Form = NewForm<TFrmTeste>(&Module, Connection, TOptions{kind, tag});
        Settle();
    }
    // The names in the grid, in its order.
    QString Names() const {
        QStringList names;
        for (Form->Query->First(); !Form->Query->Eof(); Form->Query->Next()) {
            names << Form->Query->FieldByName(u"NM"_s)->AsString();
        }
        return names.join(u',');
    }
    // The names that a text finds, and whether the table is still there.
    QString Find(const UnicodeString& text) {
        Form->EdtPesquisa->SetFocus();
        Form->EdtPesquisa->SetText(text);
        Form->FinishSearch();
        EXPECT_EQ(Connection->ExecSQLScalar(u"SELECT COUNT(*) FROM PESSOA"_s).ToInt(), 6);
        return Names();
    }
    QPoint Title(const QString& column) const {
        return Form->DBGrd->Geometry().Title(column.toInt()).center();
    }

    QTemporaryDir Folder;
    int Databases = 0;
    TFDConnection* Connection = nullptr;
    TFrmTeste* Form = nullptr;
    TModuleInstance Module{nullptr, {u"PESSOAS"_s, u"Pessoas"_s, {}}};
};

TEST_F(GridMaster, OrdersAndSearches) {
    using A = QStringList;
    const auto yes = [](bool is) { return is ? u"yes"_s : u"no"_s; };
    CheckScreenTable(
        BROWSE_TESTS "/tables/pesquisa.txt", [&] { return Form->Query; },
        {{u"Case"_s, Does([&](const A&) { TearDown(), SetUp(); })},
         {u"Open"_s, Does([&](const A& a) { Open(a[0], a[1].toInt()); })},
         {u"Order"_s, [&](const A&) { return QString::number(Form->OrderFieldIndex()); }},
         {u"OrderBy"_s, Does([&](const A& a) { Form->SetOrderFieldIndex(a[0].toInt()); })},
         {u"AddKey"_s, Does([&](const A& a) { Form->AddPrimaryKeyField(a[0]); })},
         {u"Keys"_s,
          [&](const A&) { return QStringList(Form->PrimaryKey.begin(), Form->PrimaryKey.end()).join(u','); }},
         {u"Title"_s, [&](const A& a) { return Form->GetColumnTitle(a[0].toInt()); }},
         {u"Opened"_s, [&](const A&) { return QString::number(Form->Opened); }},
         {u"Looking"_s, [&](const A&) { return yes(Form->LookingForRecords); }},
         {u"Searched"_s, [&](const A&) { return yes(Until([&] { return !Form->LookingForRecords; })); }},
         {u"Names"_s, [&](const A&) { return Names(); }},
         {u"Find"_s, [&](const A& a) { return Find(a[0] == u"long" ? QString(10000, u'x') : a[0]); }},
         {u"Refresh"_s, Does([&](const A&) { Form->RefreshData(); })},
         {u"Clear"_s, Does([&](const A&) { Form->ClearSearch(); })},
         {u"Gap"_s,
          [&](const A&) {
              const TPanel& first = *Form->PnPesquisa2;
              return QString::number(Form->PnPesquisa->Left() - first.Left() - first.Width());
          }},
         {u"Sql"_s, Does([&](const A& a) { Connection->ExecSQL(a[0]); })},
         {u"From"_s, Does([&](const A& a) { Form->Query->SQL()->SetText(u"SELECT * FROM "_s + a[0]); })},
         {u"ShowDeleted"_s, Does([&](const A&) { Form->SetShowDeleted(true); })},
         {u"Until"_s, Does([&](const A& a) { Form->DpPesq2->SetDate(StrToDate(a[0])); })},
         {u"Today"_s, Does([&](const A& a) { SetClock([day = StrToDate(a[0])] { return day; }); })},
         {u"DragTitle"_s, Does([&](const A& a) { Drag(Form->DBGrd->viewport(), Title(a[0]), Title(a[1])); })},
         {u"ClickTitle"_s, Does([&](const A& a) { ClickAt(Form->DBGrd->viewport(), Title(a[0])); })},
         {u"Closed"_s, [&](const A&) { return yes(Until([] { return Application->Forms().empty(); })); }}});
}

}  // namespace
