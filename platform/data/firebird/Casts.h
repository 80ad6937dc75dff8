// Values that a parameter's place would change. The server describes a place by what stands beside it: a
// whole number in `SALDO * ?`, a text of two characters in `UF LIKE ?`. It brings what is sent to that type
// before it compares or computes, so that 1.055 becomes 1 and SP% does not pass, unless the statement names a
// type that holds the value: `SALDO * CAST(? AS DOUBLE PRECISION)`.
#pragma once
#include "platform/data/firebird/Columns.h"
#include "platform/rtl/Variant.h"

namespace fichario {

// The type, in SQL, that a number needs at a place that is described so; empty: the place holds it exactly,
// or is not one for exact numbers.
UnicodeString CastOfNumber(const ColumnInfo& described, const Variant& number);

// The type for a text that is too long for its place; empty: no type holds it.
UnicodeString CastOfText(const ColumnInfo& described, qsizetype characters);

}  // namespace fichario
