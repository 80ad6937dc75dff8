#include "platform/ui/Guard.h"

#include <algorithm>
#include "platform/ui/Application.h"

namespace {

TCallFrame* innermost = nullptr;

}  // namespace

THandlerHost::~THandlerHost() {
    TCallFrame::Forget(this);
}

THandlerHost* THandlerHost::Of(TComponent* component) {
    for (; component; component = component->Owner()) {
        if (auto* host = dynamic_cast<THandlerHost*>(component)) return host;
    }
    return nullptr;
}

TCallFrame::TCallFrame(TKind kind, THandlerHost* host) : FKind(kind), FBelow(innermost) {
    innermost = this;
    if (host) Keep(host);
}

// The frame goes first, so that what a host then does finds a true stack.
TCallFrame::~TCallFrame() {
    innermost = FBelow;
    while (!FHosts.empty()) {
        THandlerHost* host = FHosts.back();
        FHosts.pop_back();
        if (--host->FRunning == 0) host->HandlersEnded();
    }
}

void TCallFrame::Keep(THandlerHost* host) {
    FHosts.push_back(host);
    ++host->FRunning;
}

void TCallFrame::KeepForHandler(THandlerHost* host) {
    TCallFrame* frame = innermost;
    while (frame && frame->FKind != Handler) frame = frame->FBelow;
    if (frame) frame->Keep(host);
}

void TCallFrame::Forget(THandlerHost* host) {
    for (TCallFrame* frame = innermost; frame; frame = frame->FBelow) std::erase(frame->FHosts, host);
}

void TCallFrame::Caught(bool later) {
    const std::exception_ptr exception = std::current_exception();
    if (FBelow && FBelow->FKind == OwnCall) {
        if (!FBelow->FKept) FBelow->FKept = exception;
    } else if (Application && later) {
        Application->QueueException(exception);
    } else if (Application) {
        RunLoop([&] { Application->HandleException(exception); });
    }
}

void TCallFrame::Rethrow() {
    if (const std::exception_ptr kept = std::exchange(FKept, nullptr)) std::rethrow_exception(kept);
}

void QueueCaught() {
    if (Application) Application->QueueException(std::current_exception());
}
