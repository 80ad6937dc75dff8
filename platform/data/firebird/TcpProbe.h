// Whether a server answers on its port, within a time limit: the client library waits for minutes where
// packets are dropped.
//
//     if (!AnswersWithin(u"servidor/3050"_s, 10)) …
#pragma once
#include "platform/rtl/Types.h"

namespace fichario {

// `server`: host or host/port, the port a number (3050 at first). False only when the time (seconds) has
// passed without an answer; a refusal, an unknown host or a port by name is an answer, of which the client
// library tells more.
bool AnswersWithin(const UnicodeString& server, int seconds);

}  // namespace fichario
