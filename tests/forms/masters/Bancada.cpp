#include "tests/forms/masters/Bancada.h"

#include "platform/data/Field.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TFrmTestePrincipal : public TForm {
  public:
    explicit TFrmTestePrincipal(TComponent* owner) : TForm(owner) { SetFormStyle(fsMDIForm); }

  protected:
    void CreateControls() override { SetBounds(0, 0, 1100, 800); }
};

TFDQuery* CustomerQuery(TComponent* owner, const TCaso& caso) {
    auto* query = new TFDQuery(owner);
    query->SetConnection(caso.Connection);
    query->SQL()->SetText(u"SELECT ID_CLI, NM_CLI, NR_CPF, VL_LIM, NM_EST%1\nFROM CLIENTE"_s.arg(
        caso.SelectDeleted ? u", TF_DEL"_s : UnicodeString()));
    query->DescribeFields();
    query->FieldByName(u"NM_CLI"_s)->SetDisplayLabel(u"Nome"_s);
    query->FieldByName(u"VL_LIM"_s)->SetTag(3);
    query->OnNewRecord = [](TDataSet* record) { record->FieldByName(u"ID_CLI"_s)->SetAsInteger(50); };
    return query;
}

}  // namespace

void TFrmTesteCliente::CreateControls() {
    TFrmCad_Master::CreateControls();
    const auto* view = dynamic_cast<TFrmTesteClientes*>(Owner());
    MainDS->SetDataSet(FCaso.Dados == DadosDaLista ? view->Query : CustomerQuery(this, FCaso));
    Comercial = new TTabSheet(this);
    Comercial->SetCaption(u"Comercial"_s);
    Comercial->SetPageControl(PageControl);
    Id = Edit(TabSheet1, u"ID_CLI"_s, 16);
    Id->SetReadOnly(true);
    Id->SetTabStop(false);
    Nome = Edit(TabSheet1, u"NM_CLI"_s, 56);
    Cpf = Edit(TabSheet1, u"NR_CPF"_s, 96);
    Limite = Edit(Comercial, u"VL_LIM"_s, 16);
    Uf = NewControl<TDBComboBox>(this, Comercial, u"Uf"_s, QRect(16, 56, 120, 25));
    Uf->Items()->Assign(TStringArray{u"PR"_s, u"SP"_s});
    Uf->SetDataSource(MainDS);
    Uf->SetDataField(u"NM_EST"_s);
}

TDBEdit* TFrmTesteCliente::Edit(TTabSheet* page, const UnicodeString& field, int top) {
    auto* edit = NewControl<TDBEdit>(this, page, field, QRect(16, top, 240, 25));
    edit->SetDataSource(MainDS);
    edit->SetDataField(field);
    return edit;
}

TFrmTesteClientes::TFrmTesteClientes(TComponent* owner, TModuleInstance* module, const TCaso& caso,
                                     TVizsualizationType visType, TKeyType keyType)
    : TFrmViz_Master(
          owner, module,
          caso.ReadOnly
              ? TClassCad_Master()
              : [&caso](
                    TComponent* opener, TModuleInstance* instance, unsigned char mode, TKeyType key,
                    bool load) { return NewForm<TFrmTesteCliente>(opener, instance, mode, key, load, caso); },
          visType, keyType),
      FCaso(caso) {}

void TFrmTesteClientes::CreateControls() {
    TFrmViz_Master::CreateControls();
    Query = CustomerQuery(this, FCaso);
    Query->SetTag(1);
    if (!FCaso.NotSearched.isEmpty()) {
        Query->DescribeFields();
        Query->FieldByName(FCaso.NotSearched)->SetOrigin(u"#0"_s);
    }
    MainDS->SetDataSet(Query);
    DBGrd->AddColumn(u"ID_CLI"_s, u"Código"_s, 80);
    DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 260);
    DBGrd->AddColumn(u"NM_EST"_s, u"UF"_s, 60)->PickList().SetText(u"PARANÁ;PR\nSÃO PAULO;SP"_s);
    DBGrd->AddColumn(u"VL_LIM"_s, u"Limite"_s, 110);
}

void Bancada::SetUp() {
    SetProgramFolder(Folder.path());
    Main = NewForm<TFrmTestePrincipal>(Application);
    Caso.Connection = new TFDConnection(Main);
    Caso.Connection->Params()->SetText(u"Protocol=Local\nUser_Name=SYSDBA\nForcedWrites=False\nDatabase="_s +
                                       Folder.filePath(u"masters%1.fdb"_s.arg(++Databases)));
    Caso.Connection->CreateDatabase();
    Caso.Connection->ExecSQL(
        u"CREATE TABLE CLIENTE (ID_CLI INTEGER NOT NULL PRIMARY KEY, NM_CLI VARCHAR(40) NOT NULL, NR_CPF "
        u"VARCHAR(14), "
        "VL_LIM DOUBLE PRECISION, NM_EST CHAR(2), TF_DEL CHAR(1))"_s);
    for (const char* row : {"1, 'ANA', '52998224725', 10, 'SP', 'N'", "2, 'BRUNO', NULL, 20, 'PR', NULL",
                            "3, 'CARLA', NULL, 30, 'SP', 'S'"}) {
        Caso.Connection->ExecSQL(u"INSERT INTO CLIENTE VALUES ("_s + QString::fromUtf8(row) + u")"_s);
    }
}

void Bancada::TearDown() {
    Main->Free();
}

void Bancada::Run(const char* table, TTextFunctions own) {
    using A = QStringList;
    own.merge(TTextFunctions{
        {u"Case"_s, Does([&](const A&) {
             TearDown();
             SetUp();
             Module.SetRights({u"New"_s, u"Edit"_s, u"Delete"_s});
         })},
        {u"Rights"_s, Does([&](const A& a) {
             Module.SetRights({a.begin(), a.end()});
         })},
        {u"View"_s, Does([&](const A& a) {
             Caso.ReadOnly = a.contains(u"read-only"_s);
             Vista = View(a[0] == u"list" ? vtList : vtFilter, Caso.ReadOnly ? ktNone : ktFieldProviderFlag);
         })},
        {u"Child"_s,
         [&](const A&) { return Vista->ChildForm() ? Vista->ChildForm()->Caption() : UnicodeString(); }},
        {u"Closed"_s,
         [&](const A&) { return Until([&] { return !Vista->ChildForm(); }) ? u"yes"_s : u"no"_s; }},
        {u"Sql"_s, Does([&](const A& a) { Caso.Connection->ExecSQL(a[0]); })},
        {u"Scalar"_s, [&](const A& a) { return Scalar(a[0].toUtf8()); }},
        {u"Width"_s,
         Does([&](const A& a) { Vista->DBGrd->Columns()[a[0].toInt()]->SetWidth(a[1].toInt()); })},
        {u"Names"_s, [&](const A&) {
             A names;
             for (Vista->Query->First(); !Vista->Query->Eof(); Vista->Query->Next())
                 names << Vista->Query->FieldByName(u"NM_CLI"_s)->AsString();
             return names.join(u',');
         }}});
    CheckScreenTable(
        MASTERS_TESTS "/tables/%1.txt"_L1.arg(QLatin1String(table)), [&] { return Vista->Query; }, own);
}

TFrmTesteClientes* Bancada::View(TVizsualizationType visType, TKeyType keyType) {
    auto* view = NewForm<TFrmTesteClientes>(Main, &Module, Caso, visType, keyType);
    if (visType == vtFilter) view->Locate({});
    view->DBGrd->SetFocus();
    return view;
}
