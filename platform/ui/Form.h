// Forms: the windows of a program. A form of style fsMDIChild lives inside the main form's client area under
// a caption bar of ours; the main form (fsMDIForm) and plain forms (fsNormal) are windows of their own.
//
//     class TFrmAviso : public TForm {
//       public:
//         explicit TFrmAviso(TComponent* owner) : TForm(owner) { SetFormStyle(fsMDIChild); }
//       protected:
//         void CreateControls() override {
//             TForm::CreateControls();
//             SetCaption(u"Aviso"_s);
//             auto* ok = NewControl<TButton>(this, this, u"BtnOk"_s, QRect(8, 8, 80, 25));
//             ok->OnClick = [this](TComponent*) { Close(); };
//         }
//     };
//     auto* form = NewForm<TFrmAviso>(Application);
//
// Birth, five steps by NewForm: the constructors only store their arguments; CreateControls and Construct
// run, base class first; then OnCreate; the form is placed (Position) and, when Visible, shown. A step that
// throws ends the form without OnDestroy. Death: Close hides the form and queues its release; it is freed
// once no handler of it is running. Free ends it at once, after OnDestroy.
#pragma once
#include <functional>
#include <memory>
#include <QIcon>
#include "platform/ui/Control.h"
#include "platform/ui/KeyHub.h"
#include "platform/ui/Messages.h"

class QEventLoop;
class QMenuBar;
class QPainter;
class TCaptionBar;
class TFormClient;
class TFormDrag;
class TFormShield;
class TMainMenu;

enum TFormStyle { fsNormal, fsMDIChild, fsMDIForm };
enum TWindowState { wsNormal, wsMinimized, wsMaximized };
enum TBorderStyle { bsSizeable, bsDialog, bsToolWindow, bsNone };
enum TBorderIcon { biSystemMenu = 1, biMinimize = 2, biMaximize = 4 };
using TBorderIcons = int;
enum TPosition { poDesigned, poMainFormCenter, poScreenCenter, poOwnerFormCenter };
// What closing does: nothing, hide, hide and free, minimise.
enum TCloseAction { caNone, caHide, caFree, caMinimize };

class TForm : public TWidget<QWidget>, public THandlerHost {
  public:
    explicit TForm(TComponent* owner);

    // The client area as a parent for controls; SetParent(form) means the same.
    TControl* Client() const;
    // The main form's area in which the other forms live; null for every other form.
    TControl* ClientArea() const { return FClientArea; }

    // Left, Top, Width and Height are the frame's. Sizes are kept between the least and the greatest (0:
    // none).
    void SetBounds(int left, int top, int width, int height) override;
    void SetClientWidth(int width);
    void SetClientHeight(int height);
    int MinWidth() const { return FLeast.width(); }
    int MinHeight() const { return FLeast.height(); }
    int MaxWidth() const { return FMost.width(); }
    int MaxHeight() const { return FMost.height(); }
    void SetMinWidth(int width);
    void SetMinHeight(int height);
    void SetMaxWidth(int width);
    void SetMaxHeight(int height);

    void SetCaption(const UnicodeString& caption) override;
    QIcon Icon() const { return FIcon; }
    void SetIcon(const QIcon& icon);
    TBorderStyle BorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle style);
    TBorderIcons BorderIcons() const { return FBorderIcons; }
    void SetBorderIcons(TBorderIcons icons);
    // fsMDIChild and fsMDIForm also set Visible. A child style form without a main form is a window of its
    // own.
    TFormStyle FormStyle() const { return FFormStyle; }
    void SetFormStyle(TFormStyle style);
    // It lives inside the main form's client area.
    bool Embedded() const { return FEmbedded; }
    TPosition Position() const { return FPosition; }
    void SetPosition(TPosition position) { FPosition = position; }
    TMainMenu* Menu() const { return FMenu; }
    // Shows the menu as a bar above the client area; null takes it away. Short cuts work for every menu that
    // the form owns, shown here or not.
    void SetMenu(TMainMenu* menu);
    // The form's OnKeyDown and OnKeyPress come before the control's.
    bool KeyPreview() const { return FKeyPreview; }
    void SetKeyPreview(bool preview) { FKeyPreview = preview; }

    // Minimised, an embedded form is a small bar at the lower edge unless its WM_SIZE handler decides
    // otherwise; maximised, it fills the client area.
    TWindowState WindowState() const { return FWindowState; }
    void SetWindowState(TWindowState state);
    // Whether the caption shows the button that restores; a form with a maximising of its own overrides it.
    virtual bool LooksMaximized() const { return FWindowState == wsMaximized; }

    // Showing activates the form. Before its birth has ended, Visible only says that NewForm shall show it.
    void SetVisible(bool visible) override;
    // A disabled form keeps its look and that of its controls, and hears neither mouse nor keys; a click on
    // it calls ShieldClick.
    void SetEnabled(bool enabled) override;
    bool CanFocus() const override { return Enabled() && Visible(); }
    // Activates the form.
    void SetFocus() override;
    bool Focused() const override { return Active() && !FActiveControl; }
    bool Active() const;
    // In front of the other forms, and active.
    void BringToFront();

    // The control that has, or will have, the focus here; null when the form itself has it.
    TControl* ActiveControl() const { return FActiveControl; }
    void SetActiveControl(TControl* control);
    // Gives the focus to the Tab stop after (or before) `control`, in a circle; `control` null begins at the
    // first. What the leaving and entering handlers throw passes through.
    void SelectNext(TControl* control, bool forward);
    // The first control at which Tab stops and that can take the focus now; null without.
    TControl* FirstTabStop() const;
    // What the Tab key does, or with Shift.
    void DoTabKey(bool forward) { SelectNext(FActiveControl, forward); }

    // Asks OnCloseQuery; the main form asks all other forms first, the newest first.
    virtual bool CloseQuery();
    // Asks, then does what OnClose says: by default hide, for the main form free all forms and end the
    // program.
    void Close();
    // Frees the form as soon as none of its handlers is running.
    void Release();
    void Free() override;
    bool Releasing() const { return FReleasing; }

    // Shows the form and waits until ModalResult is not 0 or the form closes; returns ModalResult, 2 when it
    // closed without one. Then the form that was active is active again. A form closed with caFree can be
    // read until the calling handler returns. Throws EInvalidOperation for a form that is visible, disabled
    // or embedded.
    int ShowModal();
    bool InModal() const { return FLoop != nullptr; }
    int ModalResult() const { return FModalResult; }
    void SetModalResult(int result);

    // Sends a message to WndProc now; returns its Result.
    intptr_t Perform(int msg, intptr_t wParam = 0, intptr_t lParam = 0);

    std::function<void(TComponent* sender)> OnCreate;
    std::function<void(TComponent* sender)> OnDestroy;
    std::function<void(TComponent* sender)> OnActivate;
    std::function<void(TComponent* sender)> OnDeactivate;
    std::function<void(TComponent* sender)> OnShow;
    std::function<void(TComponent* sender)> OnHide;
    std::function<void(TComponent* sender, bool& canClose)> OnCloseQuery;
    std::function<void(TComponent* sender, TCloseAction& action)> OnClose;
    // Paints the client area, under the controls.
    std::function<void(QPainter& painter)> OnPaint;
    // Comes before everything else that hears keys.
    std::function<void(TShortCutKey& key, bool& handled)> OnShortCut;
    // A click on the disabled form; also a virtual, ShieldClick.
    std::function<void(TComponent* sender)> OnShieldClick;

    // Fixed measures of the frame, in pixels.
    static int CaptionHeight() { return 28; }
    static int CaptionButtonWidth() { return 36; }
    static int SmallCaptionButtonWidth() { return 24; }
    static int FrameWidth() { return 4; }
    static int VerticalScrollBarWidth();

    // The menus to ask for short cuts: those the form owns and the one it shows.
    std::vector<TShortCutSource*> ShortCutSources() const;

  protected:
    ~TForm() override;

    // The steps of birth; an override calls its base class first.
    virtual void CreateControls() {}
    virtual void Construct() {}
    // Steps 3 and 4: runs OnCreate; places the form.
    virtual void DoCreate();
    virtual void PlaceForm();
    // Death, before anything is gone: runs OnDestroy.
    virtual void DoDestroy();
    // Death, born or not: last of all while the form is whole. What it throws is shown.
    virtual void BeforeDeath() {}

    virtual void WndProc(TMessage& message);
    // What a message does by itself.
    void DefaultHandler(TMessage& message);

    virtual void DoActivate();
    virtual void DoDeactivate();
    virtual void DoShow();
    virtual void DoHide();
    virtual void ShieldClick();
    void DoResize() override;

    QWidget* Container() const override;
    void HandlersEnded() override;

    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    friend class TActiveForms;
    friend class TFormBirth;
    friend class TFormClient;
    friend class TFormDrag;
    friend class TFormShield;

    // The frame.
    void ApplyFrame();
    void ApplyWindowFlags();
    void LayFrame();
    void ApplyLimits();
    void SetSizeLimits();
    bool HasOneSize() const;
    void HoldSize();
    QMargins FrameMargins() const;
    bool Sizeable() const;
    QRect PlaceOver() const;

    // Commands.
    void SystemCommand(int command);
    void ShowState(TWindowState former);
    void Collapse();

    // Showing and closing.
    void Reveal();
    void ShowWindow();
    void StayAbove();
    void Conceal();
    void CloseWith(TCloseAction action);
    TCloseAction AskCloseAction();
    bool OthersMayClose();
    void FreeOtherForms();
    void ReleaseNow();
    void Deliver(TMessage message);

    // Modal.
    void CheckModal() const;
    void RunModal();
    bool EndModal();

    TFormClient* FClient;
    TControl* FClientArea = nullptr;
    TCaptionBar* FCaptionBar = nullptr;
    TFormShield* FShield = nullptr;
    std::unique_ptr<TFormDrag> FDrag;
    TMainMenu* FMenu = nullptr;
    QPointer<QMenuBar> FMenuBar;
    TFreeNotice FMenuNotice;
    QIcon FIcon;
    QSize FLeast, FMost;
    QRect FRestored;  // the place before minimising or maximising
    TFormStyle FFormStyle = fsNormal;
    TBorderStyle FBorderStyle = bsSizeable;
    TBorderIcons FBorderIcons = biSystemMenu | biMinimize | biMaximize;
    TPosition FPosition = poDesigned;
    TWindowState FWindowState = wsNormal;
    TControl* FActiveControl = nullptr;
    TControl* FEntered = nullptr;  // the control that got OnEnter last
    QEventLoop* FLoop = nullptr;
    int FModalResult = 0;
    bool FKeyPreview = false;
    bool FBorn = false;
    bool FReleasing = false;
    bool FEmbedded = false;
};

// Runs the steps of a form's birth. Use NewForm.
class TFormBirth {
  public:
    // Ends the form without OnDestroy and throws on when a step throws.
    static void Run(TForm* form);
};

// Makes a form of class T with its constructor's arguments, in five steps. Throws what a step throws; then
// the form is gone.
template <class T, class... A>
T* NewForm(A&&... arguments) {
    auto* form = new T(std::forward<A>(arguments)...);
    TFormBirth::Run(form);
    return form;
}

// The form that shows a widget: the nearest one above it, not past a window that is no form (a message box),
// but through lists and calendars that belong to a control; null without.
TForm* FormOf(QWidget* widget);
