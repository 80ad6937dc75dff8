// The small functions, by the tables of tests/sql/tables.
#include <gtest/gtest.h>

#include "sql/SQLParse.h"
#include "tests/support/TextTable.h"

namespace {

QString IsLiteral(const UnicodeString& text) {
    return QString(isLitCriteria(text, u'\'') ? "S" : "N") + (isLitCriteria(text, u'"') ? "D" : "N") +
           (isLitCriteria(text, u' ') ? "E" : "N");
}

int SafePos(const UnicodeString& sub, const UnicodeString& text, int from) {
    if (sub.size() == 1) return getLitSafePos(sub[0].unicode(), text, from);
    return getLitSafeStrPos(sub, text, from);
}

template <class Add>
QString Joined(Add add, UnicodeString where, const UnicodeString& condition) {
    add(where, condition);
    return where;
}

// In a buffer of its own, so that a view into the old text would show.
template <class Add>
QString JoinedToItself(Add add, UnicodeString where) {
    where.detach();
    add(where, where);
    return where;
}

QString Region(const QStringList& a) {
    TSQLSearch search{a[1], {}, !a[3].isEmpty(), a[4].toInt(), a[5].toInt()};
    const QStringList endings = a[2].split(',', Qt::SkipEmptyParts);
    for (const QString& ending : endings) search.Endings.push_back(ending);
    const TSQLRegion region = ParseStr(a[0], search);
    return QString("%1 %2").arg(region.Start).arg(region.End);
}

TEST(Functions, DoWhatTheTablesSay) {
    const std::map<QString, TTextFunction> functions = {
        {"mkIdent", [](const QStringList& a) { return mkIdent(a[0].toInt(), a[1]); }},
        {"mkVARIdent", [](const QStringList& a) { return mkVARIdent(a[0].toInt(), a[1]); }},
        {"isLit", [](const QStringList& a) { return IsLiteral(a[0]); }},
        {"mkLitCriteria", [](const QStringList& a) { return mkLitCriteria(a[0], u'\''); }},
        {"cvLitCriteria", [](const QStringList& a) { return cvLitCriteria(a[0], u'"'); }},
        {"stLitCriteria", [](const QStringList& a) { return stLitCriteria(a[0]); }},
        {"getLitSafe",
         [](const QStringList& a) { return QString::number(SafePos(a[0], a[1], a[2].toInt())); }},
        {"SetCharValues", [](const QStringList& a) { return SetCharValues(a[0]); }},
        {"add", [](const QStringList& a) { return Joined(AddWhereClause, a[0], a[1]); }},
        {"high", [](const QStringList& a) { return Joined(AddWhereClauseHigh, a[0], a[1]); }},
        {"addItself", [](const QStringList& a) { return JoinedToItself(AddWhereClause, a[0]); }},
        {"highItself", [](const QStringList& a) { return JoinedToItself(AddWhereClauseHigh, a[0]); }},
        {"ParseStr", Region}};
    for (const char* table : {"identifiers", "literals", "where", "scanner"}) {
        CheckTextTable(QString(SQL_TESTS "/tables/%1.txt").arg(table), functions);
    }
}

TEST(Delimiters, AreControlsBlanksAndOperators) {
    UnicodeString delimiters;
    for (int code = 33; code < 0x3000; ++code) {
        if (CharIsDelimiter(WideChar(code))) delimiters += QChar(code);
    }
    EXPECT_EQ(delimiters, "!()*,/:;<=>?");
    EXPECT_TRUE(CharIsDelimiter(0) && CharIsDelimiter(u' '));
}

}  // namespace
