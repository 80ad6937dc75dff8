// The one thread beside the program's own: client calls run on it, so that the caller can paint while it
// waits.
//
//     service.Start(work);                       // `work` lives until it is done
//     while (!service.DoneWithin(20)) Paint();
//
// A call of some microseconds costs about one more: both sides look for each other for an instant before they
// sleep.
#pragma once
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace fichario {

class ServiceThread {
  public:
    ServiceThread() : FThread([this] { Serve(); }) {}
    ~ServiceThread();
    ServiceThread(const ServiceThread&) = delete;
    ServiceThread& operator=(const ServiceThread&) = delete;

    // REQUIRES: nothing is running. `work` must not throw.
    void Start(const std::function<void()>& work);
    // Waits at most so long for the end of the work.
    bool DoneWithin(int milliseconds);

  private:
    void Serve();

    std::mutex FMutex;
    std::condition_variable FGivenOrEnded, FDoneNow;
    const std::function<void()>* FWork = nullptr;
    std::atomic<bool> FGiven = false, FDone = true, FEnding = false;
    std::thread FThread;  // last: it uses all of the above
};

}  // namespace fichario
