// How forms close and end.
#include <QCloseEvent>
#include <QCoreApplication>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/FormEvents.h"

QEvent::Type ReleaseEventType() {
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

void TForm::closeEvent(QCloseEvent* event) {
    event->ignore();
    CalledByQt(this, [this] { Perform(WM_SYSCOMMAND, SC_CLOSE); });
}

bool TForm::CloseQuery() {
    if (FFormStyle == fsMDIForm && !OthersMayClose()) return false;
    bool canClose = true;
    if (OnCloseQuery) OnCloseQuery(this, canClose);
    return canClose;
}

bool TForm::OthersMayClose() {
    const std::vector<TForm*> forms = TActiveForms::Instance().Forms();
    return std::all_of(forms.rbegin(), forms.rend(), [this](TForm* form) {
        const std::vector<TForm*>& now = TActiveForms::Instance().Forms();
        const bool gone = std::find(now.begin(), now.end(), form) == now.end();
        return gone || form == this || form->FReleasing || form->CloseQuery();
    });
}

void TForm::Close() {
    if (FReleasing) return;
    if (FLoop) {
        if (!FModalResult) SetModalResult(IDCANCEL);
    } else if (CloseQuery()) {
        CloseWith(AskCloseAction());
    }
}

TCloseAction TForm::AskCloseAction() {
    const bool main = TActiveForms::Instance().MainForm() == this;
    TCloseAction action = main ? caFree : caHide;
    if (OnClose) OnClose(this, action);
    return action;
}

void TForm::CloseWith(TCloseAction action) {
    switch (action) {
        case caNone: return;
        case caMinimize: return SetWindowState(wsMinimized);
        case caHide: return Conceal();
        case caFree: break;
    }
    const bool main = TActiveForms::Instance().MainForm() == this;
    Release();
    if (!main) return Conceal();
    CallQt([this] { Widget()->hide(); });
    if (Application) Application->Terminate();
}

void TForm::Release() {
    FReleasing = true;
    if (RunningHandlers() == 0) QCoreApplication::postEvent(this, new QEvent(ReleaseEventType()));
}

void TForm::HandlersEnded() {
    if (FReleasing) QCoreApplication::postEvent(this, new QEvent(ReleaseEventType()));
}

// Met in a loop inside one of the form's handlers, the event is lost on purpose: the handler's end posts
// another.
void TForm::ReleaseNow() {
    if (RunningHandlers() > 0) return;
    if (Application && Application->Waiting()) {
        Application->AfterWait(this, [this] { ReleaseNow(); });
    } else {
        Free();
    }
}

void TForm::Free() {
    if (!BeginFree()) return;
    if (FFormStyle == fsMDIForm) FreeOtherForms();
    if (FBorn) CalledByQt([this] { DoDestroy(); });
    CalledByQt([this] { BeforeDeath(); });
    FBorn = false;
    if (std::exchange(FVisible, false) || isVisible()) {
        hide();
        CalledByQt([this] { TActiveForms::Instance().Hidden(this); });
    }
    delete this;
}

// Newest first; freeing one may free others.
void TForm::FreeOtherForms() {
    for (;;) {
        const std::vector<TForm*>& forms = TActiveForms::Instance().Forms();
        const auto newest = std::find_if(forms.rbegin(), forms.rend(), [this](const TForm* form) {
            return form != this && !form->Destroying();
        });
        if (newest == forms.rend()) return;
        (*newest)->Free();
    }
}
