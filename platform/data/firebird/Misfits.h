// What a user is told of a text that cannot be stored.
#pragma once
#include "platform/data/firebird/InputMessage.h"

namespace fichario {

// EFDError with the server's code for it: the character that the character set lacks, or how long the text
// may be. `label` names the field; empty: none is named.
[[noreturn]] void RefuseMisfit(const Misfit& misfit, const UnicodeString& label);

}  // namespace fichario
