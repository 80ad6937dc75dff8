// Where the clauses of a SELECT statement stand, all nine found in one pass. Internal to the toolkit.
//
//     const TSQLClauses clauses = LocateClauses(u"SELECT A FROM T");
//     clauses[TSQLClause::From]   // Start 10, End 16
#pragma once
#include <array>
#include "sql/parse/Varredura.h"

// In the order in which a statement holds them: each is ended by the keyword of any later one, and by ;.
enum class TSQLClause { Select, From, Where, Group, Having, Union, Plan, Order, ForUpdate };
inline constexpr int kSQLClauses = 9;

struct TSQLClauses {
    std::array<TSQLRegion, kSQLClauses> Regions;
    TSQLRegion& operator[](TSQLClause clause) { return Regions[static_cast<size_t>(clause)]; }
    const TSQLRegion& operator[](TSQLClause clause) const { return Regions[static_cast<size_t>(clause)]; }
};

// The select clause counts only as the statement's first word; a from or where clause inside the union clause
// belongs to the united statement and counts as absent.
TSQLClauses LocateClauses(QStringView statement);
