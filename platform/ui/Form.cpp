// A form's birth, its handlers and the way among its controls. Its frame, commands, end and modal loop have
// files of their own.
#include "platform/ui/Form.h"

#include <QPainter>
#include <QStyle>
#include <QWheelEvent>
#include <QWindow>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Application.h"
#include "platform/ui/CaptionBar.h"
#include "platform/ui/FormDrag.h"
#include "platform/ui/FormEvents.h"
#include "platform/ui/FormParts.h"
#include "platform/ui/Menus.h"

namespace {

constexpr QSize kFirstSize{320, 240};

}  // namespace

TForm::TForm(TComponent* owner)
    : TWidget(owner), FClient(new TFormClient(*this)), FDrag(new TFormDrag(*this)) {
    FVisible = false;
    setAttribute(Qt::WA_QuitOnClose, false);
    setMouseTracking(true);
    FClient->setParent(this);
    TActiveForms::Instance().Add(this);
    resize(kFirstSize);
    LayFrame();
}

TForm::~TForm() {
    TActiveForms::Instance().Remove(this);
    FActiveControl = FEntered = nullptr;
    FMenuNotice.reset();
    FreeOwned();
}

TControl* TForm::Client() const {
    return FClient;
}

QWidget* TForm::Container() const {
    return FClient;
}

void TFormBirth::Run(TForm* form) {
    try {
        form->ApplyFrame();
        form->CreateControls();
        form->Construct();
        form->DoCreate();
        form->FBorn = true;
        form->PlaceForm();
        form->DoResize();
        if (form->Visible()) form->Reveal();
    } catch (...) {
        form->FBorn = false;
        form->Free();
        throw;
    }
}

void TForm::DoCreate() {
    if (OnCreate) OnCreate(this);
}

void TForm::DoDestroy() {
    if (OnDestroy) OnDestroy(this);
}

// Before its birth has ended a form has nobody to tell.
void TForm::DoResize() {
    if (FBorn) TWidget::DoResize();
}

void TForm::DoShow() {
    if (OnShow) OnShow(this);
}

void TForm::DoHide() {
    if (OnHide) OnHide(this);
}

void TForm::DoActivate() {
    if (OnActivate) OnActivate(this);
}

void TForm::DoDeactivate() {
    if (OnDeactivate) OnDeactivate(this);
}

void TForm::ShieldClick() {
    if (OnShieldClick) OnShieldClick(this);
}

bool TForm::Active() const {
    return TActiveForms::Instance().Active() == this;
}

void TForm::SetFocus() {
    TActiveForms::Instance().Activate(this);
}

void TForm::BringToFront() {
    Widget()->raise();
    TActiveForms::Instance().Activate(this);
}

void TForm::SetActiveControl(TControl* control) {
    if (control) {
        control->SetFocus();
    } else {
        TActiveForms::Instance().FocusControl(this, nullptr);
    }
}

void TForm::SetVisible(bool visible) {
    if (!FBorn) {
        FVisible = visible;
    } else if (visible) {
        Reveal();
    } else {
        Conceal();
    }
}

void TForm::Reveal() {
    if (!std::exchange(FVisible, true) || !Widget()->isVisible()) ShowWindow();
    TActiveForms::Instance().Activate(this);
}

void TForm::ShowWindow() {
    try {
        DoShow();
    } catch (...) {
        FVisible = false;
        throw;
    }
    if (!FEmbedded) StayAbove();
    CallQt([this] { Widget()->show(); });
}

// A window manager keeps a dialog above the window that opened it.
void TForm::StayAbove() {
    const TActiveForms& forms = TActiveForms::Instance();
    const TForm* below = forms.Active() ? forms.Active() : forms.MainForm();
    QWidget* window = below ? below->Widget()->window() : nullptr;
    if (!window || window == this || forms.MainForm() == this) return;
    winId();
    windowHandle()->setTransientParent(window->windowHandle());
}

void TForm::Conceal() {
    if (!std::exchange(FVisible, false)) return;
    DoHide();
    CallQt([this] { Widget()->hide(); });
    TActiveForms::Instance().Hidden(this);
}

void TForm::SetEnabled(bool enabled) {
    if (enabled == FEnabled) return;
    FEnabled = enabled;
    if (enabled) {
        delete std::exchange(FShield, nullptr);
        if (Active()) TActiveForms::Instance().Activate(this);
        return;
    }
    FShield = new TFormShield(*this);
    LayFrame();
    FShield->setVisible(true);
    QWidget* focus = window()->focusWidget();
    if (focus && (focus == this || isAncestorOf(focus))) CallQt([&] { focus->clearFocus(); });
}

namespace {

// All controls below `container` in Tab order.
void Collect(const TControl& container, std::vector<TControl*>& found) {
    for (TControl* control : container.Controls()) {
        found.push_back(control);
        Collect(*control, found);
    }
}

bool StopsTab(const TControl* control) {
    return control->TabStop() && control->CanFocus();
}

}  // namespace

TControl* TForm::FirstTabStop() const {
    std::vector<TControl*> controls;
    Collect(*this, controls);
    const auto first = std::find_if(controls.begin(), controls.end(), StopsTab);
    return first == controls.end() ? nullptr : *first;
}

void TForm::SelectNext(TControl* control, bool forward) {
    std::vector<TControl*> controls;
    Collect(*this, controls);
    if (!forward) std::reverse(controls.begin(), controls.end());
    const auto from = std::find(controls.begin(), controls.end(), control);
    if (from != controls.end()) std::rotate(controls.begin(), from + 1, controls.end());
    const auto next = std::find_if(controls.begin(), controls.end(), StopsTab);
    if (next != controls.end() && *next != control) (*next)->SetFocus();
}

// Always true: Tab never leaves a form.
bool TForm::focusNextPrevChild(bool next) {
    if (FVisible && FEnabled) CalledByQt(this, [&] { SelectNext(FActiveControl, next); });
    return true;
}

std::vector<TShortCutSource*> TForm::ShortCutSources() const {
    std::vector<TShortCutSource*> sources;
    if (FMenu) sources.push_back(FMenu);
    for (int i = 0; i < ComponentCount(); ++i) {
        auto* source = dynamic_cast<TShortCutSource*>(Components(i));
        if (source && std::find(sources.begin(), sources.end(), source) == sources.end())
            sources.push_back(source);
    }
    return sources;
}

bool TForm::event(QEvent* event) {
    if (event->type() == MessageEventType()) {
        Deliver(MessageOf(*event));
        return true;
    }
    if (event->type() == ReleaseEventType()) {
        ReleaseNow();
        return true;
    }
    return TWidget::event(event);
}

void TForm::Deliver(TMessage message) {
    if (Application && Application->Waiting()) {
        Application->AfterWait(this, [this, message] { Deliver(message); });
    } else {
        CalledByQt(this, [&] { WndProc(message); });
    }
}

void TForm::wheelEvent(QWheelEvent* event) {
    const intptr_t turn = event->angleDelta().y();
    if (turn) CalledByQt(this, [&] { Perform(WM_MOUSEWHEEL, turn * 0x10000); });
    event->accept();
}

TForm* FormOf(QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (auto* form = dynamic_cast<TForm*>(widget)) return form;
        const bool list = widget->windowType() == Qt::Popup && !widget->inherits("QMenu");
        if (widget->isWindow() && !list) return nullptr;
    }
    return nullptr;
}
