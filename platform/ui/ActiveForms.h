// Which form and which control are active. Both follow the focus of the toolkit, but only between forms and
// controls: popups, menus, message boxes and other programs change neither. A control's own list counts as
// the control, unless that never takes the focus.
#pragma once
#include <QWidget>
#include <vector>

class TControl;
class TForm;

class TActiveForms {
  public:
    static TActiveForms& Instance();

    void Add(TForm* form);
    void Remove(TForm* form);
    void ControlGone(TControl* control);

    // Oldest first.
    const std::vector<TForm*>& Forms() const { return FForms; }
    TForm* Active() const { return FActive; }
    TForm* MainForm() const { return FMainForm; }
    void SetMainForm(TForm* form) { FMainForm = form; }

    // Brings the form to the front and gives the focus to its control. Does nothing for a form that is
    // hidden, disabled or behind a modal one. Throws what the handlers throw.
    void Activate(TForm* form);
    // Makes `control` (null: the form itself) the form's active control, with the focus when the form is
    // active.
    void FocusControl(TForm* form, TControl* control);
    // The form is going off the screen: the form before it becomes active.
    void Hidden(TForm* form);
    // The toolkit gave the focus to another widget.
    void FocusMoved(QWidget* now);
    // The mouse was pressed on a widget that need not take the focus.
    void MousePressed(QWidget* widget);

    // A press of the mouse asked for a change of focus that was refused since the last call: it must not go
    // on.
    bool TakeRefusal() { return std::exchange(FRefused, false); }

  private:
    void SetActive(TForm* form);
    void Enter(TForm* form, TControl* control);
    void Leave(TForm* form);
    void GiveFocus(QWidget* widget);
    TControl* FocusTarget(TForm* form) const;
    bool CanActivate(const TForm* form) const;
    TForm* NextOf(const TForm* form) const;

    std::vector<TForm*> FForms;
    std::vector<TForm*> FRecent;  // the active one first
    TForm* FActive = nullptr;
    TForm* FMainForm = nullptr;
    bool FRefused = false;
};
