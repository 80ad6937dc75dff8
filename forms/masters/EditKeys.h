// Keyboard handling that the registration master and the entry master share: a form is filled in without a
// mouse.
//
//     FKeys.Pages = [this](bool forward) { BtnTabSet->SelectNext(forward); };
//     OnShortCut = [this](TShortCutKey& key, bool& handled) { FKeys.ShortCut(key, handled); };
//     OnKeyDown = [this](TComponent*, int& key, TShiftState) { FKeys.KeyDown(key); };
//     OnKeyPress = [this](TComponent*, WideChar& key) { FKeys.KeyPress(key); };
//
// What a key means is decided in `EditKeyRules.h`. Injected strokes are queued: the focus has not moved yet
// when a handler returns.
#pragma once

#include <functional>

#include "forms/masters/EditKeyRules.h"
#include "platform/ui/Form.h"

class TEditKeys {
  public:
    explicit TEditKeys(TForm* form) : FForm(form) {}

    std::function<void()> Cancel;             // Escape; always set
    std::function<void()> Confirm;            // F12; empty while there is no confirm button
    std::function<void(bool forward)> Pages;  // Page Down (true) and Page Up; empty on a form without pages

    // The form's three key handlers. A handled key is set to 0 or marked handled. Text typed into a grid is
    // turned to upper case.
    void ShortCut(TShortCutKey& key, bool& handled);
    void KeyDown(int& key);
    void KeyPress(WideChar& key);

  private:
    void Execute(TEditAction action);
    void MoveColumn(int step);

    TForm* FForm;
};

// The state of a form's active control; Other when there is none. Of a data-aware control the dataset is
// looked at too.
TEditControl DescribeControl(TControl* control);
