// Identifiers by SQL dialect.
//
//     mkIdent(1, u" nome "_s)   // u"NOME"
//     mkIdent(3, u"9A"_s)       // u"\"9A\""
//     mkIdent(3, u"Z1"_s)       // u"Z1"
//
// WARNING: from dialect 3 on, a plain name that begins with a letter from A to W never comes back: the search
// in the table of reserved words neither ends nor moves once it meets the name's first letter. Both functions
// are kept for hosts that pass such names under dialect 1; new code quotes with QuoteIdentifier of
// platform/data/Sql.h.
#pragma once
#include "platform/rtl/Types.h"

// The identifier to write into SQL for `name`, which is trimmed first. Below dialect 3: upper-cased. From 3
// on: two double quotes for an empty name, a double-quoted name as it is, a plain one (letters, digits, $ and
// _, a letter first) upper-cased, any other in double quotes with its own doubled, its case kept.
UnicodeString mkIdent(int dialect, const UnicodeString& name);

// The same for names of variables: from dialect 3 on the name is taken untrimmed, never seen as already
// quoted, and is plain in upper case only, so any lower-case letter brings quotes.
UnicodeString mkVARIdent(int dialect, const UnicodeString& name);
