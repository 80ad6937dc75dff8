#include "demo/FrmEntrada.h"

#include "demo/Diario.h"
#include "demo/LinhasEntrada.h"
#include "platform/ui/Application.h"
#include "platform/ui/ListBoxes.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;
using namespace entrada;

namespace {

constexpr int kWidth = 360;

QRect Row(int row) {
    return {kMargin, kTop + row * kRowHeight, kWidth - 2 * kMargin, kEditHeight};
}

}  // namespace

TFrmEntrada::TFrmEntrada(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmEnt_Master(AOwner, AModule, AModule->Info(), {}), FData(AData) {}

void TFrmEntrada::CreateControls() {
    TFrmEnt_Master::CreateControls();
    SetCaption(u"Entrada"_s);
    SetClientWidth(kWidth);
    SetClientHeight(kTop + 2 * kRowHeight + kLabelHeight + kMargin);
    auto* user = NewControl<TLabel>(this, this, u"LbUsuario"_s, Row(0));
    user->SetCaption(u"&Usuário"_s);
    FNome = NewControl<TComboBox>(this, this, u"CbUsuario"_s, Row(0).translated(0, kLabelHeight));
    FNome->SetAccessibleName(u"Usuário"_s);
    for (const UnicodeString& nome : NomesDosUsuarios(*FData->Connection())) FNome->Items()->Add(nome);
    const UnicodeString last = UltimoUsuario();
    FNome->SetItemIndex(std::max(0, FNome->Items()->IndexOf(last.isEmpty() ? u"Gerente"_s : last)));
    user->SetFocusControl(FNome);
    FSenha = NewEdit(this, u"EdtSenha"_s, u"&Senha"_s, Row(1));
    FSenha->SetPasswordChar(true);
    auto* hint = NewControl<TLabel>(this, this, u"LbDica"_s, Row(2));
    hint->SetCaption(u"No banco de exemplo as senhas são vazias."_s);
}

void TFrmEntrada::BtnConfirmarClick(TComponent* Sender) {
    const auto entrou = Entrar(*FData->Connection(), FNome->Text(), FSenha->Text());
    if (entrou) {
        FUsuario = *entrou;
        LembrarUsuario(FUsuario.Nome);
        return TFrmEnt_Master::BtnConfirmarClick(Sender);
    }
    Anotar(u"Entrada de %1 recusada em %2."_s.arg(FNome->Text(), GetComputerNameFunc()));
    Application->MessageBox(u"Usuário ou senha inválidos."_s, u"Aviso"_s, MB_ICONWARNING);
    FSenha->SetFocus();
    FSenha->SelectAll();
}
