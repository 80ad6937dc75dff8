// Municípios: a list to look things up in; nothing is changed here.
#pragma once

#include "demo/DmComercial.h"
#include "forms/masters/UViz_Master.h"

class TFrmMunicipios : public TFrmViz_Master {
  public:
    TFrmMunicipios(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    void FormCreate(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    TDM_Comercial* FData;
};
