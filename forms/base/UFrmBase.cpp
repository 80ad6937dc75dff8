#include "forms/base/UFrmBase.h"

#include <cxxabi.h>
#include <cstdlib>
#include <typeinfo>

#include "platform/ui/Application.h"
#include "platform/ui/Resources.h"
#include "platform/ui/ToolBar.h"
#include "utils/funcoes/Janelas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kGenericIcon = u"ICO16_TFRMBASE"_s;
constexpr int kMinWidth = 400;
constexpr int kMinHeight = 300;
constexpr int kDesignWidth = 392;
constexpr int kDesignHeight = 273;

}  // namespace

TControl* TFrmBase::MainClient() {
    return Application->MainForm() ? Application->MainForm()->ClientArea() : nullptr;
}

TFrmBase::TFrmBase(TComponent* AOwner, TModuleInstance* AModule, const TModuleInfo& AModuleInfo,
                   bool HideParent, bool LoadWindowConfig, const UnicodeString& ATagStr)
    : TForm(AOwner),
      Module(AModule),
      ModuleInfo(AModuleInfo),
      FHideParent(HideParent),
      FLoadWindowConfig(LoadWindowConfig),
      FTagStr(ATagStr) {
    SetFormStyle(fsMDIChild);
    SetKeyPreview(true);
}

void TFrmBase::BeforeDeath() {
    if (FChildForm) FChildForm->Free();
    if (FRegistered) Module->FormDestroy(this);
    ReleaseOpener();
    TForm::BeforeDeath();
}

void TFrmBase::DoDestroy() {
    if (FChildForm) FChildForm->Free();
    TForm::DoDestroy();
}

void TFrmBase::CreateControls() {
    TForm::CreateControls();
    SetMinWidth(kMinWidth);
    SetMinHeight(kMinHeight);
    SetClientWidth(kDesignWidth);
    SetClientHeight(kDesignHeight);
    OnCreate = [this](TComponent* sender) { FormCreate(sender); };
    OnClose = [this](TComponent* sender, TCloseAction& action) { FormClose(sender, action); };
    OnDestroy = [this](TComponent* sender) { FormDestroy(sender); };
    OnActivate = [this](TComponent* sender) { FormActivate(sender); };
    OnDeactivate = [this](TComponent* sender) { FormDeactivate(sender); };
    OnKeyPress = [this](TComponent* sender, WideChar& key) { FormKeyPress(sender, key); };
}

void TFrmBase::Construct() {
    TDrawLock lock(MainClient());
    TForm::Construct();
    LinkToOpener();
    if (!Module) throw Exception(u"You must assign a module for any form."_s);
    if (Module->Interface()) Module->Interface()->FormCreated(this);
    FRegistered = true;
    if (Caption().isEmpty()) SetCaption(ModuleInfo.Caption);
    GetIcon();
}

void TFrmBase::LinkToOpener() {
    auto* opener = dynamic_cast<TFrmBase*>(Owner());
    if (!opener) return;
    FMainForm = opener;
    opener->FChildForm = this;
    if (FHideParent) {
        SetLeft(opener->Left());
        SetTop(opener->Top());
        opener->Hide();
    } else {
        opener->SetEnabled(false);
        SetPosition(poOwnerFormCenter);
        PlaceForm();
    }
}

// Comes again after the create event, which may have changed the size, or maximised the form in its place.
void TFrmBase::PlaceForm() {
    if (!FMaximized) TForm::PlaceForm();
}

// The opener comes back in every case; it follows a child that had taken its place.
void TFrmBase::ReleaseOpener() {
    TFrmBase* opener = std::exchange(FMainForm, nullptr);
    if (!opener) return;
    opener->FChildForm = nullptr;
    if (opener->Destroying()) return;
    if (!opener->FMaximized && opener->Enabled()) {
        opener->SetLeft(Left());
        opener->SetTop(Top());
    }
    opener->Show();
    opener->SetEnabled(true);
    opener->Ativa();
}

void TFrmBase::GetIcon() {
    const UnicodeString name = u"ICO16_"_s + Module->Name();
    if (HasResource(Module->ModuleResources(), name)) {
        SetIcon(LoadIconResource(Module->ModuleResources(), name));
    } else if (Module->Interface() && HasResource(Module->Interface()->HostResources(), kGenericIcon)) {
        SetIcon(LoadIconResource(Module->Interface()->HostResources(), kGenericIcon));
    }
}

int TFrmBase::AddIcon(const UnicodeString& ResName, TIcoType ResType, bool Ex) {
    if (!ImgLst) ImgLst = new TImageList(this, 16, 16);
    const bool module = Ex || ResType == rtICO;
    const TModuleInterface* host = Module->Interface();
    const UnicodeString folder = module ? Module->ModuleResources() : host ? host->HostResources() : u""_s;
    if (ResType != rtBMP && ResType != rtICO && ResType != rtPNG) return ImgLst->Count() - 1;
    if (ResType == rtPNG) {
        const QSize size = ResourceSize(folder, ResName);
        if (size.width() != ImgLst->Width()) ImgLst->SetSize(size.width(), size.height());
    }
    return ImgLst->Add(LoadIconResource(folder, ResName));
}

void TFrmBase::Ativa() {
    if (FBtn) FBtn->SetDown(true);
    if (FChildForm) {
        FChildForm->Ativa();
        return;
    }
    if (WindowState() == wsMinimized) SetWindowState(wsNormal);
    Show();
    BringToFront();
}

void TFrmBase::MenuClick(TComponent*) {
    Ativa();
}

void TFrmBase::BeginUpdate() {
    LockWindowDraw(this);
}

void TFrmBase::EndUpdate() {
    SetWidth(Width() - 1);
    UnlockWindowDraw(this);
    SetWidth(Width() + 1);
}

void TFrmBase::FormCreate(TComponent*) {
    OpenWindowConfig();
    if (FLoadWindowConfig) LoadWindowState();
}

void TFrmBase::FormClose(TComponent*, TCloseAction& Action) {
    Action = caFree;
    if (FLoadWindowConfig) SaveWindowState();
}

void TFrmBase::FormDestroy(TComponent*) {
    FConfig.reset();
}

void TFrmBase::FormActivate(TComponent*) {
    if (Module) Module->SetActivated(true);
    if (TForm* main = Application->MainForm())
        PostMessage(main, MSG_ATIVADO, reinterpret_cast<intptr_t>(this));
}

void TFrmBase::FormDeactivate(TComponent*) {
    Module->SetActivated(false);
}

void TFrmBase::FormKeyPress(TComponent*, WideChar& Key) {
    if (Key != VK_ESCAPE) return;
    Key = 0;
    Close();
}

UnicodeString TFrmBase::SectionName() const {
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(
        abi::__cxa_demangle(typeid(*this).name(), nullptr, nullptr, &status), std::free);
    return UnicodeString::fromLatin1(status == 0 ? name.get() : typeid(*this).name());
}
