// Which of a server's addresses answers, within a time limit: the client library tries one after the other
// and waits for minutes where packets are dropped.
//
//     const UnicodeString address = AddressThatAnswers(u"servidor/3050"_s, Deadline::clock::now() + 10s);
#pragma once
#include <sys/socket.h>
#include <chrono>
#include "platform/rtl/Types.h"

namespace fichario {

using Deadline = std::chrono::steady_clock::time_point;

// The time that is left, at least one millisecond.
std::chrono::milliseconds LeftUntil(Deadline end);

// `server`: host/port, each a name or a number. Looks the host up and calls all its addresses at once.
// Returns the first that takes the connection, as AddressText; empty when none did in time.
UnicodeString AddressThatAnswers(const UnicodeString& server, Deadline end);

// "127.0.0.1/3050" or "[::1]/3050", as the client library takes it; empty for what is no address of TCP.
UnicodeString AddressText(const sockaddr* address, socklen_t size);

}  // namespace fichario
