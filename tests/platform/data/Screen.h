#pragma once
#include <functional>
#include "platform/system/UserInterface.h"

// A screen that does `Paint` while it waits, and whose user types Escape after `Escape` turns.
class Screen : public TUserInterface {
  public:
    Screen() : FBefore(InstallUserInterface(this)) {}
    ~Screen() override { InstallUserInterface(FBefore); }

    int MessageBox(const UnicodeString&, const UnicodeString&, int) override { return IDOK; }
    void ProcessMessages() override {}
    void EnableMainForm(bool) override {}
    void BringToFront() override {}
    bool WaitCancelled() const override { return Escape && Turns >= Escape; }
    void WaitFor(const std::function<bool(int)>& doneWithin) override {
        Turns = 0;
        while (!doneWithin(20)) {
            ++Turns;
            if (Paint) Paint();
        }
    }

    int Escape = 0, Turns = 0;
    std::function<void()> Paint;

  private:
    TUserInterface* FBefore;
};
