// What the client reports, as EFDError with a sentence for the user.
#pragma once
#include "platform/data/Errors.h"

namespace Firebird {
class IStatus;
}

namespace fichario {

// The error of a status vector.
EFDError ErrorOf(Firebird::IStatus& status);

// The error of a list of codes alone, as ErrorOf would make it: for what this layer finds itself, and for
// tests that let a call fail.
EFDError ErrorOfCodes(std::vector<int64_t> codes);

// The error of a commit that nobody can settle by reading a record: when the connection was lost in it, what
// was written may be stored.
EFDError Undecided(const EFDError& error);

}  // namespace fichario
