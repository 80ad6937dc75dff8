// The border between the toolkit's code and ours, which no exception crosses.
//
//     connect(button, &QPushButton::clicked, [this] { CalledByQt(this, [this] { Click(); }); });
//     void paintEvent(QPaintEvent*) override { CalledByPaint([this] { Paint(); }); }
//     void SetFocus() { CallQt([this] { FWidget->setFocus(); }); }      // throws what an exit handler threw
//
// A handler that throws under the event loop has its exception shown by the application. One that runs inside
// a call of our own (CallQt) has it kept until the toolkit has returned, and that call throws it. Handlers
// are counted for their form, so that a closed form is freed only when none of them is running.
#pragma once
#include <exception>
#include <utility>
#include <vector>

class TComponent;

// What handlers are counted for: a form.
class THandlerHost {
  public:
    THandlerHost() = default;
    THandlerHost(const THandlerHost&) = delete;
    THandlerHost& operator=(const THandlerHost&) = delete;

    // How many handlers of this host are running or keep it.
    int RunningHandlers() const { return FRunning; }

    // The host of a component: itself or the nearest owner that is one; null without.
    static THandlerHost* Of(TComponent* component);

  protected:
    virtual ~THandlerHost();

    // The last handler has ended.
    virtual void HandlersEnded() = 0;

  private:
    friend class TCallFrame;
    int FRunning = 0;
};

// One entry of the stack of calls between the toolkit and our code. Use the functions below.
class TCallFrame {
  public:
    enum TKind { Handler, OwnCall, Loop };

    explicit TCallFrame(TKind kind, THandlerHost* host = nullptr);
    ~TCallFrame();
    TCallFrame(const TCallFrame&) = delete;
    TCallFrame& operator=(const TCallFrame&) = delete;

    // Inside a catch block: keeps the exception for the call of ours right below, or has it shown, now or
    // (`later`) once the event loop runs again.
    void Caught(bool later = false);
    // Throws the first exception kept, if any.
    void Rethrow();

    // Keeps `host` alive until the innermost running handler ends; without one does nothing.
    static void KeepForHandler(THandlerHost* host);
    // Takes a dying host out of all frames.
    static void Forget(THandlerHost* host);

  private:
    void Keep(THandlerHost* host);

    TKind FKind;
    TCallFrame* FBelow;
    std::vector<THandlerHost*> FHosts;
    std::exception_ptr FKept;
};

// Shows the exception being caught once the event loop runs again, once a cause. Only inside a catch block.
void QueueCaught();

// Runs `f` where the toolkit calls us: an event, a signal, a timer. `who` tells whose handler it is.
template <class F>
void CalledByQt(TComponent* who, F&& f) {
    TCallFrame frame(TCallFrame::Handler, THandlerHost::Of(who));
    try {
        std::forward<F>(f)();
    } catch (...) {
        frame.Caught();
    }
}

template <class F>
void CalledByQt(F&& f) {
    CalledByQt(nullptr, std::forward<F>(f));
}

// Runs `f` in a paint, layout or model call: an exception leaves it, and its message is queued.
template <class F>
void CalledByPaint(F&& f) {
    try {
        std::forward<F>(f)();
    } catch (...) {
        QueueCaught();
    }
}

// Runs `f`, which calls the toolkit, and throws what a handler called back from there threw.
template <class F>
void CallQt(F&& f) {
    TCallFrame frame(TCallFrame::OwnCall);
    std::forward<F>(f)();
    frame.Rethrow();
}

// Runs `f`, which is or holds an event loop: exceptions of handlers inside are shown.
template <class F>
auto RunLoop(F&& f) {
    TCallFrame frame(TCallFrame::Loop);
    return std::forward<F>(f)();
}
