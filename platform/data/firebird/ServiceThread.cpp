#include "platform/data/firebird/ServiceThread.h"

#include <chrono>

namespace fichario {

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::microseconds kLookOut(50);

bool SoonTrue(const std::atomic<bool>& flag) {
    const Clock::time_point end = Clock::now() + kLookOut;
    do {
        if (flag.load(std::memory_order_acquire)) return true;
        std::this_thread::yield();
    } while (Clock::now() < end);
    return false;
}

}  // namespace

ServiceThread::~ServiceThread() {
    {
        const std::lock_guard lock(FMutex);
        FEnding = true;
    }
    FGivenOrEnded.notify_one();
    FThread.join();
}

void ServiceThread::Start(const std::function<void()>& work) {
    {
        const std::lock_guard lock(FMutex);
        FWork = &work;
        FDone = false;
        FGiven = true;
    }
    FGivenOrEnded.notify_one();
}

bool ServiceThread::DoneWithin(int milliseconds) {
    if (SoonTrue(FDone)) return true;
    std::unique_lock lock(FMutex);
    return FDoneNow.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return FDone.load(); });
}

void ServiceThread::Serve() {
    for (;;) {
        if (!SoonTrue(FGiven)) {
            std::unique_lock lock(FMutex);
            FGivenOrEnded.wait(lock, [this] { return FGiven || FEnding; });
        }
        if (FEnding) return;
        FGiven = false;
        (*FWork)();
        {
            const std::lock_guard lock(FMutex);
            FDone = true;
        }
        FDoneNow.notify_one();
    }
}

}  // namespace fichario
