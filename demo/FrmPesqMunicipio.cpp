#include "demo/FrmPesqMunicipio.h"

using namespace Qt::Literals::StringLiterals;

TFrmPesqMunicipio::TFrmPesqMunicipio(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                                     const UnicodeString& AStart, TDM_Comercial* AData)
    : TFrmPesq_Master(AOwner, AModule, vtFilter, AResult, AStart, {}, 0), FData(AData) {}

void TFrmPesqMunicipio::CreateControls() {
    TFrmPesq_Master::CreateControls();
    SetCaption(u"Procurar município"_s);
    TFDQuery* municipios = FData->NewQuery(this, u"SELECT NM_MUN, SG_UF FROM MUNICIPIO"_s);
    Label(municipios, u"NM_MUN"_s, u"Município"_s);
    Label(municipios, u"SG_UF"_s, u"UF"_s);
    MainDS->SetDataSet(municipios);
    DBGrd->AddColumn(u"NM_MUN"_s, u"Município"_s, 420);
    DBGrd->AddColumn(u"SG_UF"_s, u"UF"_s, 60);
    AddResultField(u"NM_MUN"_s);
    AddResultField(u"SG_UF"_s);
}
