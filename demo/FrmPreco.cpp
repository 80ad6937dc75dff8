#include "demo/FrmPreco.h"

#include "demo/LinhasEntrada.h"
#include "demo/ReciboRegras.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;
using namespace entrada;

namespace {

constexpr int kWidth = 380;
constexpr int kHalf = (kWidth - 3 * kMargin) / 2;
constexpr int kLength = 12;
constexpr int kCasas = 2;

const UnicodeString kSemPreco = u"Com esse custo e esses percentuais não há preço de venda."_s;

// What is not typed counts as nothing.
Currency Lido(const TEdit* edit) {
    return LeValor(edit->Text()).value_or(Currency());
}

}  // namespace

TFrmPreco::TFrmPreco(TComponent* AOwner, TModuleInstance* AModule, Currency AAtual)
    : TFrmEnt_Master(AOwner, AModule, AModule->Info(), {}), FAtual(AAtual) {}

void TFrmPreco::CreateControls() {
    TFrmEnt_Master::CreateControls();
    SetCaption(u"Preço de venda"_s);
    SetClientWidth(kWidth);
    SetClientHeight(kTop + 3 * kRowHeight);
    FCusto = Add(u"EdtCusto"_s, u"&Custo (R$)"_s, 0, 0);
    FImpostos = Add(u"EdtImpostos"_s, u"&Impostos (%)"_s, 1, 0);
    FDespesas = Add(u"EdtDespesas"_s, u"&Despesas (%)"_s, 0, 1);
    FLucro = Add(u"EdtLucro"_s, u"&Lucro (%)"_s, 1, 1);
    FPreco = NewControl<TLabel>(this, this, u"LbPreco"_s);
    FPreco->SetAutoSize(false);
    FPreco->SetWordWrap(true);
    FPreco->SetBounds(kMargin, kTop + 2 * kRowHeight, kWidth - 2 * kMargin, kRowHeight - kMargin);
    ShowPrice();
}

TEdit* TFrmPreco::Add(const UnicodeString& name, const UnicodeString& caption, int column, int row) {
    const QRect place(kMargin + column * (kHalf + kMargin), kTop + row * kRowHeight, kHalf, kEditHeight);
    TEdit* edit = NewEdit(this, name, caption, place);
    edit->SetMaxLength(kLength);
    edit->SetAlignment(taRightJustify);
    edit->OnKeyPress = [](TComponent*, WideChar& key) { OnlyNumbers(key, true); };
    edit->OnChange = [this](TComponent*) { ShowPrice(); };
    return edit;
}

Currency TFrmPreco::Preco() const {
    return Arredonda(CalcPrecoVenda(Lido(FCusto), Lido(FImpostos), Lido(FDespesas), Lido(FLucro)), kCasas);
}

void TFrmPreco::ShowPrice() {
    if (!FPreco) return;
    const bool typed = Lido(FCusto) > Currency(), leaves = Preco() > Currency();
    FPreco->SetFontColor(!typed || leaves ? Cores::Dica : Cores::Erro);
    if (!typed) return FPreco->SetCaption(u"Digite o custo e os percentuais que o preço deve cobrir."_s);
    UnicodeString text = leaves ? u"Preço de venda: R$ "_s + ValorEmAlgarismos(Preco()) : kSemPreco;
    if (FAtual > Currency()) {
        const Currency lucro = CalcLucroReal(Lido(FCusto), Lido(FImpostos), Lido(FDespesas), FAtual);
        text += u"\nO preço atual, de R$ %1, deixa um lucro de %2%."_s.arg(
            ValorEmAlgarismos(FAtual), ValorEmAlgarismos(Arredonda(lucro, kCasas)));
    }
    FPreco->SetCaption(text);
}

void TFrmPreco::BtnConfirmarClick(TComponent* Sender) {
    if (Preco() > Currency()) return TFrmEnt_Master::BtnConfirmarClick(Sender);
    Application->MessageBox(kSemPreco, u"Aviso"_s, MB_ICONWARNING);
    FCusto->SetFocus();
}
