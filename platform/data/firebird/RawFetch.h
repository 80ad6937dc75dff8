// The least that reading a statement's rows can cost: what benchmarks measure this layer against.
#pragma once
#include "platform/data/firebird/Attachment.h"

namespace fichario {

// Executes a SELECT and fetches all its rows into one buffer, looking at none. `firstOnly` stops after that
// many rows when it is above 0. Returns how many rows came.
int64_t FetchRaw(Attachment& attachment, const UnicodeString& sql, int firstOnly = 0);

}  // namespace fichario
