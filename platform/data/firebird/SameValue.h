// Whether a column still holds just what was read from it. The server's own comparison is blind to blanks at
// a text's end and, by the column's collation, to capitals and accents.
//
//     SameValue(u"NM"_s, known.Find(u"NM"_s))
//     // CAST("NM" AS VARCHAR(20) CHARACTER SET OCTETS) IS NOT DISTINCT FROM CAST(CAST(? AS VARCHAR(20) ...
#pragma once
#include "platform/rtl/Types.h"

namespace fichario {

struct TableColumn;

// The condition on `column`, with one parameter for the value. `facts` null: nothing is known of it.
UnicodeString SameValue(const UnicodeString& column, const TableColumn* facts);

}  // namespace fichario
