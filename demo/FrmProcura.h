// The base of Comercial's lookups: something to choose from is there before anything is typed.
#pragma once

#include "demo/DmComercial.h"
#include "forms/browse/UPesq_Master.h"

class TFrmProcura : public TFrmPesq_Master {
  public:
    // `AResult` and `AStart` as UPesq_Master.h tells; only records that are not deleted are found.
    TFrmProcura(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                const UnicodeString& AStart, TDM_Comercial* AData);

    void FormCreate(TComponent* Sender) override;

  protected:
    TDM_Comercial* FData;
};
