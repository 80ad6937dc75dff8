#include "platform/system/UserInterface.h"

#include <QDebug>
#include <utility>

namespace {

// No screen: boxes go to the log, waits just wait.
class TLogOnly : public TUserInterface {
  public:
    int MessageBox(const UnicodeString& text, const UnicodeString& caption, int flags) override {
        qWarning().noquote() << caption + QStringLiteral(": ") + text;
        const int buttons = flags & MB_TYPEMASK;
        return buttons == MB_YESNO || buttons == MB_YESNOCANCEL ? IDNO : IDOK;
    }

    void ProcessMessages() override {}
    void EnableMainForm(bool) override {}
    void BringToFront() override {}

    void WaitFor(const std::function<bool(int)>& doneWithin) override {
        constexpr int kSlice = 1000;  // ms
        while (!doneWithin(kSlice)) {
        }
    }
};

TUserInterface*& Installed() {
    static TUserInterface* installed = nullptr;
    return installed;
}

}  // namespace

TUserInterface& UserInterface() {
    static TLogOnly logOnly;
    return Installed() ? *Installed() : logOnly;
}

TUserInterface* InstallUserInterface(TUserInterface* userInterface) {
    return std::exchange(Installed(), userInterface);
}
