// The main window of Comercial: its menus and the modules behind them.
#pragma once

#include "demo/DmComercial.h"
#include "forms/main/UFrmMain.h"

struct TUsuario;

class TFrmPrincipal : public TFrmMain {
  public:
    TFrmPrincipal(TComponent* AOwner, TDM_Comercial* AData);

    // Each opens the module's screen, or brings it forward when it is open already.
    void OpenClientes();
    void OpenMunicipios();
    void OpenPedidos();
    void OpenProdutos();
    void OpenVendedores();

    // Asks for a receipt, and waits for it.
    void OpenRecibo();
    // Asks for the settings of the connection. Answers whether new ones are in Config.ini.
    bool OpenConexao();
    // Opens the database that Config.ini names; while that fails, tells why and lets the user repair the
    // settings. False when the user gives up.
    bool Conecta();

    // Asks who uses the program, on the open database. False when the user gives up.
    bool Identifica();
    // The user of that name enters without a password, for demonstrations; false when there is none.
    bool Assume(const UnicodeString& nome);

    // Which rights the user holds in Clientes; all of them until a user entered.
    TModuleInstance& Clientes() { return FClientes; }

  protected:
    void CreateControls() override;

  private:
    void CreateRegisters();
    void CreateFile();
    void Entrou(const TUsuario& usuario);
    template <class T>
    void Open(TModuleInstance& module);

    TDM_Comercial* FData;
    TModuleInstance FClientes;
    TModuleInstance FMunicipios;
    TModuleInstance FPedidos;
    TModuleInstance FProdutos;
    TModuleInstance FVendedores;
    TModuleInstance FEntrada;
    TModuleInstance FRecibo;
    TModuleInstance FConexao;
};
