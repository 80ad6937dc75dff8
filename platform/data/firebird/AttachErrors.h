// What a user is told when a database cannot be opened or made.
#pragma once
#include "platform/data/Errors.h"
#include "platform/data/firebird/Attachment.h"

namespace fichario {

// `error` with a sentence that names the file and what is wrong with it, or the server.
EFDError AttachErrorOf(const EFDError& error, const AttachSettings& settings, bool create);

}  // namespace fichario
