// What the client reports, as EFDError with a sentence for the user.
#pragma once
#include "platform/data/Errors.h"
#include "platform/data/firebird/TextEncoding.h"

namespace Firebird {
class IStatus;
}

namespace fichario {

// The error of a status vector whose texts are in `encoding`.
EFDError ErrorOf(Firebird::IStatus& status, TextEncoding encoding);

// The error of a list of codes alone, as ErrorOf would make it: for tests that let a call fail.
EFDError ErrorOfCodes(std::vector<int64_t> codes);

}  // namespace fichario
