#include "platform/data/firebird/ClientCall.h"

#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/FbErrors.h"

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

}  // namespace

CallHook SetClientCallHook(CallHook hook) {
    return std::exchange(Hook(), std::move(hook));
}

void ClientCall(CallKind kind, TextEncoding encoding, const ClientBody& body) {
    if (Hook()) Hook()(kind);
    CallStatus status;
    try {
        body(status.Get());
    } catch (const Firebird::FbException& error) {
        throw ErrorOf(*error.getStatus(), encoding);
    }
}

bool QuietClientCall(CallKind kind, const ClientBody& body) noexcept {
    try {
        ClientCall(kind, TextEncoding::Windows1252, body);
        return true;
    } catch (...) {
        return false;
    }
}

}  // namespace fichario
