// Who may connect, and a server that is not there or does not answer.
#include <dlfcn.h>
#include <netdb.h>
#include <sys/time.h>
#include <csignal>
#include <QElapsedTimer>
#include <QScopeGuard>
#include "platform/data/firebird/TcpProbe.h"
#include "tests/platform/data/Screen.h"
#include "tests/platform/data/Script.h"
#include "tests/platform/data/Wire.h"

// "lento" takes long to be looked up, "duplo" has two addresses.
extern "C" int getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** found) {
    static const auto real = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    const QByteArray name(node);
    if (name == "lento") sleep(3);
    if (name != "duplo") return real(node, service, hints, found);
    real("127.0.0.2", service, hints, found);
    return real("127.0.0.1", service, hints, &(*found)->ai_next);
}

namespace {

// Takes no calls at the server's port on 127.0.0.2, as where packets are dropped.
class Dropping {
  public:
    Dropping() {
        Address.sin_addr.s_addr = inet_addr("127.0.0.2");
        for (int& handle : FHandles) handle = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
        const auto* address = reinterpret_cast<const sockaddr*>(&Address);
        bind(FHandles[0], address, sizeof Address);
        listen(FHandles[0], 0);
        for (int i = 1; i < 4; ++i) connect(FHandles[i], address, sizeof Address);
    }
    ~Dropping() {
        for (const int handle : FHandles) close(handle);
    }
    sockaddr_in Address = Loopback(ServerPort().toInt());

  private:
    int FHandles[4];
};

class Reach : public ScriptTest {
  protected:
    void SetUp() override {
        if (!OnServer()) GTEST_SKIP() << "needs a server";
        DataTest::SetUp();
    }
    void TearDown() override {
        if (FRoot) DataTest::TearDown();
    }
    // Connects with some parameters changed. The role that is held then.
    QString Connected(const QStringList& changed) {
        TFDConnection* connection = Connect();
        const auto freed = qScopeGuard([&] { connection->Free(); });
        connection->Close();
        for (QString line : changed) {
            line.replace("$PORT", ServerPort()).replace("$WIRE", QString::number(FWire->Port));
            connection->Params()->SetValue(line.section('=', 0, 0), line.section('=', 1));
        }
        connection->Open();
        return connection->ExecSQLScalar(u"SELECT TRIM(CURRENT_ROLE) FROM RDB$DATABASE"_s).ToText();
    }
    // Soon after one second, and the screen goes on painting.
    QString Late(const QStringList& changed) {
        Screen screen;
        QElapsedTimer time;
        time.start();
        const QString message = MessageOf([&] { Connected(changed + QStringList("ConnectTimeout=1")); });
        EXPECT_LT(time.elapsed(), 2500);
        EXPECT_GT(screen.Turns, 10);
        return QString(message).replace(ServerPort(), "$PORT").replace(QString::number(FWire->Port), "$WIRE");
    }
    std::unique_ptr<Wire> FWire;
};

TEST_F(Reach, ASayingForEveryWayToFail) {
    FWire = std::make_unique<Wire>(ServerPort().toInt());
    const Dropping dropping;
    Run("alcance", {{"Connect", [&](const QStringList& a) { return Connected(a); }},
                    {"Late", [&](const QStringList& a) { return Late(a); }},
                    {"Answers", [&](const QStringList& a) {
                         FWire->Answers = a[0].toInt();
                         return QString();
                     }}});
}

TEST_F(Reach, ASignalDoesNotEndTheWait) {
    const Dropping dropping;
    std::signal(SIGALRM, [](int) {});
    const itimerval soon = {{}, {0, 50'000}};
    setitimer(ITIMER_REAL, &soon, nullptr);
    QElapsedTimer time;
    time.start();
    const auto end = fichario::Deadline::clock::now() + std::chrono::milliseconds(300);
    EXPECT_EQ(fichario::AddressThatAnswers(u"127.0.0.2/"_s + ServerPort(), end), u"");
    EXPECT_GE(time.elapsed(), 299);
}

}  // namespace
