#include "platform/ui/Timer.h"

#include "platform/ui/Application.h"
#include "platform/ui/Guard.h"

TTimer::TTimer(TComponent* owner) : TComponent(owner) {
    QObject::connect(&FTimer, &QTimer::timeout, &FTimer, [this] { Elapsed(); });
    Restart();
}

void TTimer::SetInterval(int milliseconds) {
    FInterval = milliseconds;
    Restart();
}

void TTimer::SetEnabled(bool enabled) {
    if (enabled == FEnabled) return;
    FEnabled = enabled;
    Restart();
}

void TTimer::Restart() {
    if (FEnabled && FInterval > 0) {
        FTimer.start(FInterval);
    } else {
        FTimer.stop();
    }
}

void TTimer::Elapsed() {
    if (Application && Application->Waiting()) {
        Application->AfterWait(&FTimer, [this] { Fire(); });
    } else {
        Fire();
    }
}

void TTimer::Fire() {
    if (!Pending() || !OnTimer) return;
    CalledByQt(this, [this] { OnTimer(this); });
}
