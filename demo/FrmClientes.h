// Clientes: the grid of customers and the form that edits one.
#pragma once

#include "demo/DmComercial.h"
#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"

class TFrmClientes : public TFrmViz_Master {
  public:
    TFrmClientes(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    void FormCreate(TComponent* Sender) override;
    void DBGrdTitleClick(TColumn* Column) override;

  protected:
    void CreateControls() override;

  private:
    void ShowRecords();

    TDM_Comercial* FData;
};

class TFrmCadCliente : public TFrmCad_Master {
  public:
    TFrmCadCliente(TComponent* AOwner, TModuleInstance* AModule, unsigned char AMode, TKeyType AKeyType,
                   bool ALoadWindowConfig, TDM_Comercial* AData);

  protected:
    void CreateControls() override;

  private:
    void CreateQuery();
    void CreateMainPage();
    void CreateTradePage();
    void FindTown();
    void FindCompany();

    TDM_Comercial* FData;
    TResearchResult FTown;
};
