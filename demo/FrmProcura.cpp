#include "demo/FrmProcura.h"

using namespace Qt::Literals::StringLiterals;

TFrmProcura::TFrmProcura(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                         const UnicodeString& AStart, TDM_Comercial* AData)
    : TFrmPesq_Master(AOwner, AModule, vtFilter, AResult, AStart, u"COALESCE(TF_DEL, 'N') = 'N'"_s, 0),
      FData(AData) {}

void TFrmProcura::FormCreate(TComponent* Sender) {
    TFrmPesq_Master::FormCreate(Sender);
    if (!MainDS->DataSet()->Active()) RefreshData();
}
