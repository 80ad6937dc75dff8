#include "sql/parse/Clausulas.h"

#include <algorithm>
#include <QStringBuilder>

#include "platform/rtl/Trim.h"
#include "sql/parse/Regioes.h"
#include "sql/parse/Varredura.h"

namespace {

constexpr QStringView kLineBreak = u"\r\n";

UnicodeString ReadClause(QStringView statement, TSQLClause clause) {
    const TSQLRegion region = LocateClauses(statement)[clause];
    if (!region.Found()) return {};
    return Trim(statement.sliced(region.Start - 1, region.Length())).toString();
}

void Replace(UnicodeString& statement, const UnicodeString& clause, TSQLRegion region) {
    const QStringView all = statement;
    const QStringView head = Trim(all.first(region.Start - 1));
    const QStringView tail = Trim(all.sliced(region.End - 1));
    const UnicodeString result = head % kLineBreak % Trim(clause) % kLineBreak % tail;
    statement = result;
}

// Where an absent clause belongs: behind the nearest one before it, else at the very start.
TSQLRegion InsertionPlace(const TSQLClauses& clauses, TSQLClause clause) {
    for (int i = int(clause) - 1; i >= 0; --i) {
        const TSQLRegion before = clauses.Regions[i];
        if (before.Found()) return {before.End, before.End};
    }
    return {1, 1};
}

void WriteClause(UnicodeString& statement, TSQLClause clause, const UnicodeString& text) {
    const TSQLClauses clauses = LocateClauses(statement);
    Replace(statement, text, clauses[clause].Found() ? clauses[clause] : InsertionPlace(clauses, clause));
}

bool BeginsWith(QStringView statement, QStringView keyword) {
    return ParseStr(statement, {.Opening = keyword, .FirstWord = true}).Found();
}

}  // namespace

void GetSQLSelect(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Select);
}

void GetSQLFrom(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::From);
}

void GetSQLWhere(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Where);
}

void GetSQLGroup(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Group);
}

void GetSQLHaving(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Having);
}

void GetSQLUnion(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Union);
}

void GetSQLPlan(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Plan);
}

void GetSQLOrder(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::Order);
}

void GetSQLForUpdate(const UnicodeString& statement, UnicodeString& clause) {
    clause = ReadClause(statement, TSQLClause::ForUpdate);
}

void SetSQLSelect(UnicodeString& statement, const UnicodeString& clause) {
    const TSQLClauses clauses = LocateClauses(statement);
    const TSQLRegion from = clauses[TSQLClause::From];
    const TSQLRegion headless = from.Found() ? TSQLRegion{1, from.Start} : TSQLRegion{1, 1};
    Replace(statement, clause, clauses[TSQLClause::Select].Found() ? clauses[TSQLClause::Select] : headless);
}

void SetSQLFrom(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::From, clause);
}

void SetSQLWhere(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Where, clause);
}

void SetSQLGroup(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Group, clause);
}

void SetSQLHaving(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Having, clause);
}

void SetSQLUnion(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Union, clause);
}

void SetSQLPlan(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Plan, clause);
}

void SetSQLOrder(UnicodeString& statement, const UnicodeString& clause) {
    WriteClause(statement, TSQLClause::Order, clause);
}

void SetSQLForUpdate(UnicodeString& statement, const UnicodeString& clause) {
    const TSQLRegion region = LocateClauses(statement)[TSQLClause::ForUpdate];
    if (region.Found()) {
        Replace(statement, clause, region);
    } else {
        statement += kLineBreak % clause;
    }
}

UnicodeString GetPrimaryTableName(const UnicodeString& statement) {
    const UnicodeString from = ReadClause(statement, TSQLClause::From);
    const QStringView rest = Trim(QStringView(from).mid(4));
    const auto endsName = [](QChar c) { return c == u' ' || c == u'\r' || c == u'\n'; };
    const auto end = std::find_if(rest.begin(), rest.end(), endsName);
    return rest.first(end - rest.begin()).toString();
}

bool GetIsTriggerOrProcedureDDL(const UnicodeString& statement) {
    return BeginsWith(statement, u"CREATE") || BeginsWith(statement, u"ALTER");
}
