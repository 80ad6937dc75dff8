#include "demo/FrmConexao.h"

#include <algorithm>
#include "demo/LinhasEntrada.h"

#include "platform/ui/Application.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;
using namespace entrada;

namespace {

constexpr int kWidth = 480;
constexpr int kHalf = (kWidth - 3 * kMargin) / 2;
constexpr int kPortWidth = 96;
constexpr int kTestWidth = 120;
constexpr int kRightHalf = 2 * kMargin + kHalf;

QRect Place(int row, int left, int width) {
    return {left, kTop + row * kRowHeight, width, kEditHeight};
}

bool Asks(const UnicodeString& question) {
    return Application->MessageBox(question, u"Confirmação"_s, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

}  // namespace

TFrmConexao::TFrmConexao(TComponent* AOwner, TModuleInstance* AModule)
    : TFrmEnt_Master(AOwner, AModule, AModule->Info(), {}) {}

void TFrmConexao::CreateControls() {
    TFrmEnt_Master::CreateControls();
    SetCaption(u"Configurar conexão"_s);
    SetClientWidth(kWidth);
    SetClientHeight(kTop + 4 * kRowHeight);
    CreateEdits();
    const QRect place = Place(3, kWidth - kMargin - kTestWidth, kTestWidth).translated(0, kLabelHeight);
    auto* test = NewControl<TButton>(this, this, u"BtnTestar"_s, place);
    test->SetCaption(u"&Testar"_s);
    test->SetAccessibleName(u"Testar a conexão"_s);
    test->OnClick = [this](TComponent*) { Test(); };
    OnCloseQuery = [this](TComponent*, bool& canClose) {
        canClose = ModalResult() == kConfirmed || Digitados() == FLidos ||
                   Asks(u"Você tem certeza que deseja cancelar?"_s);
    };
}

void TFrmConexao::CreateEdits() {
    Add(&TDadosConexao::Servidor, u"EdtServidor"_s, u"&Servidor"_s,
        Place(0, kMargin, kWidth - 3 * kMargin - kPortWidth));
    TEdit* port = Add(&TDadosConexao::Porta, u"EdtPorta"_s, u"&Porta"_s,
                      Place(0, kWidth - kMargin - kPortWidth, kPortWidth));
    port->SetTextHint(u"3050"_s);
    port->SetMaxLength(5);
    port->OnKeyPress = [](TComponent*, WideChar& key) { OnlyInteger(key); };
    TEdit* database = Add(&TDadosConexao::Banco, u"EdtBanco"_s, u"&Banco de dados"_s,
                          Place(1, kMargin, kWidth - 2 * kMargin));
    database->SetHint(u"A pasta e o arquivo, como o servidor os vê, ou o apelido do banco"_s);
    Add(&TDadosConexao::Usuario, u"EdtUsuario"_s, u"&Usuário"_s, Place(2, kMargin, kHalf));
    TEdit* password = Add(&TDadosConexao::Senha, u"EdtSenha"_s, u"Senh&a"_s, Place(2, kRightHalf, kHalf));
    password->SetPasswordChar(true);
    Add(&TDadosConexao::Papel, u"EdtPapel"_s, u"Pape&l"_s, Place(3, kMargin, kHalf));
}

TEdit* TFrmConexao::Add(UnicodeString TDadosConexao::*valor, const UnicodeString& name,
                        const UnicodeString& caption, const QRect& place) {
    TEdit* edit = NewEdit(this, name, caption, place);
    FCampos.push_back({valor, edit});
    return edit;
}

void TFrmConexao::FormCreate(TComponent* Sender) {
    TFrmEnt_Master::FormCreate(Sender);
    FLidos = LeConexao();
    for (const TCampo& campo : FCampos) campo.Edit->SetText(FLidos.*campo.Valor);
}

// Blanks around a name are slips of the hand; in a password they count.
TDadosConexao TFrmConexao::Digitados() const {
    TDadosConexao dados;
    for (const TCampo& campo : FCampos) dados.*campo.Valor = campo.Edit->Text().trimmed();
    for (const TCampo& campo : FCampos) {
        if (campo.Valor == &TDadosConexao::Senha) dados.Senha = campo.Edit->Text();
    }
    return dados;
}

bool TFrmConexao::Valid() {
    const auto recusa = CriticaConexao(Digitados());
    if (!recusa) return true;
    Application->MessageBox(recusa->Mensagem, u"Aviso"_s, MB_ICONWARNING);
    const auto campo =
        std::ranges::find_if(FCampos, [&](const TCampo& c) { return c.Valor == recusa->Campo; });
    campo->Edit->SetFocus();
    campo->Edit->SelectAll();
    return false;
}

void TFrmConexao::Test() {
    if (!Valid()) return;
    const UnicodeString falha = TestaConexao(Digitados());
    if (falha.isEmpty()) {
        Application->MessageBox(u"A conexão foi estabelecida."_s, u"Informação"_s, MB_ICONINFORMATION);
    } else {
        Application->MessageBox(falha, u"Erro"_s, MB_ICONERROR);
    }
}

void TFrmConexao::BtnConfirmarClick(TComponent* Sender) {
    if (!Valid()) return;
    const UnicodeString falha = TestaConexao(Digitados());
    if (!falha.isEmpty() && !Asks(falha + u"\n\nDeseja gravar as configurações mesmo assim?"_s)) return;
    GravaConexao(Digitados());
    TFrmEnt_Master::BtnConfirmarClick(Sender);
}
