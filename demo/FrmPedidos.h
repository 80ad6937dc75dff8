// Pedidos: the grid of the orders with customer and seller, and the form that edits one together with its
// items. Order and items are saved in one transaction. A button of the grid writes a receipt for the order.
#pragma once

#include "demo/FrmLista.h"
#include "demo/FrmProcura.h"
#include "demo/ItensDoPedido.h"

class TButton;
class TDBGrid;

class TFrmPedidos : public TFrmLista {
  public:
    TFrmPedidos(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    void FormCreate(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    void Receipt();
};

class TFrmCadPedido : public TFrmCadComercial {
  public:
    using TFrmCadComercial::TFrmCadComercial;

    TDBGrid* GrdItens = nullptr;

  protected:
    void CreateControls() override;
    void Construct() override;

  private:
    TField* Campo(const UnicodeString& nome) const { return MainDS->DataSet()->FieldByName(nome); }
    bool Editando() const;
    void CreateQuery();
    void TakeNumber();
    void Delete(TDataSet& pedido);
    void CreateCustomers();
    void CreateItems();
    void CreatePage();
    void CreateGrid(const QRect& place);
    void FindCustomer();
    void FindProduct();
    void TakeCustomer();
    void ShowTotal();

    TFDQuery* FCustomer = nullptr;
    std::unique_ptr<TItensDoPedido> FItens;
    TResearchResult FChosen;
};

// The lookup of a customer by name, among those not deleted.
class TFrmPesqCliente : public TFrmProcura {
  public:
    // `AResult` receives the customer's code (0).
    using TFrmProcura::TFrmProcura;

  protected:
    void CreateControls() override;
};
