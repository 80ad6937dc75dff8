// Which value a parameter's caller meant, given what the server expects there.
#pragma once
#include "platform/data/firebird/InputMessage.h"

namespace fichario {

// The value as the kind to be sent: a text for a number, date or flag is converted by FormatSettings, a
// date-time for a date loses its time when the caller asked for a date. EConvertError.
Variant MeantValue(const ColumnInfo& described, const InputValue& input);

// Whether a date-time is to be sent as date, time or time stamp.
WireKind MeantTimeKind(const ColumnInfo& described, const InputValue& input);

}  // namespace fichario
