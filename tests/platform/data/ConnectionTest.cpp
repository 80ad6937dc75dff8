// Connecting, transactions, and client calls that fail.
#include <fcntl.h>
#include <csignal>
#include <QDir>
#include <QFile>
#include "platform/data/firebird/ClientCall.h"
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/FbErrors.h"
#include "platform/system/Processes.h"
#include "tests/platform/data/Script.h"

namespace {

void Write(const UnicodeString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray Read(const UnicodeString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(DataTest, ADatabaseThatCannotBeOpenedSaysWhy) {
    if (OnServer()) GTEST_SKIP() << "the file is the server's, whose folders nobody here can look into";
    ASSERT_TRUE(QDir(InFolder(UnicodeString())).mkdir(u"pasta"_s));
    Write(InFolder(u"vazio.fdb"_s), {});
    Write(InFolder(u"lixo.fdb"_s), QByteArray(20000, 'x'));
    struct {
        UnicodeString File, Cause;
    } const cases[] = {
        {u"nenhum.fdb"_s, u"arquivo não encontrado"_s},
        {u"C:nenhum.fdb"_s, u"arquivo não encontrado"_s},
        {u"pasta"_s, u"é uma pasta, não um arquivo"_s},
        {u"vazio.fdb"_s, u"o arquivo está vazio ou incompleto"_s},
        {u"lixo.fdb"_s, u"o arquivo não é um banco de dados Firebird"_s},
    };
    FConnection->Close();
    for (const auto& c : cases) {
        const UnicodeString path = InFolder(c.File);
        FConnection->Params()->SetValue(u"Database"_s, path);
        EXPECT_EQ(MessageOf([&] { FConnection->Open(); }),
                  u"Não foi possível abrir o banco de dados %1: %2."_s.arg(path, c.Cause));
        EXPECT_FALSE(FConnection->Connected());
    }
    FConnection->Params()->SetValue(u"Database"_s, Path());
    EXPECT_EQ(MessageOf([&] { FConnection->CreateDatabase(); }),
              u"Não foi possível criar o banco de dados %1: o arquivo já existe."_s.arg(Path()));
    for (const UnicodeString& set : {u"XYZ"_s, u"DOS850"_s}) {
        FConnection->Params()->SetValue(u"CharacterSet"_s, set);
        EXPECT_EQ(
            MessageOf([&] { FConnection->Open(); }),
            u"O conjunto de caracteres \"%1\" não é atendido. Use ISO8859_1, WIN1252, UTF8 ou NONE."_s.arg(
                set));
    }
}

TEST_F(DataTest, AnOpenDatasetHoldsNothingBack) {
    TFDQuery* query = Open(u"SELECT N, T FROM NUMEROS ORDER BY N"_s);
    for (int i = 0; i < 50; ++i) Exec(u"UPDATE NUMEROS SET T = 'a' WHERE N = 400"_s);
    const UnicodeString gap = Scalar(u"SELECT MON$NEXT_TRANSACTION - MON$OLDEST_ACTIVE FROM MON$DATABASE"_s);
    EXPECT_LE(gap.toInt(), 5);
    ASSERT_TRUE(query->Locate(u"N"_s, 400));
    // Over the wire the row came with those before it.
    EXPECT_EQ(query->FieldByName(u"T"_s)->AsString(), OnServer() ? u"n400"_s : u"a"_s);
}

TEST_F(DataTest, ClosingTheConnectionClosesItsDatasets) {
    TFDQuery* query = Open(u"SELECT * FROM CLIENTE"_s);
    query->Edit();
    int closed = 0;
    query->AfterClose = [&](TDataSet*) { ++closed; };
    FConnection->Close();
    EXPECT_FALSE(query->Active());
    EXPECT_EQ(query->FieldCount(), 15);
    query->Open();
    EXPECT_TRUE(FConnection->Connected());
    FConnection->Free();
    EXPECT_EQ(query->Connection(), nullptr);
    EXPECT_EQ(closed, 2);
    FConnection = nullptr;
}

// The client library takes the signals over when it first connects, and its descriptors are inherited.
TEST_F(DataTest, TheProcessStaysItsOwn) {
    for (void (*const host)(int) : {SIG_DFL, SIG_IGN}) {
        for (const int signal : {SIGTERM, SIGINT}) {
            if (host == SIG_IGN) std::signal(signal, host);
            Connect();
            EXPECT_EQ(std::signal(signal, SIG_DFL), host);
        }
    }
    for (int file = 3; file < 100; ++file) {
        const int flags = fcntl(file, F_GETFD);
        EXPECT_TRUE(flags < 0 || (flags & FD_CLOEXEC)) << file;
    }
    Open(u"SELECT LPAD(A.T, 30000, B.T) FROM NUMEROS A, NUMEROS B WHERE B.N < 6 ORDER BY 1"_s);
    const UnicodeString list = InFolder(u"arquivos"_s);
    const int program = StartProgram(u"/bin/sh"_s, {u"-c"_s, u"exec > \"$0\"; ls /proc/$$/fd; true"_s, list});
    ASSERT_TRUE(HasEnded(program, 5000));
    EXPECT_EQ(Read(list), "0\n1\n2\n") << "files of a sort that came later";
}

// Lets the Nth client call of a scope fail with one code.
class FailingCall {
  public:
    FailingCall(int nth, int64_t code) {
        fichario::SetClientCallHook([this, nth, code](fichario::CallKind) {
            if (++FCalls == nth) throw fichario::ErrorOfCodes({code});
        });
    }
    ~FailingCall() { fichario::SetClientCallHook(nullptr); }
    int Calls() const { return FCalls; }

  private:
    int FCalls = 0;
};

// A scenario of every kind of call, with each call failing in turn: nothing crashes, what is read is right or
// an error is told, and afterwards the same works.
TEST_F(DataTest, AnyClientCallMayFail) {
    bool reconnect = false;
    const auto work = [&](TFDQuery* query) {
        query->Open();
        query->Last();
        query->Edit();
        query->FieldByName(u"OBS"_s)->SetAsString(u"x"_s + query->FieldByName(u"OBS"_s)->AsString());
        query->Post();
        query->Append();
        query->FieldByName(u"NM"_s)->SetAsString(u"outro"_s);
        query->Post();
        query->Delete();
        query->Refresh();
        if (query->RecordCount() != 3) throw EDatabaseError(u"rows are missing"_s);
        query->Close();
        if (reconnect) FConnection->Close();
    };
    for (const int64_t code : {int64_t{335544794}, fichario::kConnectionLost}) {
        bool failed = true;
        int nth = 0;
        while (failed) {
            ++nth;
            reconnect = code == fichario::kConnectionLost;
            SCOPED_TRACE(::testing::Message() << "call " << nth << " fails with " << code);
            TFDQuery* query = Query(u"SELECT * FROM CLIENTE ORDER BY ID"_s);
            {
                const FailingCall failing(nth, code);
                const UnicodeString message = MessageOf([&] { work(query); });
                EXPECT_NE(message, u"rows are missing");
                failed = failing.Calls() >= nth;
            }
            query->Free();
            Exec(u"DELETE FROM CLIENTE WHERE ID > 3"_s);
            reconnect = false;
            TFDQuery* again = Query(u"SELECT * FROM CLIENTE ORDER BY ID"_s);
            EXPECT_EQ(MessageOf([&] { work(again); }), UnicodeString());
            again->Free();
        }
        EXPECT_GT(nth, 20);
    }
}

TEST_F(ScriptTest, TransactionsAndLostConnections) {
    std::optional<FailingCall> failing;
    bool lost = false;
    const auto fail = [&](const QStringList& a) {
        failing.emplace(a[0].toInt(), a.size() > 1 ? a[1].toLongLong() : fichario::kConnectionLost);
        FConnection->OnLost = [&](TFDCustomConnection*) { lost = true; };
        return QString();
    };
    Run("transacoes", {{"Fail", fail}, {"Lost", [&](const QStringList&) { return lost ? "yes" : "no"; }}});
}

}  // namespace
