// The one function through which every client call goes that can block: look-up, attach, prepare, execute
// with first fetch, fetch of a batch, commit, blob segments, the endings.
//
//     ClientCall(CallKind::Fetch, encoding, [&](Firebird::ThrowStatusWrapper& status) {
//         while (rows-- > 0 && cursor->fetchNext(&status, buffer) == Firebird::IStatus::RESULT_OK)
//         store.Append(buffer);
//     });
//
// What the client throws comes out as EFDError. Tests look in through the hook.
#pragma once
#include <functional>
#include "platform/data/Errors.h"
#include "platform/data/firebird/TextEncoding.h"

namespace Firebird {
class ThrowStatusWrapper;
}

namespace fichario {

enum class CallKind { Attach, Detach, Start, Prepare, Execute, Fetch, Close, Commit, Rollback, Blob };

using ClientBody = std::function<void(Firebird::ThrowStatusWrapper& status)>;

// Runs `body` with a status of its own. `encoding` is that of the server's texts. EFDError.
void ClientCall(CallKind kind, TextEncoding encoding, const ClientBody& body);

// The same for endings: true when `body` ran without an error; nothing is thrown.
bool QuietClientCall(CallKind kind, const ClientBody& body) noexcept;

// Called before each call; what it throws, the call throws without touching the client. Null: none. Returns
// the hook before.
using CallHook = std::function<void(CallKind)>;
CallHook SetClientCallHook(CallHook hook);

}  // namespace fichario
