#include "platform/ui/Control.h"

#include "platform/rtl/Exceptions.h"
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Form.h"
#include "platform/ui/Layout.h"

TControl::TControl(TComponent* owner, QWidget* widget) : TComponent(owner), FWidget(widget) {}

TControl::~TControl() {
    TActiveForms::Instance().ControlGone(this);
    Detach();
    for (TControl* control : FControls) control->FParent = nullptr;
}

void TControl::NameChanged() {
    FWidget->setObjectName(Name());
}

void TControl::Detach() {
    TControl* former = std::exchange(FParent, nullptr);
    if (!former) return;
    std::erase(former->FControls, this);
    if (FAlign != alNone && !former->Destroying()) former->Realign();
}

void TControl::SetParent(TControl* parent) {
    TControl* host = parent ? parent->ChildHost() : nullptr;
    if (host == FParent) return;
    Detach();
    FParent = host;
    if (!host) return FWidget->setParent(nullptr);
    host->FControls.push_back(this);
    CallQt([&] {
        FWidget->setParent(host->Container());
        FWidget->setVisible(FVisible);
    });
    RememberPlace();
    host->Realign();
}

void TControl::SetTabOrder(int order) {
    if (!FParent) return;
    std::vector<TControl*>& siblings = FParent->FControls;
    std::erase(siblings, this);
    siblings.insert(siblings.begin() + std::clamp(order, 0, int(siblings.size())), this);
}

TForm* TControl::Form() const {
    for (auto* control = const_cast<TControl*>(this); control; control = control->FParent) {
        if (auto* form = dynamic_cast<TForm*>(control)) return form;
    }
    return nullptr;
}

void TControl::SetLeft(int left) {
    SetBounds(left, Top(), Width(), Height());
}
void TControl::SetTop(int top) {
    SetBounds(Left(), top, Width(), Height());
}
void TControl::SetWidth(int width) {
    SetBounds(Left(), Top(), width, Height());
}
void TControl::SetHeight(int height) {
    SetBounds(Left(), Top(), Width(), height);
}

void TControl::SetBounds(int left, int top, int width, int height) {
    CallQt([&] { FWidget->setGeometry(left, top, std::max(0, width), std::max(0, height)); });
    SizeChanged();
    RememberPlace();
    if (FAlign != alNone && FParent) FParent->Realign();
}

void TControl::RememberPlace() {
    FPlace = Bounds();
    FParentSize = FParent ? FParent->Container()->size() : QSize();
}

void TControl::SetAlign(TAlign align) {
    FAlign = align;
    RememberPlace();
    if (FParent) FParent->Realign();
}

void TControl::SetAnchors(TAnchors anchors) {
    FAnchors = anchors;
    RememberPlace();
}

void TControl::Realign() {
    if (std::exchange(FAligning, true)) return;
    TLayout(*this).Run();
    FAligning = false;
}

// A hidden widget learns of its size only when it is shown, too late for code that reads places before: so
// both ways of changing a size come here, and each size counts once.
void TControl::SizeChanged() {
    const QSize size = Container()->size();
    if (std::exchange(FLaidSize, size) == size) return;
    Realign();
    DoResize();
}

void TControl::DoResize() {
    if (OnResize) OnResize(this);
}

void TControl::SetVisible(bool visible) {
    FVisible = visible;
    if (!FParent) return;
    CallQt([&] { FWidget->setVisible(visible); });
    if (FAlign != alNone) FParent->Realign();
}

void TControl::SetEnabled(bool enabled) {
    FEnabled = enabled;
    CallQt([&] { FWidget->setEnabled(enabled); });
}

bool TControl::CanFocus() const {
    const TForm* form = Form();
    return form && form->Enabled() && FWidget->focusPolicy() != Qt::NoFocus &&
           FWidget->isVisibleTo(form->Widget()) && FWidget->isEnabledTo(form->Widget());
}

void TControl::SetFocus() {
    if (!CanFocus()) throw EInvalidOperation(QStringLiteral("Cannot focus a disabled or invisible control."));
    TActiveForms::Instance().FocusControl(Form(), this);
}

bool TControl::Focused() const {
    const TForm* form = Form();
    return form && form->Active() && form->ActiveControl() == this;
}

void TControl::SetTabStop(bool stop) {
    FWidget->setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void TControl::SetCaption(const UnicodeString& caption) {
    FCaption = caption;
    FWidget->update();
}

QColor TControl::FontColor() const {
    return FWidget->palette().color(FWidget->foregroundRole());
}

void TControl::SetFontColor(const QColor& color) {
    QPalette palette = FWidget->palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, color);
        palette.setColor(QPalette::Inactive, role, color);
    }
    FWidget->setPalette(palette);
}

QColor TControl::Color() const {
    return FWidget->palette().color(FWidget->backgroundRole());
}

void TControl::SetColor(const QColor& color) {
    QPalette palette = FWidget->palette();
    if (color.isValid()) {
        palette.setColor(QPalette::Window, color);
        palette.setColor(QPalette::Base, color);
    }
    FWidget->setPalette(palette);
    FWidget->setAutoFillBackground(color.isValid());
}

void TControl::KeyDown(int& key, TShiftState shift) {
    if (OnKeyDown) OnKeyDown(this, key, shift);
}

void TControl::KeyPress(WideChar& key) {
    if (OnKeyPress) OnKeyPress(this, key);
}

void TControl::DoEnter() {
    if (OnEnter) OnEnter(this);
}

void TControl::DoExit() {
    if (OnExit) OnExit(this);
}

void TControl::DoClick() {
    if (OnClick) OnClick(this);
}

void TControl::DoDblClick() {
    if (OnDblClick) OnDblClick(this);
}

void TControl::Pressed(QMouseEvent* event) {
    FPressed = event->button() == Qt::LeftButton;
    if (OnClick || OnDblClick) event->accept();
}

void TControl::Released(QMouseEvent* event) {
    const bool clicked = std::exchange(FPressed, false) && event->button() == Qt::LeftButton;
    if (clicked && FWidget->rect().contains(event->position().toPoint()))
        CalledByQt(this, [this] { DoClick(); });
}

void TControl::DoubleClicked(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) CalledByQt(this, [this] { DoDblClick(); });
}

TControl* ControlOf(QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (auto* control = dynamic_cast<TControl*>(widget)) return control;
    }
    return nullptr;
}
