// Showing a form and waiting for its answer.
#include <QApplication>
#include <QEventLoop>
#include "platform/rtl/Exceptions.h"
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"

namespace {

// Brings back the form that was active, if it still can be.
class TFormerForm {
  public:
    TFormerForm() : FForm(TActiveForms::Instance().Active()), FWidget(FForm ? FForm->Widget() : nullptr) {}
    void Reactivate() {
        if (FWidget) TActiveForms::Instance().Activate(FForm);
    }

  private:
    TForm* FForm;
    QPointer<QWidget> FWidget;
};

}  // namespace

void TForm::CheckModal() const {
    if (FEmbedded) throw EInvalidOperation(QStringLiteral("Cannot show a form of the client area modally."));
    if (FVisible || FLoop) throw EInvalidOperation(QStringLiteral("Cannot make a visible form modal."));
    if (!FEnabled) throw EInvalidOperation(QStringLiteral("Cannot show a disabled form modally."));
}

int TForm::ShowModal() {
    CheckModal();
    TFormerForm former;
    const QPointer<QWidget> self = this;
    FModalResult = 0;
    setWindowModality(Qt::ApplicationModal);
    RunModal();
    if (!self) {
        former.Reactivate();
        return IDCANCEL;
    }
    setWindowModality(Qt::NonModal);
    former.Reactivate();
    return FModalResult ? FModalResult : IDCANCEL;
}

void TForm::RunModal() {
    const QPointer<QWidget> self = this;
    QEventLoop loop;
    FLoop = &loop;
    struct TEnd {
        const QPointer<QWidget>& Self;
        TForm* Form;
        ~TEnd() {
            if (Self) Form->FLoop = nullptr;
        }
    } end{self, this};
    Reveal();
    if (Application && Application->OnModal) {
        QMetaObject::invokeMethod(
            this, [this] { Application->OnModal(this); }, Qt::QueuedConnection);
    }
    do {
        if (!FModalResult) RunLoop([&] { loop.exec(); });
        if (!self) return;
    } while (!EndModal());
}

// What the answer leads to. A form that may not close loses the answer and goes on.
bool TForm::EndModal() {
    const bool leaving = (Application && Application->Terminated()) || !FVisible;
    bool closes = leaving;
    TCloseAction action = caHide;
    if (!leaving) {
        CalledByQt(this, [&] {
            closes = CloseQuery();
            if (closes) action = AskCloseAction();
        });
    }
    if (!closes || action == caNone) {
        FModalResult = 0;
        return false;
    }
    FLoop = nullptr;
    Conceal();
    if (action != caFree) return true;
    TCallFrame::KeepForHandler(this);
    Release();
    return true;
}

void TForm::SetModalResult(int result) {
    FModalResult = result;
    if (FLoop && result) FLoop->quit();
}
