// The lookup of a town: opened from a form's town field, it returns the town's name and its state.
#pragma once

#include "demo/DmComercial.h"
#include "forms/browse/UPesq_Master.h"

class TFrmPesqMunicipio : public TFrmPesq_Master {
  public:
    // `AResult` receives the name (0) and the state's two letters (1); `AStart` is the text to search first.
    TFrmPesqMunicipio(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                      const UnicodeString& AStart, TDM_Comercial* AData);

  protected:
    void CreateControls() override;

  private:
    TDM_Comercial* FData;
};
