#include "demo/FrmPrincipal.h"

#include "demo/FrmClientes.h"
#include "demo/FrmConexao.h"
#include "demo/FrmMunicipios.h"
#include "demo/FrmRecibo.h"
#include "platform/ui/Application.h"

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
      FRecibo(this, {u"RECIBO"_s, u"Recibo"_s, u"1.0"_s}),
      FConexao(this, {u"CONEXAO"_s, u"Conexão"_s, u"1.0"_s}) {}

void TFrmPrincipal::CreateControls() {
    TFrmMain::CreateControls();
    SetWidth(1200);
    SetHeight(760);
    auto* file = new TMenuItem(this);
    file->SetCaption(u"&Arquivo"_s);
    MainMenu()->Items()->Insert(0, file);
    auto* registers = new TMenuItem(this);
    registers->SetCaption(u"&Cadastros"_s);
    MainMenu()->Items()->Insert(1, registers);
    AddModule(registers, u"&Clientes..."_s, u"ICO24_CLIENTES"_s, [this] { OpenClientes(); });
    AddModule(registers, u"&Municípios..."_s, u"ICO24_MUNICIPIOS"_s, [this] { OpenMunicipios(); });
    file->AddNew(u"R&ecibo..."_s, [this](TComponent*) { OpenRecibo(); });
    file->AddNew(u"Configurar co&nexão..."_s, [this](TComponent*) {
        if (OpenConexao())
            Application->MessageBox(
                u"As configurações foram gravadas. O programa as usa quando for aberto de novo."_s,
                u"Informação"_s, MB_ICONINFORMATION);
    });
    file->AddNew(u"Sai&r"_s, [this](TComponent*) { Close(); });
}

void TFrmPrincipal::OpenClientes() {
    if (TFrmBase* open = OpenScreen(*this, FClientes)) {
        open->Ativa();
    } else {
        NewForm<TFrmClientes>(Application, &FClientes, FData);
    }
}

void TFrmPrincipal::OpenMunicipios() {
    if (TFrmBase* open = OpenScreen(*this, FMunicipios)) {
        open->Ativa();
    } else {
        NewForm<TFrmMunicipios>(Application, &FMunicipios, FData);
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
