#include "bench/SystemCalls.h"

#include <dlfcn.h>
#include <sys/socket.h>
#include <atomic>
#include <ctime>

namespace {

std::atomic<int64_t> Sends, LocalTimes;

template <class Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

ssize_t send(int socket, const void* bytes, size_t length, int flags) {
    static auto* const next = Next<decltype(send)>("send");
    ++Sends;
    return next(socket, bytes, length, flags);
}

time_t mktime(tm* local) noexcept {
    static auto* const next = Next<decltype(mktime)>("mktime");
    ++LocalTimes;
    return next(local);
}

tm* localtime_r(const time_t* moment, tm* local) noexcept {
    static auto* const next = Next<decltype(localtime_r)>("localtime_r");
    ++LocalTimes;
    return next(moment, local);
}
}

int64_t SendsSoFar() {
    return Sends;
}

int64_t LocalTimesSoFar() {
    return LocalTimes;
}
