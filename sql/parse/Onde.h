// One more condition for a WHERE clause text, as GetSQLWhere reads it and SetSQLWhere takes it.
//
//     UnicodeString where = u"WHERE A = 1"_s;
//     AddWhereClause(where, u"B = 2"_s);        // u"WHERE A = 1\r\n  AND B = 2"
//
// `where` is empty or begins with "WHERE " (the keyword and one blank, not checked). Both functions trim it;
// an empty condition changes nothing more, and an empty `where` becomes "WHERE " and the condition. When
// either text holds "//" or, in any case, the letters OR (a column VALOR counts), the older conditions are
// bracketed: a cautious test that never needs to parse.
#pragma once
#include "platform/rtl/Types.h"

// Appends `condition`. The bracketed form begins with a blank and brackets the older conditions only:
// " WHERE (" old ")\r\n  AND " condition.
void AddWhereClause(UnicodeString& where, const UnicodeString& condition);

// Puts `condition` in front. The bracketed form brackets both sides, the last bracket on a line of its own so
// that a trailing line comment cannot swallow it: "WHERE ( " condition " ) \r\n  AND  ( " old "\r\n)".
void AddWhereClauseHigh(UnicodeString& where, const UnicodeString& condition);
