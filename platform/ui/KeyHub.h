// The hub that all key strokes pass, in one order whatever has the focus:
//
//     the form's OnShortCut -> short cuts and mnemonics of its menus -> the form's OnKeyDown (key preview)
//     -> the control's OnKeyDown -> for characters OnKeyPress of the form, then of the control -> the control
//     itself
//
// A handler that sets the key to 0, sets `handled`, or throws (a silent abort too) swallows the stroke; one
// that changes the character changes what the control receives. Text of an input method passes the character
// stage letter by letter. A stroke belongs to the control that had the focus when it came, and strokes for a
// disabled form are dropped. While a menu is open, or a window that is no form has the focus, the hub keeps
// out.
#pragma once
#include <QChar>
#include "platform/ui/Keys.h"

// A stroke as OnShortCut gets it.
struct TShortCutKey {
    int Key = 0;  // virtual key code
    TShiftState Shift = 0;
};

// What knows short cuts: a form's menu. The hub finds those that the form owns.
class TShortCutSource {
  public:
    virtual ~TShortCutSource() = default;

    // Runs the item with that short cut and answers true, or answers false.
    virtual bool RunShortCut(int key, TShiftState shift) = 0;
    // Opens or runs the top item with that mnemonic (Alt+letter, case apart).
    virtual bool RunMnemonic(QChar letter) = 0;
    // Opens the menu for the keyboard (F10).
    virtual bool OpenMenu() = 0;
};

// Queues a key stroke as if it were typed: it finds the focus when it is delivered and passes all stages.
// `key` is a virtual key code. Dropped when no form is active then.
void InjectKey(int key, TShiftState shift = 0);
// Forgets the strokes that InjectKey has queued.
void DropInjectedKeys();
