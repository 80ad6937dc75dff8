#include "demo/FrmClientes.h"

#include "demo/dados/Municipios.h"
#include "demo/FrmPesqMunicipio.h"
#include "forms/masters/Ficha.h"
#include "platform/rtl/DateTime.h"
#include "platform/system/UserInterface.h"
#include "utils/Funcoes.h"
#include "utils/UImpParticipante.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The grid shows some of the columns, the form all of them.
void LabelCliente(TDataSet* clientes) {
    LabelAll(clientes, {{u"CD_CLI", u"Código"},
                        {u"NM_CLI", u"Nome"},
                        {u"FANTASIA", u"Nome fantasia"},
                        {u"NR_CPF", u"CPF/CNPJ"},
                        {u"NR_INS_EST", u"Inscrição estadual"},
                        {u"NM_EST", u"UF"},
                        {u"CIDADE", u"Cidade"},
                        {u"E_MAIL", u"E-mail"},
                        {u"DT_CAD", u"Cadastro"},
                        {u"VL_LIMITE", u"Limite de crédito"},
                        {u"TF_ATIVO", u"Ativo"}});
    clientes->FieldByName(u"VL_LIMITE"_s)->SetTag(2);
}

}  // namespace

TFrmClientes::TFrmClientes(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmLista(AOwner, AModule, ClassWith<TFrmCadCliente>(AData), vtFilter, ktFieldProviderFlag, AData) {}

void TFrmClientes::CreateControls() {
    TFrmLista::CreateControls();
    TFDQuery* clientes = FData->NewQuery(
        this,
        u"SELECT CD_CLI, NM_CLI, FANTASIA, NR_CPF, CIDADE, NM_EST, DT_CAD, VL_LIMITE, TF_ATIVO, TF_DEL\n"
        "FROM CLIENTE"_s);
    LabelCliente(clientes);
    clientes->SetTag(clientes->FieldByName(u"NM_CLI"_s)->Index());
    TField* active = clientes->FieldByName(u"TF_ATIVO"_s);
    active->OnGetText = [data = FData](TField* field, UnicodeString& text, bool display) {
        data->TrueFalseGetText(field, text, display);
    };
    MainDS->SetDataSet(clientes);

    DBGrd->AddColumn(u"CD_CLI"_s, u"Código"_s, 60);
    DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 230);
    DBGrd->AddColumn(u"FANTASIA"_s, u"Nome fantasia"_s, 140);
    DBGrd->AddColumn(u"NR_CPF"_s, u"CPF/CNPJ"_s, 115);
    DBGrd->AddColumn(u"CIDADE"_s, u"Cidade"_s, 145);
    DBGrd->AddColumn(u"NM_EST"_s, u"UF"_s, 40);
    DBGrd->AddColumn(u"DT_CAD"_s, u"Cadastro"_s, 85);
    DBGrd->AddColumn(u"VL_LIMITE"_s, u"Limite de crédito"_s, 118);
    TColumn* activeColumn = DBGrd->AddColumn(u"TF_ATIVO"_s, u"Ativo"_s, 55);
    activeColumn->PickList().SetText(u"SIM;S\nNÃO;N"_s);
}

void TFrmCadCliente::CreateControls() {
    TFrmCadComercial::CreateControls();
    SetClientWidth(620);
    SetClientHeight(350);
    CreateQuery();
    CreateMainPage();
    CreateTradePage();
}

void TFrmCadCliente::CreateQuery() {
    TFDQuery* cliente = FData->NewQuery(
        this,
        u"SELECT CD_CLI, NM_CLI, FANTASIA, NR_CPF, NR_INS_EST, NM_EST, CIDADE, E_MAIL, DT_CAD, VL_LIMITE,\n"
        "TF_ATIVO, TF_DEL\nFROM CLIENTE"_s);
    LabelCliente(cliente);
    cliente->OnNewRecord = [](TDataSet* record) {
        record->FieldByName(u"DT_CAD"_s)->SetAsDateTime(Date());
        record->FieldByName(u"TF_ATIVO"_s)->SetAsString(u"S"_s);
        record->FieldByName(u"TF_DEL"_s)->SetAsString(u"N"_s);
    };
    MainDS->SetDataSet(cliente);
}

void TFrmCadCliente::CreateMainPage() {
    TabSheet1->SetCaption(u"Cadastro"_s);
    TFicha ficha(this, TabSheet1, MainDS);
    ficha.ReadOnlyEdit(u"CD_CLI"_s, 90);
    ficha.Edit(u"NM_CLI"_s, 420);
    ficha.NewRow();
    ficha.Edit(u"FANTASIA"_s, 260);
    ficha.Lookup(ficha.Edit(u"NR_CPF"_s, 150), [this] { FindCompany(); });
    ficha.NewRow();
    ficha.Lookup(ficha.Edit(u"CIDADE"_s, 260), [this] { FindTown(); });
    ficha.Combo(u"NM_EST"_s, SiglasDosEstados(), 80);
    ficha.Edit(u"NR_INS_EST"_s, 150);
    ficha.NewRow();
    ficha.Edit(u"E_MAIL"_s, 420);
}

// Where the record cannot be changed there is nothing to look up.
void TFrmCadCliente::FindTown() {
    TDataSet* cliente = MainDS->DataSet();
    if (cliente->State() != dsEdit && cliente->State() != dsInsert) return;
    cliente->UpdateRecord();
    FTown = {};
    FTown.OnDelivered = [cliente](const TResearchResult& town) {
        cliente->FieldByName(u"CIDADE"_s)->SetValue(town.Values[0]);
        cliente->FieldByName(u"NM_EST"_s)->SetValue(town.Values[1]);
    };
    FTown.Form = NewForm<TFrmPesqMunicipio>(this, Module, &FTown,
                                            cliente->FieldByName(u"CIDADE"_s)->AsString(), FData);
}

// Fills the customer from the company's registration; the field's number, or none, which the user then types
// there.
void TFrmCadCliente::FindCompany() {
    TDataSet* cliente = MainDS->DataSet();
    if (cliente->State() != dsEdit && cliente->State() != dsInsert) return;
    cliente->UpdateRecord();
    UnicodeString cnpj, razao, fantasia, rua, numero, complemento, cep, bairro, cidade, uf;
    try {
        if (!GetParticipante(GetNumbers(cliente->FieldByName(u"NR_CPF"_s)->AsString()), cnpj, razao, fantasia,
                             rua, numero, complemento, cep, bairro, cidade, uf))
            return;
    } catch (...) {
        UserInterface().EnableMainForm(true);
        throw;
    }
    const std::pair<const char16_t*, const UnicodeString&> values[] = {
        {u"NR_CPF", cnpj}, {u"NM_CLI", razao}, {u"FANTASIA", fantasia}, {u"CIDADE", cidade}, {u"NM_EST", uf}};
    for (const auto& [name, value] : values) {
        TField* field = cliente->FieldByName(UnicodeString::fromUtf16(name));
        field->SetAsString(value.left(field->Size()));
    }
}

void TFrmCadCliente::CreateTradePage() {
    auto* page = new TTabSheet(this);
    page->SetPageControl(PageControl);
    page->SetCaption(u"Comercial"_s);
    TFicha ficha(this, page, MainDS);
    ficha.Edit(u"DT_CAD"_s, 110);
    ficha.Edit(u"VL_LIMITE"_s, 140);
    ficha.NewRow();
    ficha.Check(u"TF_ATIVO"_s, 140);
    SetTabVisible(page, Module->GetRight(kLimite));
}
