// The main window of Comercial: its menus and the modules behind them.
#pragma once

#include "demo/DmComercial.h"
#include "forms/main/UFrmMain.h"

class TFrmClientes;
class TFrmMunicipios;

class TFrmPrincipal : public TFrmMain {
  public:
    TFrmPrincipal(TComponent* AOwner, TDM_Comercial* AData);

    // Opens the module's screen, or brings it forward when it is open already.
    void OpenClientes();
    void OpenMunicipios();

    // Asks for a receipt, and waits for it.
    void OpenRecibo();
    // Asks for the settings of the connection. Answers whether new ones are in Config.ini.
    bool OpenConexao();
    // Opens the database that Config.ini names; while that fails, tells why and lets the user repair the
    // settings. False when the user gives up.
    bool Conecta();

    // Which rights the user holds in Clientes; all of them until set.
    TModuleInstance& Clientes() { return FClientes; }

  protected:
    void CreateControls() override;

  private:
    TDM_Comercial* FData;
    TModuleInstance FClientes;
    TModuleInstance FMunicipios;
    TModuleInstance FRecibo;
    TModuleInstance FConexao;
};
