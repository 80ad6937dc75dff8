// Vendedores: the list of the sellers, few and all in sight, and the form that edits one in the list's own
// dataset. The table knows no deletion mark: a seller without orders is deleted for good.
#pragma once

#include "demo/FrmLista.h"

class TFrmVendedores : public TFrmLista {
  public:
    TFrmVendedores(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

  protected:
    void CreateControls() override;
};

class TFrmCadVendedor : public TFrmCad_Master {
  public:
    using TFrmCad_Master::TFrmCad_Master;

  protected:
    void CreateControls() override;
};
