#include "sql/parse/Regioes.h"

#include <optional>

#include "sql/parse/Palavras.h"

namespace {

struct TKeyword {
    QStringView Text;
    int Clause;
};

// By length, so that a word is compared with at most four keywords, and with their first letters only.
constexpr int kShortest = 3, kLongest = 6;
const TKeyword kKeywords[] = {{u"FOR", 8},   {u"FROM", 1},  {u"PLAN", 6},   {u"WHERE", 2}, {u"ORDER", 7},
                              {u"GROUP", 3}, {u"UNION", 5}, {u"SELECT", 0}, {u"HAVING", 4}};
constexpr int kFirstOfLength[] = {0, 1, 3, 7, 9};

bool SameLetter(QChar a, QChar upper) {
    return (a.unicode() & ~0x20) == upper.unicode();
}

// The clause whose keyword stands at the scanner's place; kSQLClauses for a ;.
std::optional<int> ClauseAt(const TWordScanner& words) {
    const QStringView word = words.Word();
    if (word == u";") return kSQLClauses;
    const qsizetype length = word.size();
    if (length < kShortest || length > kLongest) return std::nullopt;
    for (int i = kFirstOfLength[length - kShortest]; i < kFirstOfLength[length - kShortest + 1]; ++i) {
        const TKeyword& keyword = kKeywords[i];
        if (!SameLetter(word.front(), keyword.Text.front()) || !SameKeyword(word, keyword.Text)) continue;
        return words.EndsAtDelimiter() ? std::optional(keyword.Clause) : std::nullopt;
    }
    return std::nullopt;
}

void EndClausesBefore(TSQLClauses& clauses, int keyword, int position) {
    for (int i = 0; i < keyword; ++i) {
        TSQLRegion& region = clauses.Regions[i];
        if (region.Found() && region.End == 0) region.End = position;
    }
}

void Meet(TSQLClauses& clauses, int keyword, int position) {
    EndClausesBefore(clauses, keyword, position);
    if (keyword < kSQLClauses && !clauses.Regions[keyword].Found()) clauses.Regions[keyword].Start = position;
}

void DropWhatUnionHolds(TSQLClauses& clauses, TSQLClause clause) {
    const TSQLRegion united = clauses[TSQLClause::Union];
    TSQLRegion& region = clauses[clause];
    if (region.Start > united.Start && region.End <= united.End) region = {};
}

}  // namespace

TSQLClauses LocateClauses(QStringView statement) {
    TSQLClauses clauses;
    TWordScanner words(statement);
    bool mayBeSelect = true;
    while (words.Next()) {
        const std::optional<int> keyword = words.Depth() == 0 ? ClauseAt(words) : std::nullopt;
        if (keyword && (*keyword > 0 || mayBeSelect)) Meet(clauses, *keyword, int(words.Place()) + 1);
        mayBeSelect = mayBeSelect && !words.IsWordStart();
    }
    EndClausesBefore(clauses, kSQLClauses, int(statement.size()) + 1);
    DropWhatUnionHolds(clauses, TSQLClause::From);
    DropWhatUnionHolds(clauses, TSQLClause::Where);
    return clauses;
}
