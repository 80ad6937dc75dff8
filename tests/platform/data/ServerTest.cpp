// What only a real server can show: who may connect, an answer within the time, a server that dies.
#include <QFile>
#include <QProcess>
#include "platform/data/firebird/ClientCall.h"
#include "tests/platform/data/TestDatabase.h"

namespace {

class ServerOnly : public DataTest {
  protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "needs a server";
        DataTest::SetUp();
    }
    void TearDown() override {
        if (FRoot) DataTest::TearDown();
    }
    TFDConnection* Closed() {
        TFDConnection* connection = Connect();
        connection->Close();
        return connection;
    }
};

TEST_F(ServerOnly, SaysWhyItCannotBeReached) {
    const UnicodeString here = u"127.0.0.1/"_s + ServerPort();
    const struct {
        const char16_t *Param, *Value;
        UnicodeString Message;
    } cases[] = {
        {u"Password", u"errada", u"Usuário ou senha inválidos."_s},
        {u"User_Name", u"ninguem", u"Usuário ou senha inválidos."_s},
        {u"Server", u"127.0.0.1/1", u"Servidor não encontrado ou sem resposta (127.0.0.1/1)."_s},
        {u"Server", u"nenhum.invalid", u"Servidor não encontrado ou sem resposta (nenhum.invalid)."_s},
        {u"RoleName", u"NENHUM", u"O papel \"NENHUM\" não existe ou não foi concedido ao usuário SYSDBA."_s},
        {u"Database", u"/etc/passwd",
         u"Não foi possível abrir o banco de dados /etc/passwd: o servidor não permite o acesso a este arquivo."_s},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(QString::fromUtf16(c.Value).toStdString());
        TFDConnection* connection = Closed();
        connection->Params()->SetValue(QString::fromUtf16(c.Param), QString::fromUtf16(c.Value));
        EXPECT_EQ(MessageOf([&] { connection->Open(); }), c.Message);
        EXPECT_FALSE(connection->Connected());
    }
}

// A server that a test may kill.
class Mortal : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "needs a server";
        Server("start");
        TStrings& params = *Connection->Params();
        QFile port(Folder.filePath(u"s/porta"_s));
        ASSERT_TRUE(port.open(QIODevice::ReadOnly));
        params.SetText(u"Protocol=TCPIP\nUser_Name=SYSDBA\nPassword=teste\nForcedWrites=True"_s);
        params.SetValue(u"Server"_s, u"127.0.0.1/"_s + QString::fromLatin1(port.readAll().trimmed()));
        params.SetValue(u"Database"_s, Folder.filePath(u"s/db/t.fdb"_s));
        Connection->CreateDatabase();
        Connection->ExecSQL(u"CREATE TABLE T (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(200))"_s);
        Connection->ExecSQL(
            u"EXECUTE BLOCK AS DECLARE I INTEGER = 0; BEGIN WHILE (I < 20000) DO BEGIN "
            u"INSERT INTO T VALUES (:I, LPAD('x', 200, 'x')); I = I + 1; END END"_s);
        Query->SetConnection(Connection);
        Query->SQL()->SetText(u"SELECT * FROM T ORDER BY N"_s);
        Query->Open();
    }
    void TearDown() override {
        fichario::SetClientCallHook(nullptr);
        Connection->Free();
        if (OnServer()) Server("stop");
    }
    void Server(const char* action) {
        ASSERT_EQ(QProcess::execute(QStringLiteral(SERVER_SCRIPT),
                                    {QString::fromLatin1(action), Folder.filePath(u"s"_s)}),
                  0);
    }
    UnicodeString Failure(const std::function<void()>& work) {
        try {
            work();
        } catch (const EFDError& error) {
            EXPECT_FALSE(error.ConnectionUsable);
            return error.Message;
        }
        return {};
    }
    UnicodeString Stored(int n) {
        return Connection->ExecSQLScalar(u"SELECT T FROM T WHERE N = :N"_s, {n}).ToText();
    }

    const UnicodeString kLost =
        u"A conexão com o servidor foi perdida. Os dados digitados foram mantidos; tente novamente."_s;
    QTemporaryDir Folder;
    TFDConnection* Connection = new TFDConnection(nullptr);
    TFDQuery* Query = new TFDQuery(Connection);
};

TEST_F(Mortal, KeepsWhatWasTypedAndSavesItOnceAfterwards) {
    for (const bool insert : {false, true}) {
        SCOPED_TRACE(insert);
        if (insert) {
            Query->Refresh();  // its rows were cut off with the server
            Query->Append();
            Query->FieldByName(u"N"_s)->SetAsInteger(90000);
        } else {
            Query->Edit();
        }
        Query->FieldByName(u"T"_s)->SetAsString(u"novo"_s);
        Server("kill");
        EXPECT_EQ(Failure([&] { Query->Post(); }), kLost);
        EXPECT_EQ(Query->State(), insert ? dsInsert : dsEdit);
        EXPECT_EQ(Query->FieldByName(u"T"_s)->AsString(), u"novo"_s);
        EXPECT_FALSE(Failure([&] { Query->Post(); }).isEmpty()) << "still down";
        Server("restart");
        Query->Post();
        EXPECT_EQ(Stored(insert ? 90000 : 0), u"novo"_s);
        EXPECT_EQ(Connection->ExecSQLScalar(u"SELECT COUNT(*) FROM T WHERE T = 'novo'"_s).ToInt(),
                  insert ? 2 : 1);
    }
}

TEST_F(Mortal, NeverTakesAFailureForTheEndOfTheData) {
    Server("kill");
    for (int attempt = 0; attempt < 3; ++attempt) {
        EXPECT_FALSE(Failure([&] { Query->Last(); }).isEmpty());
        EXPECT_FALSE(Query->AllFetched());
    }
    EXPECT_GT(Query->RowCount(), 0);
    Server("restart");
    Query->Refresh();
    Query->Last();
    EXPECT_EQ(Query->RowCount(), 20000);
}

TEST_F(Mortal, AHostsTransactionIsLostAsAWhole) {
    Connection->StartTransaction();
    Connection->ExecSQL(u"UPDATE T SET T = 'a' WHERE N = 1"_s);
    Server("kill");
    EXPECT_FALSE(Failure([&] { Connection->ExecSQL(u"UPDATE T SET T = 'a' WHERE N = 2"_s); }).isEmpty());
    EXPECT_TRUE(Connection->InTransaction());
    Connection->Rollback();
    Server("restart");
    EXPECT_NE(Stored(1), u"a"_s);
    EXPECT_NE(Stored(2), u"a"_s);
}

// Killed after the statement was executed, just as its commit begins.
TEST_F(Mortal, ALostCommitIsSavedOnceByTheNextPost) {
    Query->Edit();
    Query->FieldByName(u"T"_s)->SetAsString(u"novo"_s);
    bool killed = false;
    fichario::SetClientCallHook([&](fichario::CallKind kind) {
        if (kind == fichario::CallKind::Commit && !std::exchange(killed, true)) Server("kill");
    });
    EXPECT_FALSE(Failure([&] { Query->Post(); }).isEmpty());
    EXPECT_TRUE(killed);
    EXPECT_EQ(Query->State(), dsEdit);
    Server("restart");
    Query->Post();
    EXPECT_EQ(Stored(0), u"novo"_s);
}

}  // namespace
