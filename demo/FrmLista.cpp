#include "demo/FrmLista.h"

TFrmLista::TFrmLista(TComponent* AOwner, TModuleInstance* AModule, TClassCad_Master ACadForm,
                     TVizsualizationType AVisType, TKeyType AKeyType, TDM_Comercial* AData)
    : TFrmViz_Master(AOwner, AModule, std::move(ACadForm), AVisType, AKeyType), FData(AData) {}

void TFrmLista::FormCreate(TComponent* Sender) {
    TFrmViz_Master::FormCreate(Sender);
    ShowRecords();
}

void TFrmLista::DBGrdTitleClick(TColumn* Column) {
    TFrmViz_Master::DBGrdTitleClick(Column);
    ShowRecords();
}

// A remembered order or a date column may have brought them already.
void TFrmLista::ShowRecords() {
    if (!MainDS->DataSet()->Active()) RefreshData();
}

TFrmCadComercial::TFrmCadComercial(TComponent* AOwner, TModuleInstance* AModule, unsigned char AMode,
                                   TKeyType AKeyType, bool ALoadWindowConfig, TDM_Comercial* AData)
    : TFrmCad_Master(AOwner, AModule, AMode, AKeyType, ALoadWindowConfig), FData(AData) {}
