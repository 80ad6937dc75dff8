// The one function through which every client call goes that can block: look-up, attach, prepare, execute
// with first fetch, fetch of a batch, commit, blob segments, the endings.
//
//     ClientCall(CallKind::Fetch, [&](Firebird::ThrowStatusWrapper& status) {
//         while (rows-- > 0 && cursor->fetchNext(&status, buffer) == Firebird::IStatus::RESULT_OK) {
//             store.Append(buffer);
//             StopIfAsked();
//         }
//     });
//
// What the client throws comes out as EFDError. Tests look in through the hook.
#pragma once
#include <chrono>
#include <functional>
#include "platform/data/Errors.h"
#include "platform/rtl/FunctionRef.h"

namespace Firebird {
class IAttachment;
class ThrowStatusWrapper;
}  // namespace Firebird

namespace fichario {

class NewConnections;

// Write: the statement of a single record, found by its key.
enum class CallKind { Attach, Detach, Start, Prepare, Execute, Write, Fetch, Close, Commit, Rollback, Blob };

using ClientBody = FunctionRef<void(Firebird::ThrowStatusWrapper& status)>;

// What a call may be broken off by, besides its end.
struct CallLimit {
    Firebird::IAttachment* Attachment = nullptr;  // the connection to break off on
    std::chrono::milliseconds Time{0};            // that the call may take; 0: any time
    bool Local = false;                           // the engine is in this process: what is short never waits
    const NewConnections* Connections = nullptr;  // to break off on while there is no attachment
};

// Runs `body` with a status of its own on the service thread, and waits for it as the screen does; what is
// short on an engine in this process runs at once. Escape breaks off connecting, a
// transaction's beginning and a statement, the limit also a commit; a server that does not even answer to
// that loses the connection. A call out of such a wait, which only painting can make, is refused by a silent
// abort. EFDError.
void ClientCall(CallKind kind, ClientBody body, const CallLimit& limit = {});

// The same for endings: true when `body` ran without an error; nothing is thrown.
bool QuietClientCall(CallKind kind, ClientBody body, const CallLimit& limit = {}) noexcept;

// For a body of many steps, before each: ends the call as a cancelled statement when it is to be broken off.
// The client cancels only the one step that is running.
void StopIfAsked();

// A call is under way on the service thread, where rows may be growing: nobody may read rows until it ends.
bool ClientCallRunning();

// Called before each call; what it throws, the call throws without touching the client. Null: none. Returns
// the hook before.
using CallHook = std::function<void(CallKind)>;
CallHook SetClientCallHook(CallHook hook);

}  // namespace fichario
