// The client library as the process uses it, made ready once.
#pragma once
#include <memory>

namespace Firebird {
class IMaster;
}

namespace fichario {

// The library's master interface. The first call gives the library a folder of the user's own for its locks,
// when the environment names none (the usual one belongs to the server's account, and all programs of one
// user must share one), denies it to end all connections when the process gets a signal, and sets the C
// library's numbers to the decimal point: the embedded engine writes doubles into texts through it, and what
// a trigger stores must not depend on the locale of whoever saves.
Firebird::IMaster& ClientLibrary();

// Keeps what the process does at SIGTERM and SIGINT while it stands: the library takes both over at its first
// attach, and then the process would no longer end by them.
class SignalKeeper {
  public:
    SignalKeeper();
    ~SignalKeeper();
    SignalKeeper(const SignalKeeper&) = delete;
    SignalKeeper& operator=(const SignalKeeper&) = delete;

  private:
    struct Dispositions;
    std::unique_ptr<Dispositions> FBefore;
};

}  // namespace fichario
