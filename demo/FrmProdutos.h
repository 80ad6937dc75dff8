// Produtos: the grid of products, the form that edits one, its description as rich text on a page of its own,
// and the lookup that orders choose a product with.
#pragma once

#include "demo/FrmLista.h"
#include "demo/FrmProcura.h"

class TFrmProdutos : public TFrmLista {
  public:
    TFrmProdutos(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData);

    void FormCreate(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    void GoToProduct();

    TResearchResult FChosen;
};

class TFrmCadProduto : public TFrmCadComercial {
  public:
    using TFrmCadComercial::TFrmCadComercial;

  protected:
    void CreateControls() override;

  private:
    void CreateQuery();
    void CreateMainPage();
    void CreateTextPage();
    void WorkOutPrice();
};

class TFrmPesqProduto : public TFrmProcura {
  public:
    // `AResult` receives the product's code (0).
    using TFrmProcura::TFrmProcura;

  protected:
    void CreateControls() override;
};
