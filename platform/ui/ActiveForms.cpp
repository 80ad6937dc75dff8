#include "platform/ui/ActiveForms.h"

#include <QApplication>
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"

TActiveForms& TActiveForms::Instance() {
    static TActiveForms instance;
    return instance;
}

void TActiveForms::Add(TForm* form) {
    FForms.push_back(form);
    FRecent.push_back(form);
}

void TActiveForms::Remove(TForm* form) {
    std::erase(FForms, form);
    std::erase(FRecent, form);
    if (FActive == form) FActive = nullptr;
    if (FMainForm == form) FMainForm = nullptr;
}

void TActiveForms::ControlGone(TControl* control) {
    for (TForm* form : FForms) {
        if (form->FActiveControl == control) form->FActiveControl = nullptr;
        if (form->FEntered == control) form->FEntered = nullptr;
    }
}

bool TActiveForms::CanActivate(const TForm* form) const {
    if (!form->Visible() || !form->Enabled() || !form->Widget()->isVisible()) return false;
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == form->Widget()->window();
}

void TActiveForms::Activate(TForm* form) {
    if (!CanActivate(form)) return;
    if (!form->Embedded()) form->Widget()->activateWindow();
    FocusControl(form, FocusTarget(form));
}

TControl* TActiveForms::FocusTarget(TForm* form) const {
    if (form->FActiveControl && form->FActiveControl->CanFocus()) return form->FActiveControl;
    return form->FirstTabStop();
}

void TActiveForms::FocusControl(TForm* form, TControl* control) {
    if (!CanActivate(form)) {
        form->FActiveControl = control;
        return;
    }
    GiveFocus(control ? control->Widget() : form->Widget());
    FocusMoved(form->Widget()->window()->focusWidget());
}

// In a window that is not the system's active one the toolkit only remembers the focus and reports nothing,
// so the caller looks himself. A focus inside the control (a grid's editor, a combo's list) stays where it
// is.
void TActiveForms::GiveFocus(QWidget* widget) {
    QWidget* now = QApplication::focusWidget();
    const TControl* control = now ? ControlOf(now) : nullptr;
    if (control && control->Widget() == widget) return;
    CallQt([&] { widget->setFocus(Qt::OtherFocusReason); });
}

void TActiveForms::Hidden(TForm* form) {
    if (FActive != form) return;
    TForm* next = NextOf(form);
    if (next) {
        Activate(next);
    } else {
        SetActive(nullptr);
    }
}

TForm* TActiveForms::NextOf(const TForm* form) const {
    for (TForm* other : FRecent) {
        if (other != form && other != FMainForm && CanActivate(other)) return other;
    }
    return FMainForm && FMainForm != form && CanActivate(FMainForm) ? FMainForm : nullptr;
}

void TActiveForms::FocusMoved(QWidget* now) {
    TForm* form = now ? FormOf(now) : nullptr;
    if (!form || !form->Visible() || !form->Enabled()) return;
    TControl* control = ControlOf(now);
    const bool list = now->window()->windowType() == Qt::Popup;
    if (list && control && control->Widget()->focusPolicy() == Qt::NoFocus) return;
    SetActive(form);
    if (FActive == form) Enter(form, control == form ? nullptr : control);
}

void TActiveForms::MousePressed(QWidget* widget) {
    TForm* form = FormOf(widget);
    if (form && form->Embedded() && form != FActive) Activate(form);
}

void TActiveForms::SetActive(TForm* form) {
    if (FActive == form) return;
    TForm* former = std::exchange(FActive, form);
    if (form) {
        std::erase(FRecent, form);
        FRecent.insert(FRecent.begin(), form);
        if (form->Embedded()) form->Widget()->raise();
        form->Widget()->update();
    }
    if (former) {
        former->Widget()->update();
        former->DoDeactivate();
    }
    if (form && FActive == form) form->DoActivate();
}

// The new control is the active one already while the old one is left, as its handlers expect; whoever moves
// the focus on from there has the last word.
void TActiveForms::Enter(TForm* form, TControl* control) {
    const bool changes = form->FActiveControl != control || form->FEntered != control;
    form->FActiveControl = control;
    if (form->FEntered && form->FEntered != control) Leave(form);
    if (FActive != form || form->FActiveControl != control) return;
    if (control && form->FEntered != control) {
        form->FEntered = control;
        control->DoEnter();
    }
    if (!changes || !Application) return;
    const auto tell = Application->OnActiveControlChange;  // which the handler may clear
    if (tell) tell();
}

void TActiveForms::Leave(TForm* form) {
    TControl* left = std::exchange(form->FEntered, nullptr);
    const QPointer<QWidget> widget = left->Widget();
    try {
        left->DoExit();
    } catch (...) {
        FRefused = QGuiApplication::mouseButtons() != Qt::NoButton;
        if (widget) {
            form->FEntered = form->FActiveControl = left;
            widget->setFocus(Qt::OtherFocusReason);
        }
        throw;
    }
}
