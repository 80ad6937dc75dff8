// Texts past the connection's character set. The server brings every text into that set while it reads a row,
// and one character that the set lacks fails the whole row, whatever set the client asks the message in. So
// the statement itself makes UTF-8 bytes of the texts, which no set touches on the way.
//
//     SELECT CAST(CAST(R.C1 AS VARCHAR(20) CHARACTER SET UTF8) AS VARCHAR(80) CHARACTER SET OCTETS)
//     FROM (SELECT NM FROM CLIENTE) R (C1)
#pragma once
#include "platform/data/firebird/Columns.h"

namespace fichario {

// What a statement selects to give `columns` wide, where each is named R.C1, R.C2 and so on. Columns without
// a character set come as they are. A text of more than 32765 bytes in UTF-8 fails its row.
TStringArray WideItems(const ColumnList& columns);

// `columns`, placed and encoded as a wide statement, which describes its own as `described`, gives them.
// Blobs are to be read as they are (Blob.h).
ColumnList WideColumns(const ColumnList& columns, const ColumnList& described);

}  // namespace fichario
