#include "demo/FrmPrincipal.h"

#include "demo/FrmClientes.h"
#include "demo/FrmMunicipios.h"
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
      FMunicipios(this, {u"MUNICIPIOS"_s, u"Municípios"_s, u"1.0"_s}) {}

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
