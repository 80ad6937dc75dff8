// What the rooms without a screen ask of one: a box, letting pending messages run, the closed wait of a
// server call.
//
//     if (UserInterface().MessageBox(u"Excluir?"_s, u"Confirmação"_s, MB_YESNO + MB_ICONQUESTION) == IDYES)
//     ...
//
// Without a screen a box is written to the log and answered OK, or No to a question.
#pragma once
#include <functional>
#include "platform/rtl/Types.h"

// Flags of a message box: one of the button sets plus one icon.
constexpr int MB_OK = 0;
constexpr int MB_OKCANCEL = 1;
constexpr int MB_YESNOCANCEL = 3;
constexpr int MB_YESNO = 4;
constexpr int MB_ICONERROR = 16;
constexpr int MB_ICONQUESTION = 32;
constexpr int MB_ICONWARNING = 48;
constexpr int MB_ICONINFORMATION = 64;
constexpr int MB_TYPEMASK = 15;
constexpr int MB_ICONMASK = 240;
constexpr int MB_DEFBUTTON2 = 256;

// Answers of a message box.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

class TUserInterface {
  public:
    virtual ~TUserInterface() = default;

    // Shows a box and waits; `flags` is a sum of MB_ constants, the answer one of the ID constants.
    virtual int MessageBox(const UnicodeString& text, const UnicodeString& caption, int flags) = 0;

    // Handles the messages that are waiting now.
    virtual void ProcessMessages() = 0;

    virtual void EnableMainForm(bool enabled) = 0;

    // Brings the application's windows before those of other programs.
    virtual void BringToFront() = 0;

    // Escape was typed during the wait that is running.
    virtual bool WaitCancelled() const { return false; }

    // Waits until `doneWithin` is true. It is called again and again with a time in milliseconds, for which
    // it may block; it must not block longer. Messages other than paint, Escape and its own deadline are held
    // back.
    virtual void WaitFor(const std::function<bool(int milliseconds)>& doneWithin) = 0;
};

// The screen installed, or the one that only logs.
TUserInterface& UserInterface();

// Installs a screen, which must outlive its stay; null stands for the one that only logs. Returns the one
// before, null likewise.
TUserInterface* InstallUserInterface(TUserInterface* userInterface);
