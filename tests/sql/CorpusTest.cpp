// The corpus: every statement with what is read from it and what writing makes of it. A failing row names its
// line.
#include <gtest/gtest.h>
#include <map>
#include <QDir>
#include <QStringList>

#include "platform/rtl/Strings.h"
#include "sql/SQLParse.h"
#include "tests/sql/Clauses.h"
#include "tests/support/TextTable.h"

namespace {

struct TExpectation {
    QString Key, Value;
    int Line;
};

struct TCase {
    int Line = 0;
    QStringList Statement = {};
    std::vector<TExpectation> Expected = {};
};

QString Text(const QString& written) {
    return written == "(empty)" ? QString() : Unescaped(written);
}

void AddLine(TCase& one, const QString& line, int number) {
    if (line.startsWith("##")) return;
    if (line.startsWith('>')) {
        one.Expected.push_back({line.section(':', 0, 0).mid(2), line.section(':', 1).trimmed(), number});
    } else {
        if (one.Statement.isEmpty()) one.Line = number;
        one.Statement << Text(line);
    }
}

std::vector<TCase> ReadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("no corpus file %s", qPrintable(path));
    std::vector<TCase> cases(1);
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        ++number;
        if (!line.isEmpty()) {
            AddLine(cases.back(), line, number);
        } else if (cases.back().Line > 0) {
            cases.emplace_back();
        }
    }
    if (cases.back().Line == 0) cases.pop_back();
    return cases;
}

UnicodeString Columns(const UnicodeString& statement) {
    TStringList list;
    list.Add(QStringLiteral("left over"));
    GetSQLForUpdateColumns(statement, &list);
    QString joined;
    for (int i = 0; i < list.Count(); ++i)
        joined += (i > 0 ? QStringLiteral("|") : QString()) + list.Strings(i);
    return joined;
}

// What the functions make of the statement for one key of the corpus.
UnicodeString Outcome(const UnicodeString& statement, const QString& key, const UnicodeString& argument) {
    if (key == "table") return GetPrimaryTableName(statement);
    if (key == "ddl") return GetIsTriggerOrProcedureDDL(statement) ? "yes" : "no";
    if (key == "server") return MakeServerSQL(statement);
    if (key == "columns") return Columns(statement);
    UnicodeString result = statement;
    if (key.startsWith("set ")) {
        kClauses.at(key.mid(4)).Set(result, argument);
    } else {
        result = kClauses.at(key).Read(statement);
    }
    return result;
}

void Check(const QByteArray& path, const UnicodeString& statement, const TExpectation& expected) {
    const QStringList parts = expected.Value.split(" => ");
    const UnicodeString outcome = Outcome(statement, expected.Key, Text(parts.first().trimmed()));
    if (outcome == Text(parts.last().trimmed())) return;
    ADD_FAILURE_AT(path, expected.Line) << qPrintable(expected.Key) << " gave: " << qPrintable(outcome);
}

void CheckAbsentClauses(const QByteArray& path, const TCase& one, const UnicodeString& statement) {
    for (const auto& [name, access] : kClauses) {
        const auto named = [&name = name](const TExpectation& e) {
            return e.Key == name || e.Key.startsWith("set ");
        };
        if (std::any_of(one.Expected.begin(), one.Expected.end(), named)) continue;
        const UnicodeString clause = access.Read(statement);
        if (clause.isEmpty()) continue;
        ADD_FAILURE_AT(path, one.Line) << "unexpected " << qPrintable(name) << ": " << qPrintable(clause);
    }
}

TEST(Corpus, EveryStatementReadsAndWritesAsItSays) {
    size_t count = 0;
    for (const QFileInfo& file : QDir(SQL_TESTS "/corpus").entryInfoList({"*.txt"})) {
        const std::vector<TCase> cases = ReadFile(file.filePath());
        for (const TCase& one : cases) {
            const UnicodeString statement = one.Statement.join("\r\n");
            for (const TExpectation& e : one.Expected) Check(file.filePath().toUtf8(), statement, e);
            CheckAbsentClauses(file.filePath().toUtf8(), one, statement);
        }
        count += cases.size();
    }
    EXPECT_GT(count, 60u);
}

}  // namespace
