#include "forms/main/UFrmMain.h"

#include <algorithm>

#include "forms/base/UFrmBase.h"
#include "platform/ui/Application.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/Palette.h"
#include "platform/ui/Resources.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kToolBarHeight = 62;
constexpr int kWindowBarHeight = 34;  // both together: 96

UnicodeString PlainCaption(UnicodeString caption) {
    return caption.remove(u'&').remove(u"..."_s);
}

}  // namespace

TFrmMain::TFrmMain(TComponent* AOwner, const UnicodeString& caption) : TForm(AOwner) {
    SetFormStyle(fsMDIForm);
    SetCaption(caption);
}

void TFrmMain::CreateControls() {
    TForm::CreateControls();
    SetMinWidth(800);
    SetMinHeight(600);
    SetPosition(poScreenCenter);
    FMenu = new TMainMenu(this);
    FWindows = FMenu->Items()->AddNew(u"&Janelas"_s);
    FWindows->SetVisible(false);
    SetMenu(FMenu);
    CreateBars();
}

void TFrmMain::CreateBars() {
    FModuleIcons = new TImageList(this, 24, 24);
    FWindowIcons = new TImageList(this, 16, 16);
    FToolBar = new TToolBar(this);
    FToolBar->SetName(u"TBModulos"_s);
    FToolBar->SetParent(this);
    FToolBar->SetHeight(kToolBarHeight);
    FToolBar->SetAlign(alTop);
    FToolBar->SetImages(FModuleIcons);
    FToolBar->SetButtonWidth(84);
    FToolBar->SetGradient(Cores::Superficie, Cores::SuperficieEscura);
    FWindowBar = new TToolBar(this);
    FWindowBar->SetName(u"TBJanelas"_s);
    FWindowBar->SetParent(this);
    FWindowBar->SetHeight(kWindowBarHeight);
    FWindowBar->SetAlign(alBottom);
    FWindowBar->SetGradient(Cores::SuperficieEscura, Cores::Superficie);
}

void TFrmMain::AddModule(TMenuItem* menu, const UnicodeString& caption, const UnicodeString& icon,
                         const std::function<void()>& open) {
    menu->AddNew(caption, [open](TComponent*) { open(); });
    auto* button = new TToolButton(this);
    button->SetCaption(PlainCaption(caption));
    button->SetImageIndex(FModuleIcons->Add(LoadIconResource(HostResources(), icon)));
    button->OnClick = [open](TComponent*) { open(); };
    button->SetLeft(FToolBar->Width());
    button->SetParent(FToolBar);
}

UnicodeString TFrmMain::HostResources() const {
    return u":/fichario"_s;
}

void TFrmMain::ExecuteProcEx(TForm* waitScreen, const std::function<void()>& procedure, TFrmBase*) {
    struct ClosesWaitScreen {
        TForm* form;
        ~ClosesWaitScreen() {
            form->SetTag(1);
            form->Close();
        }
    } closes{waitScreen};
    waitScreen->Show();
    Application->ProcessMessages();
    procedure();
}

void TFrmMain::FormCreated(TFrmBase* form) {
    FForms.push_back(form);
    form->FBtn = NewWindowButton(form);
    form->FMenuItem =
        FWindows->AddNew(form->Caption(), [form](TComponent* sender) { form->MenuClick(sender); });
    form->FMenuItem->SetRadioItem(true);
    FWindows->SetVisible(true);
}

TToolButton* TFrmMain::NewWindowButton(TFrmBase* form) {
    auto* button = new TToolButton(this);
    button->SetStyle(tbsCheck);
    button->SetLeft(FWindowBar->Width());
    button->SetParent(FWindowBar);
    button->OnClick = [form](TComponent*) { PostMessage(form, MSG_ATIVA); };
    return button;
}

void TFrmMain::FormDestroyed(TFrmBase* form) {
    const auto at = std::find(FForms.begin(), FForms.end(), form);
    if (at == FForms.end()) return;
    FForms.erase(at);
    if (form->FBtn) std::exchange(form->FBtn, nullptr)->Free();
    if (form->FMenuItem) std::exchange(form->FMenuItem, nullptr)->Free();
    FWindows->SetVisible(!FForms.empty());
}

void TFrmMain::WndProc(TMessage& Message) {
    if (Message.Msg == MSG_ATIVADO) {
        ShowActive(Message.WParam);
    } else {
        TForm::WndProc(Message);
    }
}

void TFrmMain::ShowActive(intptr_t form) {
    RefreshCaptions();
    for (TFrmBase* open : FForms) {
        const bool active = reinterpret_cast<intptr_t>(open) == form;
        PostMessage(open, MSG_DOWN_BTN, active);
        open->FMenuItem->SetChecked(active);
    }
}

void TFrmMain::RefreshCaptions() {
    for (TFrmBase* open : FForms) {
        open->FBtn->SetCaption(open->Caption());
        open->FMenuItem->SetCaption(open->Caption());
    }
}
