#include "demo/FrmPrincipal.h"

#include <algorithm>

#include "demo/Diario.h"
#include "demo/FrmClientes.h"
#include "demo/FrmConexao.h"
#include "demo/FrmEntrada.h"
#include "demo/FrmMunicipios.h"
#include "demo/FrmPedidos.h"
#include "demo/FrmProdutos.h"
#include "demo/FrmRecibo.h"
#include "demo/FrmVendedores.h"
#include "platform/ui/Application.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The module's open screen that is nobody's child, or null.
TFrmBase* OpenScreen(const TFrmMain& main, const TModuleInstance& module) {
    for (TFrmBase* form : main.OpenForms()) {
        if (form->Module == &module && !form->Opener()) return form;
    }
    return nullptr;
}

}  // namespace

TFrmPrincipal::TFrmPrincipal(TComponent* AOwner, TDM_Comercial* AData)
    : TFrmMain(AOwner, u"Comercial"_s),
      FData(AData),
      FClientes(this, {u"CLIENTES"_s, u"Clientes"_s, u"1.0"_s}),
      FMunicipios(this, {u"MUNICIPIOS"_s, u"Municípios"_s, u"1.0"_s}),
      FPedidos(this, {u"PEDIDOS"_s, u"Pedidos"_s, u"1.0"_s}),
      FProdutos(this, {u"PRODUTOS"_s, u"Produtos"_s, u"1.0"_s}),
      FVendedores(this, {u"VENDEDORES"_s, u"Vendedores"_s, u"1.0"_s}),
      FEntrada(this, {u"ENTRADA"_s, u"Entrada"_s, u"1.0"_s}),
      FRecibo(this, {u"RECIBO"_s, u"Recibo"_s, u"1.0"_s}),
      FConexao(this, {u"CONEXAO"_s, u"Conexão"_s, u"1.0"_s}) {}

void TFrmPrincipal::CreateControls() {
    TFrmMain::CreateControls();
    SetWidth(1200);
    SetHeight(760);
    CreateFile();
    CreateRegisters();
}

void TFrmPrincipal::CreateFile() {
    auto* file = new TMenuItem(this);
    file->SetCaption(u"&Arquivo"_s);
    MainMenu()->Items()->Insert(0, file);
    file->AddNew(u"R&ecibo..."_s, [this](TComponent*) { OpenRecibo(); });
    file->AddNew(u"Configurar co&nexão..."_s, [this](TComponent*) {
        if (OpenConexao())
            Application->MessageBox(
                u"As configurações foram gravadas. O programa as usa quando for aberto de novo."_s,
                u"Informação"_s, MB_ICONINFORMATION);
    });
    file->AddNew(u"Trocar &usuário..."_s, [this](TComponent*) {
        if (OpenForms().empty()) {
            Identifica();
        } else {
            Application->MessageBox(u"Feche as janelas abertas antes de trocar de usuário."_s, u"Aviso"_s,
                                    MB_ICONWARNING);
        }
    });
    file->AddNew(u"Sai&r"_s, [this](TComponent*) { Close(); });
}

void TFrmPrincipal::CreateRegisters() {
    auto* registers = new TMenuItem(this);
    registers->SetCaption(u"&Cadastros"_s);
    MainMenu()->Items()->Insert(1, registers);
    AddModule(registers, u"&Clientes..."_s, u"ICO24_CLIENTES"_s, [this] { OpenClientes(); });
    AddModule(registers, u"&Pedidos..."_s, u"ICO24_PEDIDOS"_s, [this] { OpenPedidos(); });
    AddModule(registers, u"P&rodutos..."_s, u"ICO24_PRODUTOS"_s, [this] { OpenProdutos(); });
    AddModule(registers, u"&Vendedores..."_s, u"ICO24_VENDEDORES"_s, [this] { OpenVendedores(); });
    AddModule(registers, u"&Municípios..."_s, u"ICO24_MUNICIPIOS"_s, [this] { OpenMunicipios(); });
}

template <class T>
void TFrmPrincipal::Open(TModuleInstance& module) {
    if (TFrmBase* open = OpenScreen(*this, module)) {
        open->Ativa();
    } else {
        NewForm<T>(Application, &module, FData);
    }
}

void TFrmPrincipal::OpenClientes() {
    Open<TFrmClientes>(FClientes);
}

void TFrmPrincipal::OpenMunicipios() {
    Open<TFrmMunicipios>(FMunicipios);
}

void TFrmPrincipal::OpenPedidos() {
    Open<TFrmPedidos>(FPedidos);
}

void TFrmPrincipal::OpenProdutos() {
    Open<TFrmProdutos>(FProdutos);
}

void TFrmPrincipal::OpenVendedores() {
    Open<TFrmVendedores>(FVendedores);
}

bool TFrmPrincipal::Identifica() {
    auto* form = NewForm<TFrmEntrada>(this, &FEntrada, FData);
    const bool entered = form->ShowModal() == TFrmEnt_Master::kConfirmed;
    if (entered) Entrou(form->Usuario());
    form->Free();
    return entered;
}

bool TFrmPrincipal::Assume(const UnicodeString& nome) {
    const auto usuario = Entrar(*FData->Connection(), nome, {});
    if (usuario) Entrou(*usuario);
    return usuario.has_value();
}

// Each user's windows are remembered apart.
void TFrmPrincipal::Entrou(const TUsuario& usuario) {
    Anotar(u"%1 entrou em %2."_s.arg(usuario.Nome, GetComputerNameFunc()));
    SetCaption(u"Comercial - "_s + usuario.Nome);
    const TStringArray names = NomesDosUsuarios(*FData->Connection());
    SetStateFileNumber(int(std::find(names.begin(), names.end(), usuario.Nome) - names.begin()) + 1);
    for (TModuleInstance* module : {&FClientes, &FMunicipios, &FPedidos, &FProdutos, &FVendedores}) {
        if (usuario.PodeTudo()) {
            module->SetRights({u"New"_s, u"Edit"_s, u"Delete"_s, kLimite});
        } else {
            module->SetRights(usuario.Em(module->Name()));
        }
    }
}

void TFrmPrincipal::OpenRecibo() {
    NewForm<TFrmRecibo>(this, &FRecibo, FData)->ShowModal();
}

bool TFrmPrincipal::OpenConexao() {
    return NewForm<TFrmConexao>(this, &FConexao)->ShowModal() == TFrmConexao::kConfirmed;
}

bool TFrmPrincipal::Conecta() {
    for (;;) {
        UnicodeString motivo;
        try {
            FData->OpenConfigured();
            return true;
        } catch (const EDatabaseError& error) {
            motivo = error.Message;
        }
        const UnicodeString pergunta = motivo + u"\n\nDeseja configurar a conexão?"_s;
        if (Application->MessageBox(pergunta, u"Erro"_s, MB_YESNO | MB_ICONERROR) != IDYES || !OpenConexao())
            return false;
    }
}
