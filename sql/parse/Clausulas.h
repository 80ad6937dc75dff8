// The clauses of a SELECT statement, read and replaced one at a time.
//
//     UnicodeString sql = u"SELECT A FROM T ORDER BY 1"_s, where;
//     GetSQLWhere(sql, where);                  // empty: absent
//     SetSQLWhere(sql, u"WHERE X = 1"_s);       // u"SELECT A FROM T\r\nWHERE X = 1\r\nORDER BY 1"
//
// A clause is the text from its keyword up to the keyword of any later clause, a ; that stands apart, or the
// end: SELECT, FROM, WHERE, GROUP, HAVING, UNION, PLAN, ORDER, FOR, in this order. Keywords are found by the
// rules of Varredura.h, in any case. SELECT counts as the statement's first word only, so INSERT … SELECT,
// GRANT SELECT and trigger bodies have no select clause; FROM and WHERE of a united statement (behind UNION)
// are not seen. Nothing here throws, whatever the text.
#pragma once
#include "platform/rtl/Types.h"

// The clause of `statement`, keyword included, trimmed; empty when it is absent.
void GetSQLSelect(const UnicodeString& statement, UnicodeString& clause);
void GetSQLFrom(const UnicodeString& statement, UnicodeString& clause);
void GetSQLWhere(const UnicodeString& statement, UnicodeString& clause);
void GetSQLGroup(const UnicodeString& statement, UnicodeString& clause);
void GetSQLHaving(const UnicodeString& statement, UnicodeString& clause);
void GetSQLUnion(const UnicodeString& statement, UnicodeString& clause);
void GetSQLPlan(const UnicodeString& statement, UnicodeString& clause);
void GetSQLOrder(const UnicodeString& statement, UnicodeString& clause);
void GetSQLForUpdate(const UnicodeString& statement, UnicodeString& clause);

// Replaces the clause by `clause`, which carries its own keyword; an absent clause is inserted behind the
// nearest clause before it. The statement becomes: what stood before, trimmed, CR LF, the new text, CR LF,
// the rest, trimmed. So it ends with CR LF when nothing follows, begins with CR LF when nothing precedes, and
// an empty `clause` removes the content and leaves the line breaks. SetSQLSelect without a select clause
// replaces everything before FROM.
void SetSQLSelect(UnicodeString& statement, const UnicodeString& clause);
void SetSQLFrom(UnicodeString& statement, const UnicodeString& clause);
void SetSQLWhere(UnicodeString& statement, const UnicodeString& clause);
void SetSQLGroup(UnicodeString& statement, const UnicodeString& clause);
void SetSQLHaving(UnicodeString& statement, const UnicodeString& clause);
void SetSQLUnion(UnicodeString& statement, const UnicodeString& clause);
void SetSQLPlan(UnicodeString& statement, const UnicodeString& clause);
void SetSQLOrder(UnicodeString& statement, const UnicodeString& clause);

// As the others when the statement has a FOR clause; otherwise appends CR LF and `clause` as it stands,
// untrimmed.
void SetSQLForUpdate(UnicodeString& statement, const UnicodeString& clause);

// The name of the first table: the from clause behind its keyword up to a blank, CR or LF. A tab, comma or
// parenthesis does not end it: FROM T, U gives "T,". Empty without a from clause.
UnicodeString GetPrimaryTableName(const UnicodeString& statement);

// Whether the statement defines a trigger or procedure, told by its first word alone: true for every
// statement whose first word is CREATE or ALTER.
bool GetIsTriggerOrProcedureDDL(const UnicodeString& statement);
