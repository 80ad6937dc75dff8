// The nine clauses by name, with the functions that read and write them.
#pragma once
#include <map>

#include "sql/SQLParse.h"

struct TClauseAccess {
    void (*Get)(const UnicodeString&, UnicodeString&);
    void (*Set)(UnicodeString&, const UnicodeString&);

    UnicodeString Read(const UnicodeString& statement) const {
        UnicodeString clause;
        Get(statement, clause);
        return clause;
    }
};

inline const std::map<QString, TClauseAccess> kClauses = {
    {"select", {GetSQLSelect, SetSQLSelect}},   {"from", {GetSQLFrom, SetSQLFrom}},
    {"where", {GetSQLWhere, SetSQLWhere}},      {"group", {GetSQLGroup, SetSQLGroup}},
    {"having", {GetSQLHaving, SetSQLHaving}},   {"union", {GetSQLUnion, SetSQLUnion}},
    {"plan", {GetSQLPlan, SetSQLPlan}},         {"order", {GetSQLOrder, SetSQLOrder}},
    {"for", {GetSQLForUpdate, SetSQLForUpdate}}};
