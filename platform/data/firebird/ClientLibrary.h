// The client library as the process uses it, made ready once.
#pragma once

namespace Firebird {
class IMaster;
}

namespace fichario {

// The library's master interface. The first call gives the library a folder of the user's own for its locks,
// when the environment names none (the usual one belongs to the server's account, and all programs of one
// user must share one), and denies it to end all connections when the process gets a signal.
Firebird::IMaster& ClientLibrary();

}  // namespace fichario
