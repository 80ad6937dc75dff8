// Properties that hold for any statement: made-up ones and soups of characters, from a fixed seed.
#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QStringList>
#include <random>

#include "platform/rtl/Strings.h"
#include "tests/sql/Clauses.h"

namespace {

constexpr int kStatements = 20000;

class TDice {
  public:
    int Roll(int sides) { return int(FEngine() % unsigned(sides)); }
    UnicodeString Pick(const QStringList& choices) { return choices[Roll(int(choices.size()))]; }

  private:
    std::mt19937 FEngine{20240307};
};

UnicodeString Piece(TDice& dice) {
    return dice.Pick({"A", "T.FROM", "'it''s FROM'", "\"ORDER BY\"", "(SELECT B FROM U WHERE C = 1)",
                      "/* WHERE */", "// UNION (\r\n", "X = 1", ",", "\r\n", "\t", "MAX(B)", "ação", "FORM",
                      "'(", "')"});
}

UnicodeString Statement(TDice& dice) {
    UnicodeString sql;
    for (const char* keyword :
         {"SELECT", "FROM", "WHERE", "GROUP BY", "HAVING", "UNION", "PLAN", "ORDER BY", "FOR"}) {
        if (dice.Roll(3) == 0) continue;
        sql += QString(keyword) + dice.Pick({" ", "\r\n", "\t"});
        for (int pieces = dice.Roll(5); pieces >= 0; --pieces) sql += Piece(dice) + ' ';
    }
    return sql;
}

UnicodeString Soup(TDice& dice) {
    static const QStringList kinds =
        QString("'~\"~/~*~(~)~[~]~;~ ~\r~\n~:~SELECT~FROM ~ WHERE ~FOR UPDATE OF ~UNION~CREATE~a~é~\\")
            .split('~');
    UnicodeString soup;
    for (int pieces = dice.Roll(40); pieces > 0; --pieces) soup += dice.Pick(kinds);
    return soup;
}

TEST(Generated, RewritingAClauseByItsOwnTextIsDoneAfterOnce) {
    TDice dice;
    for (int i = 0; i < kStatements; ++i) {
        const UnicodeString sql = Statement(dice);
        for (const auto& [name, access] : kClauses) {
            const UnicodeString clause = access.Read(sql);
            if (clause.isEmpty()) continue;
            UnicodeString once = sql;
            access.Set(once, clause);
            UnicodeString twice = once;
            access.Set(twice, clause);
            ASSERT_EQ(once, twice) << qPrintable(sql);
            for (const auto& [otherName, other] : kClauses) {
                ASSERT_EQ(other.Read(once).simplified(), other.Read(sql).simplified()) << qPrintable(sql);
            }
        }
    }
}

TEST(Generated, AnyTextIsReadWithoutHarm) {
    TDice dice;
    for (int i = 0; i < kStatements; ++i) {
        const UnicodeString soup = Soup(dice);
        TStringList columns;
        GetSQLForUpdateColumns(soup, &columns);
        ASSERT_TRUE(soup.contains(GetPrimaryTableName(soup)));
        ASSERT_LE(MakeServerSQL(soup).size(), soup.size());
        for (const auto& [name, access] : kClauses) {
            ASSERT_TRUE(soup.contains(access.Read(soup))) << qPrintable(soup);
            UnicodeString written = soup;
            access.Set(written, QStringLiteral("X"));
            ASSERT_TRUE(written.contains(u'X')) << qPrintable(soup);
        }
    }
}

// Nanoseconds a character, the best of several runs.
double CostOf(const UnicodeString& sql) {
    qint64 best = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        UnicodeString written = sql;
        SetSQLOrder(written, kClauses.at("where").Read(sql));
        best = std::min(best, timer.nsecsElapsed());
    }
    return double(best) / double(sql.size());
}

TEST(Generated, CostGrowsWithTheLengthOnly) {
    for (const char* piece : {"A FROM ", "( ", "'", "/* ", "; ", "// x\r\n", "WHERE "}) {
        SCOPED_TRACE(piece);
        const UnicodeString text = QString("SELECT " + QString(piece).repeated(1000000 / int(strlen(piece))));
        EXPECT_LT(CostOf(text), 8 * CostOf(text.first(20000)) + 1);
    }
}

}  // namespace
