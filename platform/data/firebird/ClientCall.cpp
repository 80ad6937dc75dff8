#include "platform/data/firebird/ClientCall.h"

#include <atomic>
#include <chrono>
#include <exception>
#include <optional>
#include <QScopeGuard>

#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/FbErrors.h"
#include "platform/data/firebird/NewConnections.h"
#include "platform/data/firebird/ServiceThread.h"
#include "platform/system/UserInterface.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

CallHook& Hook() {
    static CallHook hook;
    return hook;
}

// A status vector for the length of one call.
class CallStatus {
  public:
    CallStatus() : FStatus(Firebird::fb_get_master_interface()->getStatus()) {}
    ~CallStatus() { FStatus.dispose(); }
    CallStatus(const CallStatus&) = delete;
    CallStatus& operator=(const CallStatus&) = delete;
    Firebird::ThrowStatusWrapper& Get() { return FStatus; }

  private:
    Firebird::ThrowStatusWrapper FStatus;
};

bool g_running = false;
std::atomic<bool> g_stop = false;  // the call that is running is to be broken off

struct Stopped {};

ServiceThread& Service() {
    static ServiceThread service;
    return service;
}

bool IsStatement(CallKind kind) {
    return kind == CallKind::Prepare || kind == CallKind::Execute || kind == CallKind::Write ||
           kind == CallKind::Fetch || kind == CallKind::Blob;
}

bool IsShort(CallKind kind) {
    return kind == CallKind::Start || kind == CallKind::Write || kind == CallKind::Close ||
           kind == CallKind::Commit;
}

// Watches over one call while the program waits for it.
class CallWatch {
  public:
    CallWatch(CallKind kind, const CallLimit& limit) : FKind(kind), FLimit(limit) {}

    bool DoneWithin(int milliseconds) {
        if (Service().DoneWithin(milliseconds)) return true;
        if (FLimit.Attachment || FLimit.Connections) BreakOffWhenDue();
        return false;
    }
    // What was cancelled may have ended by itself just before, and the next statement must not pay for it.
    void Forgive() {
        if (!FAsked || !FLimit.Attachment) return;
        Cancel(fb_cancel_disable);
        Cancel(fb_cancel_enable);
    }
    EFDError Judged(const EFDError& error) const {
        EFDError judged = FTimedOut ? error.Saying(u"O servidor não respondeu no tempo permitido."_s) : error;
        judged.BrokenOff = FAsked.has_value();
        judged.ConnectionUsable = judged.ConnectionUsable && !FGivenUp;
        return judged;
    }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds kObeys{5};  // a server that lives answers to a cancel by then

    // First the statement is cancelled, which keeps the connection; who does not answer is left.
    void BreakOffWhenDue() {
        const Clock::time_point now = Clock::now();
        if (FAsked) {
            if (now - *FAsked > kObeys) GiveUp();
            return;
        }
        FTimedOut = FLimit.Time.count() > 0 && now - FBegin > FLimit.Time;
        if (!FTimedOut && !(MayBeCancelled() && UserInterface().WaitCancelled())) return;
        FAsked = now;
        g_stop = true;
        IsStatement(FKind) ? Cancel(fb_cancel_raise) : GiveUp();
    }
    // Not an ending: what was written is to be decided on.
    bool MayBeCancelled() const {
        return IsStatement(FKind) || FKind == CallKind::Start || FKind == CallKind::Attach;
    }
    void GiveUp() {
        FGivenUp = true;
        FLimit.Connections ? FLimit.Connections->Shut() : Cancel(fb_cancel_abort);
    }
    void Cancel(int how) {
        CallStatus status;
        try {
            FLimit.Attachment->cancelOperation(&status.Get(), how);
        } catch (const Firebird::FbException&) {
            // Nothing runs any more that could be cancelled: the call is about to end.
        }
    }

    const CallKind FKind;
    const CallLimit FLimit;
    const Clock::time_point FBegin = Clock::now();
    std::optional<Clock::time_point> FAsked;
    bool FTimedOut = false, FGivenUp = false;
};

// Runs `body` on the service thread and throws what it threw.
void Wait(ClientBody body, Firebird::ThrowStatusWrapper& status, CallWatch& watch) {
    std::exception_ptr thrown;
    const std::function<void()> work = [&] {
        try {
            body(status);
        } catch (...) {
            thrown = std::current_exception();
        }
    };
    Service().Start(work);
    UserInterface().WaitFor([&](int milliseconds) { return watch.DoneWithin(milliseconds); });
    watch.Forgive();
    if (thrown) std::rethrow_exception(thrown);
}

// With the status of the one call that may be running.
void RunShort(ClientBody body) {
    static CallStatus status;
    try {
        body(status.Get());
    } catch (const Firebird::FbException& error) {
        throw ErrorOf(*error.getStatus());
    }
}

void RunWatched(CallKind kind, ClientBody body, const CallLimit& limit) {
    CallStatus status;
    CallWatch watch(kind, limit);
    try {
        Wait(body, status.Get(), watch);
    } catch (const Firebird::FbException& error) {
        throw watch.Judged(ErrorOf(*error.getStatus()));
    } catch (const Stopped&) {
        throw watch.Judged(ErrorOfCodes({isc_cancelled}));
    }
}

}  // namespace

bool ClientCallRunning() {
    return g_running;
}

CallHook SetClientCallHook(CallHook hook) {
    return std::exchange(Hook(), std::move(hook));
}

void StopIfAsked() {
    if (g_stop.load(std::memory_order_relaxed)) throw Stopped();
}

void ClientCall(CallKind kind, ClientBody body, const CallLimit& limit) {
    if (Hook()) Hook()(kind);
    if (g_running) Abort();
    const auto free = qScopeGuard([] { g_running = false; });
    g_running = true;
    g_stop.store(false, std::memory_order_relaxed);
    if (limit.Local && IsShort(kind)) return RunShort(body);
    RunWatched(kind, body, limit);
}

bool QuietClientCall(CallKind kind, ClientBody body, const CallLimit& limit) noexcept {
    try {
        ClientCall(kind, body, limit);
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace fichario
