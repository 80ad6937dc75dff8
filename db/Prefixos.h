// The table prefix of a field: the alias of its table in a joined SELECT, so that conditions and orderings
// written into SQL name the column without doubt.
//
//     SetPrefix(field, u"AB"_s);      // Tag becomes 0x4142
//     GetPrefix(field)                // "AB"
//     GetFieldName(field)             // "AB.CODIGO"
//
// The prefix lives in the field's Tag: the bytes of its characters in the system code page, the first one
// highest.
#pragma once
#include "platform/rtl/Types.h"

class TField;

// Stores a prefix of 1 to 4 characters. A longer one throws Exception "The prefix can not contain more than 4
// characters." and changes nothing. An empty one sets Tag to 0 and throws EConvertError; to clear a prefix
// without that, set Tag to 0.
void SetPrefix(TField* field, const UnicodeString& prefix);

// The prefix, trimmed; empty for a Tag of 0. Each byte gives the character of that code, whatever the code
// page.
UnicodeString GetPrefix(TField* field);

// The column's name for SQL, upper-cased behind the prefix and a full stop: the field's Origin, or its
// FieldName when it has none. An Origin that names its table keeps it: C.P.CODIGO.
UnicodeString GetFieldName(TField* field);
