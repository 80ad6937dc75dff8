// The statement as the server takes it, and what is read from that form.
//
//     MakeServerSQL(u"SELECT A FROM T WHERE X = :x"_s)                 // u"SELECT A FROM T WHERE X = ?"
//     GetSQLForUpdateColumns(u"SELECT A, B FROM T FOR UPDATE OF A, B"_s, &list)   // A and B
#pragma once
#include "platform/rtl/Types.h"

class TStrings;

// The statement with every named parameter (:name outside literals, quoted identifiers and comments) written
// as ?. A statement that begins with CREATE or ALTER is returned as it is: the names in its body are its own
// variables.
UnicodeString MakeServerSQL(const UnicodeString& statement);

// Fills `columns` (cleared first; null: nothing is done) with the names behind FOR UPDATE OF, blanks outside
// double-quoted names removed, read as comma-separated text. No such clause leaves it empty.
void GetSQLForUpdateColumns(const UnicodeString& statement, TStrings* columns);
