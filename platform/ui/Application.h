// The program: its message boxes, its event loop, what happens to exceptions, and which form is active.
//
//     QApplication app(argc, argv);
//     ApplyLooks(app);
//     TApplication application;                      // Application points to it now
//     NewForm<TFrmPrincipal>(Application);           // the first fsMDIForm is the main form
//     return Application->Run();
#pragma once
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <vector>
#include "platform/rtl/Component.h"
#include "platform/rtl/Exceptions.h"
#include "platform/system/UserInterface.h"

class QObject;
class TControl;
class TForm;

// A message box as the hook gets it.
struct TBox {
    UnicodeString Text;
    UnicodeString Caption;
    int Flags = 0;
};

class TApplication : public TComponent, public TUserInterface {
  public:
    // Makes itself `Application`, the owner of what belongs to the whole program, and the screen of the rooms
    // below.
    TApplication();
    // Frees the forms, newest first.
    ~TApplication() override;

    // Shows a box with Portuguese buttons and waits for the answer: one of the ID constants. Closing a
    // question counts as Cancel, or as No where there is no Cancel. The active form and control stay the
    // same.
    int MessageBox(const UnicodeString& text, const UnicodeString& caption, int flags = MB_OK) override;
    // Answers boxes in place of the screen.
    std::function<int(const TBox& box)> OnMessageBox;
    // Told of each modal form once it is shown and its loop runs.
    std::function<void(TForm* form)> OnModal;

    // Handles what is waiting now.
    void ProcessMessages() override;
    void EnableMainForm(bool enabled) override;
    void BringToFront() override;
    // Waits without a loop for 250 ms; after that paints and shows the hourglass, drops all input, and holds
    // back timers and posted messages until `doneWithin` is true. Escape is remembered, see WaitCancelled.
    void WaitFor(const std::function<bool(int milliseconds)>& doneWithin) override;
    // A closed wait is running.
    bool Waiting() const { return FWaiting > 0; }
    // Escape was typed during the closed wait that is running.
    bool WaitCancelled() const override { return FWaiting > 0 && FWaitCancelled; }
    void CancelWait() { FWaitCancelled = true; }
    // Runs `later` from the event loop after the closed wait, and not when `context` has died by then.
    void AfterWait(QObject* context, std::function<void()> later);

    // Shows the exception's message (caption "Erro"); EAbort is silent. OnException replaces the box.
    void HandleException(std::exception_ptr exception);
    std::function<void(const Exception& exception)> OnException;
    // The same from the event loop; the same text is not queued twice.
    void QueueException(std::exception_ptr exception);

    // Shows the main form and runs until it has closed or Terminate was called; frees the forms. Returns the
    // exit code.
    int Run();
    void Terminate();
    bool Terminated() const { return FTerminated; }
    // Nothing is waiting; called before the loop sleeps.
    std::function<void()> OnIdle;

    // The first form of style fsMDIForm, or the one that was set.
    TForm* MainForm() const;
    void SetMainForm(TForm* form);

    // The active form, embedded or a window of its own; other programs, menus and message boxes do not change
    // it. Null when none is visible.
    TForm* ActiveForm() const;
    // All forms, oldest first.
    const std::vector<TForm*>& Forms() const;

    // Another control became the active one of the active form.
    std::function<void()> OnActiveControlChange;

  private:
    struct THeldBack;

    void ShowQueued();
    void ReleaseHeldBack();
    void Idle();

    std::unique_ptr<QObject> FReceiver;
    std::deque<std::exception_ptr> FQueued;
    std::vector<THeldBack> FHeldBack;
    TComponent* FFormerRoot;
    TUserInterface* FFormerInterface;
    int FWaiting = 0;
    bool FWaitCancelled = false;
    bool FTerminated = false;
};

extern TApplication* Application;
