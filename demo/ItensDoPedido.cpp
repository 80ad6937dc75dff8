#include "demo/ItensDoPedido.h"

#include <algorithm>

#include <QScopeGuard>

#include "demo/dados/PedidoRegras.h"
#include "platform/data/Field.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kItens =
    u"SELECT I.CD_PED, I.NR_ITEM, I.CD_PRO, P.NM_PRO, P.UNIDADE, I.QT_ITEM, I.VL_UNIT, I.VL_ITEM\n"
    "FROM ITEM_PEDIDO I JOIN PRODUTO P ON P.CD_PRO = I.CD_PRO\n"
    "WHERE I.CD_PED = :PEDIDO ORDER BY I.NR_ITEM"_s;

const UnicodeString kProduto =
    u"SELECT NM_PRO, UNIDADE, VL_VENDA FROM PRODUTO WHERE CD_PRO = :CODIGO AND COALESCE(TF_DEL, 'N') = 'N'"_s;

// Sold by the piece, never a part of it.
const UnicodeString kInteiras[] = {u"UN"_s, u"CX"_s, u"FL"_s, u"LT"_s, u"RL"_s, u"SC"_s};

constexpr int kTagValor = 2;
constexpr int kTagQuantidade = 3;

// Calls `ler` while the fields read each row in turn; nothing moves.
void ParaCadaLinha(TFDQuery* itens, const std::function<void()>& ler) {
    for (int linha = 0; linha < itens->RowCount(); ++linha) {
        const TRowReading lendo(itens, linha);
        ler();
    }
}

}  // namespace

TItensDoPedido::TItensDoPedido(TComponent* owner, const TDM_Comercial& data)
    : FItens(data.NewQuery(owner, kItens)),
      FProduto(data.NewQuery(owner, kProduto)),
      FFonte(new TDataSource(owner)) {
    LabelAll(FItens, {{u"CD_PRO", u"Produto"},
                      {u"NM_PRO", u"Descrição"},
                      {u"QT_ITEM", u"Quantidade"},
                      {u"VL_UNIT", u"Preço unitário"},
                      {u"VL_ITEM", u"Valor"}});
    Campo(u"QT_ITEM"_s)->SetTag(kTagQuantidade);
    Campo(u"VL_UNIT"_s)->SetTag(kTagValor);
    Campo(u"VL_ITEM"_s)->SetTag(kTagValor);
    Campo(u"CD_PRO"_s)->OnValidate = [this](TField*) { AcharProduto(); };
    Campo(u"CD_PRO"_s)->OnChange = [this](TField*) { TomarProduto(); };
    Campo(u"QT_ITEM"_s)->OnChange = [this](TField*) { Calcular(); };
    Campo(u"VL_UNIT"_s)->OnChange = [this](TField*) { Calcular(); };
    FItens->SetCachedUpdates(true);
    FItens->OnNewRecord = [this](TDataSet*) { Numerar(); };
    FItens->BeforePost = [this](TDataSet*) { Criticar(); };
    const auto mudou = [this](TDataSet*) {
        if (AoMudar) AoMudar();
    };
    FItens->AfterPost = mudou;
    FItens->AfterDelete = mudou;
    FFonte->SetDataSet(FItens);
}

void TItensDoPedido::Abrir(int pedido) {
    FItens->Close();
    FItens->ParamByName(u"PEDIDO"_s)->SetAsInteger(pedido);
    FItens->Open();
}

Decimal TItensDoPedido::Total() const {
    Decimal total{0, 2};
    const TField* valor = Campo(u"VL_ITEM"_s);
    ParaCadaLinha(FItens, [&] { total.Unscaled += valor->AsDecimal().Unscaled; });
    return total;
}

void TItensDoPedido::Concluir() {
    FItens->CheckBrowseMode();
}

void TItensDoPedido::Gravar(int pedido) {
    FItens->DisableControls();
    const auto fim = qScopeGuard([this] { FItens->EnableControls(); });
    for (FItens->First(); !FItens->Eof(); FItens->Next()) {
        if (Campo(u"CD_PED"_s)->AsInteger() == pedido) continue;
        FItens->Edit();
        Campo(u"CD_PED"_s)->SetAsInteger(pedido);
        FItens->Post();
    }
    FItens->ApplyUpdates();
}

// The number behind the greatest; numbers of deleted items are free again.
void TItensDoPedido::Numerar() {
    int maior = 0;
    const TField* numero = Campo(u"NR_ITEM"_s);
    ParaCadaLinha(FItens, [&] { maior = std::max(maior, numero->AsInteger()); });
    Campo(u"NR_ITEM"_s)->SetAsInteger(maior + 1);
    Campo(u"CD_PED"_s)->SetAsInteger(FItens->ParamByName(u"PEDIDO"_s)->AsInteger());
    Campo(u"QT_ITEM"_s)->SetAsDecimal({1000, 3});
}

void TItensDoPedido::AcharProduto() const {
    FProduto->Close();
    FProduto->ParamByName(u"CODIGO"_s)->SetValue(Campo(u"CD_PRO"_s)->Value());
    FProduto->Open();
    if (!Campo(u"CD_PRO"_s)->IsNull() && FProduto->IsEmpty())
        throw Exception(u"O produto %1 não está cadastrado."_s.arg(Campo(u"CD_PRO"_s)->AsString()));
}

void TItensDoPedido::TomarProduto() {
    Campo(u"NM_PRO"_s)->SetValue(FProduto->FieldByName(u"NM_PRO"_s)->Value());
    Campo(u"UNIDADE"_s)->SetValue(FProduto->FieldByName(u"UNIDADE"_s)->Value());
    Campo(u"VL_UNIT"_s)->SetValue(FProduto->FieldByName(u"VL_VENDA"_s)->Value());
}

void TItensDoPedido::Calcular() {
    const Decimal quantidade = Campo(u"QT_ITEM"_s)->AsDecimal(), preco = Campo(u"VL_UNIT"_s)->AsDecimal();
    const bool vale = quantidade.Unscaled >= 0 && preco.Unscaled >= 0;
    const auto valor = vale ? ValorDoItem(quantidade, preco) : std::nullopt;
    if (valor) {
        Campo(u"VL_ITEM"_s)->SetAsDecimal(*valor);
    } else {
        Campo(u"VL_ITEM"_s)->Clear();
    }
}

void TItensDoPedido::Criticar() const {
    if (Campo(u"CD_PRO"_s)->IsNull()) throw Exception(u"Entre com o produto do item antes de prosseguir."_s);
    if (Campo(u"QT_ITEM"_s)->AsDecimal().Unscaled <= 0)
        throw Exception(u"A quantidade do item deve ser maior que zero."_s);
    if (StrInSet(Campo(u"UNIDADE"_s)->AsString(), kInteiras) && IsDecimal(Campo(u"QT_ITEM"_s)->AsFloat()))
        throw Exception(
            u"A quantidade do item deve ser inteira (%1)."_s.arg(Campo(u"UNIDADE"_s)->AsString()));
    if (Campo(u"VL_UNIT"_s)->AsDecimal().Unscaled < 0)
        throw Exception(u"O preço do item não pode ser negativo."_s);
    if (Campo(u"VL_ITEM"_s)->IsNull()) throw Exception(u"O valor do item é grande demais."_s);
}
