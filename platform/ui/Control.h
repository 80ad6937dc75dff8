// What all controls have in common: place, alignment, anchors, caption, focus and the common events.
//
//     auto* panel = new TPanel(form);               // owned by the form
//     panel->SetName(u"PnTopo"_s);
//     panel->SetParent(form);                       // shown in the form's client area
//     panel->SetHeight(25);
//     panel->SetAlign(alTop);
//
// A control class is the toolkit's widget that does the job plus TControl: class TEdit : public
// TWidget<QLineEdit>. The component owner frees the control; so does the death of its parent, whichever comes
// first.
#pragma once
#include <concepts>
#include <functional>
#include <QFont>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <vector>
#include "platform/rtl/Component.h"
#include "platform/ui/Guard.h"
#include "platform/ui/Keys.h"

class QAbstractButton;
class TForm;

// Which side of its parent a control fills. Top and bottom controls take their slices first, then left and
// right, in creation order; client controls take the rest.
enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient };

// The sides of its parent to which an unaligned control keeps its distance; opposite ones stretch it, none
// centres it.
enum TAnchor { akLeft = 1, akTop = 2, akRight = 4, akBottom = 8 };
using TAnchors = int;

class TControl : public TComponent {
  public:
    QWidget* Widget() const { return FWidget; }

    // The control (or form) that shows this one; null shows it nowhere.
    TControl* Parent() const { return FParent; }
    virtual void SetParent(TControl* parent);
    // The controls it shows, in the order in which they came: also the Tab order.
    const std::vector<TControl*>& Controls() const { return FControls; }
    // Moves this control to place `order` (0 .. count - 1, clamped) among its siblings.
    void SetTabOrder(int order);
    // The form it stands on, itself when it is one; null outside of one.
    TForm* Form() const;

    // The place in the parent's client area, in pixels.
    int Left() const { return Bounds().left(); }
    int Top() const { return Bounds().top(); }
    int Width() const { return Bounds().width(); }
    int Height() const { return Bounds().height(); }
    virtual void SetLeft(int left);
    virtual void SetTop(int top);
    virtual void SetWidth(int width);
    virtual void SetHeight(int height);
    QRect Bounds() const { return FWidget->geometry(); }
    virtual void SetBounds(int left, int top, int width, int height);
    // The area in which its own controls stand.
    int ClientWidth() const { return Container()->width(); }
    int ClientHeight() const { return Container()->height(); }

    TAlign Align() const { return FAlign; }
    void SetAlign(TAlign align);
    TAnchors Anchors() const { return FAnchors; }
    void SetAnchors(TAnchors anchors);
    // Lays the aligned and anchored controls out again. Called by itself after every change that asks for it.
    void Realign();

    // The control's own flag, whatever its parents are.
    bool Visible() const { return FVisible; }
    virtual void SetVisible(bool visible);
    void Show() { SetVisible(true); }
    void Hide() { SetVisible(false); }
    // Visible with all its parents.
    bool Showing() const { return FWidget->isVisible(); }
    bool Enabled() const { return FEnabled; }
    virtual void SetEnabled(bool enabled);

    // Whether SetFocus would work: it is a control that takes the focus, and visible and enabled with all its
    // parents up to the form, which is enabled.
    virtual bool CanFocus() const;
    // Makes it its form's active control and, when the form is shown, gives it the focus. Throws
    // EInvalidOperation when it cannot take it, and what the handlers of leaving and entering throw.
    virtual void SetFocus();
    // It is the active control of the active form.
    virtual bool Focused() const;
    // Whether Tab stops here; the mouse can still focus it.
    bool TabStop() const { return FWidget->focusPolicy() & Qt::TabFocus; }
    void SetTabStop(bool stop);

    const UnicodeString& Caption() const { return FCaption; }
    virtual void SetCaption(const UnicodeString& caption);
    // The text of the tool tip.
    UnicodeString Hint() const { return FWidget->toolTip(); }
    void SetHint(const UnicodeString& hint) { FWidget->setToolTip(hint); }
    // What a screen reader says.
    UnicodeString AccessibleName() const { return FWidget->accessibleName(); }
    void SetAccessibleName(const UnicodeString& name) { FWidget->setAccessibleName(name); }

    QFont Font() const { return FWidget->font(); }
    virtual void SetFont(const QFont& font) { FWidget->setFont(font); }
    QColor FontColor() const;
    void SetFontColor(const QColor& color);
    QColor Color() const;
    // The background; an invalid colour takes the parent's.
    virtual void SetColor(const QColor& color);

    void BringToFront() { FWidget->raise(); }
    void Repaint() { FWidget->update(); }

    std::function<void(TComponent* sender)> OnClick;
    std::function<void(TComponent* sender)> OnDblClick;
    // It became, or is no longer, its form's active control.
    std::function<void(TComponent* sender)> OnEnter;
    std::function<void(TComponent* sender)> OnExit;
    // Setting the key to 0 swallows the stroke.
    std::function<void(TComponent* sender, int& key, TShiftState shift)> OnKeyDown;
    std::function<void(TComponent* sender, WideChar& key)> OnKeyPress;
    std::function<void(TComponent* sender)> OnResize;

    // What the key hub asks.
    virtual void KeyDown(int& key, TShiftState shift);
    virtual void KeyPress(WideChar& key);
    // Whether Enter belongs to this control now, so that no default button takes it.
    virtual bool WantsEnter() const { return false; }
    // A button answers true when it was clicked by Enter (default) or Escape (cancel).
    virtual bool DialogKey(int) { return false; }
    // A caption's mnemonic was typed; answers whether the control took it.
    virtual bool RunMnemonic(QChar) { return false; }
    // Whether text of an input method is to come as key strokes, one a letter (a grid).
    virtual bool TextAsKeys() const { return false; }

  protected:
    TControl(TComponent* owner, QWidget* widget);
    ~TControl() override;

    void NameChanged() override;

    // It becomes or stops being the active control. DoExit may throw: then the control stays the active one.
    virtual void DoEnter();
    virtual void DoExit();
    virtual void DoClick();
    virtual void DoDblClick();
    // The size changed; the controls have been laid out.
    virtual void DoResize();

    // The widget in which its controls stand.
    virtual QWidget* Container() const { return FWidget; }
    // What SetParent(this) really takes as the parent.
    virtual TControl* ChildHost() { return this; }

    // After a change of the widget's size, by us or by the toolkit: lays out and tells, once a size.
    void SizeChanged();
    // The place from which anchors measure is the present one.
    void RememberPlace();

    // The mouse, for widgets that do not report clicks themselves.
    void Pressed(QMouseEvent* event);
    void Released(QMouseEvent* event);
    void DoubleClicked(QMouseEvent* event);

  private:
    friend class TActiveForms;
    friend class TForm;
    friend class TLayout;

    void Detach();

    QWidget* FWidget;
    TControl* FParent = nullptr;
    std::vector<TControl*> FControls;
    UnicodeString FCaption;
    QRect FPlace;       // where it was put
    QSize FParentSize;  // and how large the parent's client area was then
    QSize FLaidSize;
    TAlign FAlign = alNone;
    TAnchors FAnchors = akLeft | akTop;
    bool FVisible = true;
    bool FEnabled = true;
    bool FPressed = false;
    bool FAligning = false;
};

// The nearest control at or above a widget, through the windows that belong to it (a combo's list); null
// without.
TControl* ControlOf(QWidget* widget);

// The base of the control classes: widget class W as a control.
template <class W>
class TWidget : public W, public TControl {
  public:
    explicit TWidget(TComponent* owner) : W(), TControl(owner, static_cast<QWidget*>(static_cast<W*>(this))) {
        if constexpr (kIsButton) {
            QObject::connect(this, &W::clicked, [this] { CalledByQt(this, [this] { this->DoClick(); }); });
        }
    }

  protected:
    ~TWidget() override = default;

    void resizeEvent(QResizeEvent* event) override {
        W::resizeEvent(event);
        CalledByQt(this, [this] { SizeChanged(); });
    }
    void mousePressEvent(QMouseEvent* event) override {
        W::mousePressEvent(event);
        if constexpr (!kIsButton) Pressed(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        W::mouseReleaseEvent(event);
        if constexpr (!kIsButton) Released(event);
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        W::mouseDoubleClickEvent(event);
        DoubleClicked(event);
    }

  private:
    static constexpr bool kIsButton = std::derived_from<W, QAbstractButton>;
};

// Makes a control of class T, owned by `owner` and shown in `parent`.
//     auto* edit = NewControl<TEdit>(form, panel, u"EdtNome"_s, QRect(8, 8, 200, 25));
template <class T>
T* NewControl(TComponent* owner, TControl* parent, const UnicodeString& name, const QRect& bounds = {}) {
    auto* control = new T(owner);
    control->SetName(name);
    control->SetParent(parent);
    if (bounds.isValid()) control->SetBounds(bounds.left(), bounds.top(), bounds.width(), bounds.height());
    return control;
}
