// Reading one clause of a SELECT of about 300 characters, beside the raw limit (touch every character once)
// and a regular expression that looks for the same keywords.
#include <benchmark/benchmark.h>
#include <QRegularExpression>

#include "sql/SQLParse.h"

namespace {

const UnicodeString kStatement = QStringLiteral(
    "SELECT C.CODIGO, C.NOME, C.CPF_CNPJ, (SELECT MAX(P.DATA) FROM PEDIDO P WHERE P.CLIENTE = C.CODIGO) "
    "ULTIMO, "
    "C.LIMITE\r\nFROM CLIENTE C\r\nLEFT JOIN CIDADE M ON M.CODIGO = C.CIDADE\r\n"
    "WHERE C.NOME LIKE 'MARIA ORDER BY%' AND C.SITUACAO IN ('A', 'B') /* ativos */\r\n"
    "  AND COALESCE(C.TF_DEL, 'N') = 'N'\r\nORDER BY C.NOME, C.CODIGO");

void ReadWhere(benchmark::State& state) {
    UnicodeString clause;
    for (auto _ : state) {
        GetSQLWhere(kStatement, clause);
        benchmark::DoNotOptimize(clause);
    }
    state.SetBytesProcessed(state.iterations() * kStatement.size() * sizeof(QChar));
}
BENCHMARK(ReadWhere);

void WriteWhere(benchmark::State& state) {
    const UnicodeString where = QStringLiteral("WHERE C.CODIGO = 1");
    for (auto _ : state) {
        UnicodeString statement = kStatement;
        SetSQLWhere(statement, where);
        benchmark::DoNotOptimize(statement);
    }
}
BENCHMARK(WriteWhere);

void SumOfCharacters(benchmark::State& state) {
    for (auto _ : state) {
        unsigned sum = 0;
        for (const QChar c : kStatement) {
            sum += c.unicode();
            benchmark::DoNotOptimize(sum);
        }
    }
    state.SetBytesProcessed(state.iterations() * kStatement.size() * sizeof(QChar));
}
BENCHMARK(SumOfCharacters);

void RegularExpression(benchmark::State& state) {
    const QRegularExpression where(
        QStringLiteral(
            R"((?:'[^']*'|"[^"]*"|/\*.*?\*/|//[^\r\n]*|(\((?:[^()]|(?1))*\))|[^'"(/])*?)"
            R"((?:\s)(WHERE\s(?:'[^']*'|(?1)|[^'(])*?)(?:\s(?:ORDER|GROUP|HAVING|UNION|PLAN|FOR)\s|$))"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    if (!where.match(kStatement).captured(2).startsWith(u"WHERE C.NOME"))
        state.SkipWithError("finds another clause");
    for (auto _ : state) benchmark::DoNotOptimize(where.match(kStatement).captured(2));
}
BENCHMARK(RegularExpression);

}  // namespace
