// Values laid straight into the message that a statement describes.
//
//     MessageBytes message;
//     if (!LayPlain(statement.Inputs(), values, message)) …    // needs a format of its own
//
// This spares each execution a message format of its own, which costs as much as a small INSERT.
#pragma once
#include "platform/data/firebird/InputMessage.h"

namespace fichario {

// True when each of the values, as many as `described`, is null or just what is described there: the same
// kind, in range, with no more places, no longer. Otherwise `message` is of no use.
bool LayPlain(const ColumnList& described, const std::vector<InputValue>& values, MessageBytes& message);

}  // namespace fichario
