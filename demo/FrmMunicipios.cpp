#include "demo/FrmMunicipios.h"

using namespace Qt::Literals::StringLiterals;

TFrmMunicipios::TFrmMunicipios(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmViz_Master(AOwner, AModule, nullptr, vtList, ktFieldProviderFlag), FData(AData) {}

// Towns are only looked at.
void TFrmMunicipios::FormCreate(TComponent* Sender) {
    TFrmViz_Master::FormCreate(Sender);
    for (TToolButton* button : {BtnNovo, BtnAlterar, BtnExcluir}) button->SetVisible(false);
    FixToolBarSize();
}

void TFrmMunicipios::CreateControls() {
    TFrmViz_Master::CreateControls();
    TFDQuery* municipios = FData->NewQuery(this,
                                           u"SELECT M.CD_MUN, M.NM_MUN, M.SG_UF, U.NM_UF\n"
                                           "FROM MUNICIPIO M JOIN UF U ON U.SG_UF = M.SG_UF\n"
                                           "ORDER BY M.NM_MUN, M.CD_MUN"_s);
    Label(municipios, u"CD_MUN"_s, u"Código"_s);
    Label(municipios, u"NM_MUN"_s, u"Município"_s);
    Label(municipios, u"SG_UF"_s, u"UF"_s);
    Label(municipios, u"NM_UF"_s, u"Estado"_s);
    municipios->SetTag(municipios->FieldByName(u"NM_MUN"_s)->Index());
    MainDS->SetDataSet(municipios);

    DBGrd->AddColumn(u"CD_MUN"_s, u"Código"_s, 80);
    DBGrd->AddColumn(u"NM_MUN"_s, u"Município"_s, 300);
    DBGrd->AddColumn(u"SG_UF"_s, u"UF"_s, 50);
    DBGrd->AddColumn(u"NM_UF"_s, u"Estado"_s, 200);
}
