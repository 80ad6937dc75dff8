// A timer: calls back again and again from the event loop.
//
//     auto* timer = new TTimer(form);
//     timer->SetInterval(200);
//     timer->OnTimer = [this](TComponent*) { Search(); };
//     timer->SetEnabled(false); timer->SetEnabled(true);     // counts from the beginning
#pragma once
#include <functional>
#include <QTimer>
#include "platform/rtl/Component.h"

class TTimer : public TComponent {
  public:
    // Enabled, once a second.
    explicit TTimer(TComponent* owner);

    // Milliseconds; 0 stops it. Setting it counts from the beginning.
    int Interval() const { return FInterval; }
    void SetInterval(int milliseconds);
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool enabled);
    // It is enabled and will call.
    bool Pending() const { return FTimer.isActive(); }

    // Calls OnTimer as the clock does, when the timer is pending.
    void Fire();

    // Held back while a closed wait runs.
    std::function<void(TComponent* sender)> OnTimer;

  protected:
    ~TTimer() override = default;

  private:
    void Restart();
    void Elapsed();

    QTimer FTimer;
    int FInterval = 1000;
    bool FEnabled = true;
};
