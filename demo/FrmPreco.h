// Preço de venda: works out the price of a product from its cost and the percentages that the price must
// bear, and tells what profit the present price leaves.
//
//     auto* form = NewForm<TFrmPreco>(this, Module, price);
//     if (form->ShowModal() == TFrmEnt_Master::kConfirmed) field->SetAsCurrency(form->Preco());
#pragma once

#include "forms/masters/UEnt_Master.h"
#include "platform/rtl/Currency.h"

class TEdit;
class TLabel;

class TFrmPreco : public TFrmEnt_Master {
  public:
    // `AAtual` is the present price; 0 when there is none.
    TFrmPreco(TComponent* AOwner, TModuleInstance* AModule, Currency AAtual);

    // To cents; 0 or less when the percentages leave none.
    Currency Preco() const;

    void BtnConfirmarClick(TComponent* Sender) override;

  protected:
    void CreateControls() override;

  private:
    TEdit* Add(const UnicodeString& name, const UnicodeString& caption, int column, int row);
    void ShowPrice();

    Currency FAtual;
    TEdit* FCusto = nullptr;
    TEdit* FImpostos = nullptr;
    TEdit* FDespesas = nullptr;
    TEdit* FLucro = nullptr;
    TLabel* FPreco = nullptr;
};
