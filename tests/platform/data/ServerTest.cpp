// A server that dies.
#include <QFile>
#include <QProcess>
#include "platform/data/firebird/ClientCall.h"
#include "tests/platform/data/Screen.h"
#include "tests/platform/data/Script.h"

namespace {

// A server that a test may kill.
class Mortal : public ScriptTest {
  protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "needs a server";
        Server("lend");
        FRoot = new TComponent(nullptr);
        FConnection = new TFDConnection(FRoot);
        TStrings& params = *FConnection->Params();
        QFile port(Folder.filePath(u"s/porta"_s));
        ASSERT_TRUE(port.open(QIODevice::ReadOnly));
        params.SetText(u"Protocol=TCPIP\nUser_Name=SYSDBA\nPassword=teste\nForcedWrites=True"_s);
        params.SetValue(u"Server"_s, u"127.0.0.1/"_s + QString::fromLatin1(port.readAll().trimmed()));
        params.SetValue(u"Database"_s, Folder.filePath(u"s/db/t.fdb"_s));
        FConnection->CreateDatabase();
        Exec(u"CREATE TABLE T (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(200))"_s);
        Exec(
            u"EXECUTE BLOCK AS DECLARE I INTEGER = 0; BEGIN WHILE (I < 20000) DO BEGIN "
            u"INSERT INTO T VALUES (:I, LPAD('x', 200, 'x')); I = I + 1; END END"_s);
        FQuery = Open(u"SELECT * FROM T ORDER BY N"_s);
    }
    void TearDown() override {
        fichario::SetClientCallHook(nullptr);
        if (!OnServer()) return;
        FRoot->Free();
        Server("stop");
    }
    void Server(const QString& action) {
        ASSERT_EQ(QProcess::execute(QStringLiteral(SERVER_SCRIPT), {action, Folder.filePath(u"s"_s)}), 0);
    }

    QTemporaryDir Folder;
};

TEST_F(Mortal, LosesNothingWhenItDies) {
    const auto server = [&](const QStringList& a) { return Server(a[0]), QString(); };
    const auto back = [&](const QStringList&) { return Server("kill"), Server("restart"), QString(); };
    const auto killAtCommit = [&](const QStringList&) {
        fichario::SetClientCallHook([&, killed = false](fichario::CallKind kind) mutable {
            if (kind == fichario::CallKind::Commit && !std::exchange(killed, true)) Server("kill");
        });
        return QString();
    };
    const auto limit = [&](const QStringList& a) {
        FConnection->Close();
        FConnection->Params()->SetValue(u"StatementTimeout"_s, a[0]);
        FQuery->Open();
        return QString();
    };
    std::optional<Screen> screen;
    const auto escape = [&](const QStringList& a) {
        screen.reset();
        if (a[0] == u"yes") screen.emplace().Escape = 1;
        return QString();
    };
    const auto down = [&](const QStringList& a) {
        return MessageOf([&] { Do(a); }).startsWith(u"lost: ") ? "yes" : "no";
    };
    Run("queda", {{"Server", server},
                  {"Back", back},
                  {"KillAtCommit", killAtCommit},
                  {"Limit", limit},
                  {"Down", down},
                  {"Escape", escape}});
}

}  // namespace
