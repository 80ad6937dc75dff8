// A server call that takes long: the program goes on painting, the user or the time limit breaks it off, and
// the connection is good for the next one.
#include <QElapsedTimer>
#include <QScopeGuard>
#include "tests/platform/data/Screen.h"
#include "tests/platform/data/TestDatabase.h"

namespace {

// Minutes of work for the server, and what is done at once.
const UnicodeString kLong = u"SELECT COUNT(*) FROM NUMEROS A, NUMEROS B, NUMEROS C, NUMEROS D"_s;
const UnicodeString kLongWrite =
    u"UPDATE NUMEROS SET T = (SELECT COUNT(*) FROM NUMEROS A, NUMEROS B, NUMEROS C)"_s;
const UnicodeString kShort = u"SELECT COUNT(*) FROM NUMEROS"_s;

class WaitTest : public DataTest {
  protected:
    UnicodeString Broken(const std::function<void()>& work) {
        try {
            work();
        } catch (const EFDError& error) {
            EXPECT_TRUE(error.ConnectionUsable);
            return error.Message;
        }
        return {};
    }
    Screen FScreen;
};

TEST_F(WaitTest, EscapeBreaksAStatementOffAndNothingElse) {
    TFDQuery* query = Query(kLong);
    FScreen.Escape = 3;
    const UnicodeString cancelled = u"A operação foi cancelada."_s;
    EXPECT_EQ(Broken([&] { query->Open(); }), cancelled);
    EXPECT_FALSE(query->Active());
    EXPECT_EQ(Broken([&] { Exec(kLongWrite); }), cancelled);
    EXPECT_EQ(Scalar(u"SELECT COUNT(*) FROM NUMEROS WHERE T STARTING WITH 'n'"_s), u"500");
    EXPECT_EQ(Scalar(kShort), u"500");
    query->SQL()->SetText(kShort);
    query->Open();
    EXPECT_EQ(query->Fields()[0]->AsInteger(), 500);
}

// A fetch that was broken off does not look like the end of the data.
TEST_F(WaitTest, RowsAfterAnEscapeAreMissedAloud) {
    TFDQuery* query = Open(u"SELECT A.N FROM NUMEROS A, NUMEROS B, NUMEROS C"_s);
    FScreen.Escape = 2;
    EXPECT_EQ(Broken([&] { query->Last(); }), u"A operação foi cancelada.");
    EXPECT_GT(query->RowCount(), 0);
    EXPECT_FALSE(query->AllFetched());
    FScreen.Escape = 0;
    EXPECT_NE(Broken([&] { query->Last(); }), UnicodeString());
    EXPECT_EQ(Scalar(kShort), u"500");
}

TEST_F(WaitTest, TheTimeLimitBreaksOff) {
    TFDConnection* connection = Connect();
    connection->Close();
    connection->Params()->SetValue(u"StatementTimeout"_s, u"1"_s);
    connection->Open();
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(Broken([&] { Query(kLong, connection)->Open(); }),
              u"O servidor não respondeu no tempo permitido.");
    EXPECT_LT(time.elapsed(), 4000);
    EXPECT_EQ(connection->ExecSQLScalar(kShort).ToInt(), 500);
}

// Painting may read no rows and start nothing; what it tries ends silently and harms neither call.
TEST_F(WaitTest, WhatPaintingStartsEndsSilently) {
    TFDQuery* other = Query(kShort);
    int busy = 0, refused = 0;
    FScreen.Escape = 4;
    FScreen.Paint = [&] {
        busy += TDataSet::Busy();
        try {
            other->Open();
        } catch (const EAbort&) {
            ++refused;
        }
    };
    EXPECT_EQ(Broken([&] { Query(kLong)->Open(); }), u"A operação foi cancelada.");
    EXPECT_GE(busy, 4);
    EXPECT_EQ(refused, busy);
    FScreen.Paint = nullptr;
    EXPECT_FALSE(TDataSet::Busy());
    other->Open();
    EXPECT_EQ(other->Fields()[0]->AsInteger(), 500);
}

}  // namespace
