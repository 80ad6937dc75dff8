// The items of one order while it is edited: kept back until the order is saved, with what each is worth.
//
//     TItensDoPedido itens(form, data);
//     itens.AoMudar = [&] { total->SetAsDecimal(itens.Total()); };
//     itens.Abrir(pedido);                              // 0: of a new order
//     grid->SetDataSource(itens.Fonte());
//     ... itens.Gravar(pedido);                         // inside the order's transaction
//
// The code of a product brings its description, unit and price; quantity or price change the item's value.
#pragma once

#include <functional>

#include "demo/DmComercial.h"
#include "platform/data/DataSource.h"
#include "platform/rtl/Decimal.h"

class TItensDoPedido {
  public:
    // `owner`, the form, owns the dataset and its source.
    TItensDoPedido(TComponent* owner, const TDM_Comercial& data);

    TFDQuery* DataSet() const { return FItens; }
    TDataSource* Fonte() const { return FFonte; }

    void Abrir(int pedido);
    // Of all rows that are here.
    Decimal Total() const;
    bool Vazio() const { return FItens->IsEmpty(); }
    // Posts the row that is being typed, or drops an untouched one. Exception: a sentence for the user.
    void Concluir();
    // Writes all that changed, under the order's number. EDatabaseError, EFDError.
    void Gravar(int pedido);

    // The rows are not what they were.
    std::function<void()> AoMudar;

  private:
    TField* Campo(const UnicodeString& nome) const { return FItens->FieldByName(nome); }
    void Numerar();
    void AcharProduto() const;
    void TomarProduto();
    void Calcular();
    void Criticar() const;

    TFDQuery* FItens;
    TFDQuery* FProduto;
    TDataSource* FFonte;
};
