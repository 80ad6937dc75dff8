// Clientes: the grid of customers and the form that edits one.
#pragma once

#include "demo/FrmLista.h"

// The host's own right in this module: to see and set what a customer may buy.
inline const UnicodeString kLimite = QStringLiteral("Limite");

class TFrmClientes : public TFrmLista {
  public:
    TFrmClientes(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

  protected:
    void CreateControls() override;
};

class TFrmCadCliente : public TFrmCadComercial {
  public:
    using TFrmCadComercial::TFrmCadComercial;

  protected:
    void CreateControls() override;

  private:
    void CreateQuery();
    void CreateMainPage();
    void CreateTradePage();
    void FindTown();
    void FindCompany();

    TResearchResult FTown;
};
