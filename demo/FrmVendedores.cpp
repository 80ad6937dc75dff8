#include "demo/FrmVendedores.h"

#include "forms/masters/Ficha.h"
#include "platform/rtl/DateTime.h"

using namespace Qt::Literals::StringLiterals;

TFrmVendedores::TFrmVendedores(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmLista(AOwner, AModule, ClassOf<TFrmCadVendedor>(), vtList, ktNone, AData) {}

void TFrmVendedores::CreateControls() {
    TFrmLista::CreateControls();
    TFDQuery* vendedores = FData->NewQuery(
        this, u"SELECT CD_VEN, NM_VEN, NR_CPF, DT_ADM, PR_COMISSAO FROM VENDEDOR ORDER BY NM_VEN, CD_VEN"_s);
    LabelAll(vendedores, {{u"CD_VEN", u"Código"},
                          {u"NM_VEN", u"Nome"},
                          {u"NR_CPF", u"CPF"},
                          {u"DT_ADM", u"Admissão"},
                          {u"PR_COMISSAO", u"Comissão (%)"}});
    vendedores->FieldByName(u"PR_COMISSAO"_s)->SetTag(2);
    vendedores->SetTag(vendedores->FieldByName(u"NM_VEN"_s)->Index());
    vendedores->OnNewRecord = [](TDataSet* novo) { novo->FieldByName(u"DT_ADM"_s)->SetAsDateTime(Date()); };
    MainDS->SetDataSet(vendedores);
    DBGrd->AddColumn(u"CD_VEN"_s, u"Código"_s, 60);
    DBGrd->AddColumn(u"NM_VEN"_s, u"Nome"_s, 300);
    DBGrd->AddColumn(u"NR_CPF"_s, u"CPF"_s, 115);
    DBGrd->AddColumn(u"DT_ADM"_s, u"Admissão"_s, 85);
    DBGrd->AddColumn(u"PR_COMISSAO"_s, u"Comissão (%)"_s, 100);
}

void TFrmCadVendedor::CreateControls() {
    TFrmCad_Master::CreateControls();
    SetClientWidth(500);
    SetClientHeight(240);
    MainDS->SetDataSet(dynamic_cast<TFrmVendedores&>(*Owner()).MainDS->DataSet());
    TabSheet1->SetCaption(u"Cadastro"_s);
    TFicha ficha(this, TabSheet1, MainDS);
    ficha.ReadOnlyEdit(u"CD_VEN"_s, 90);
    ficha.Edit(u"NM_VEN"_s, 340);
    ficha.NewRow();
    ficha.Edit(u"NR_CPF"_s, 130);
    ficha.Edit(u"DT_ADM"_s, 110);
    ficha.Edit(u"PR_COMISSAO"_s, 110);
}
