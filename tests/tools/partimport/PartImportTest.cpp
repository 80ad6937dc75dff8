// The participant's lookup: the function, the companion program, its sources.
#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/IniFile.h"
#include "platform/system/NamedMutex.h"
#include "platform/system/Paths.h"
#include "platform/system/UserInterface.h"
#include "tools/partimport/Busca.h"
#include "utils/funcoes/Sistema.h"
#include "utils/UImpParticipante.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kCnpj = u"11222333000181"_s;

// Writes down what the function asks of the screen.
class TScreen : public TUserInterface {
  public:
    QStringList Said;
    std::function<void()> Idle;
    int MessageBox(const UnicodeString& text, const UnicodeString& caption, int flags) override {
        Said << caption + u'|' + text + u'|' + QString::number(flags);
        return IDOK;
    }
    void ProcessMessages() override {
        if (Idle) Idle();
    }
    void EnableMainForm(bool enabled) override { Said << (enabled ? u"on"_s : u"off"_s); }
    void BringToFront() override { Said << u"front"_s; }
    void WaitFor(const std::function<bool(int)>& done) override {
        while (!done(50)) {
        }
    }
};

class PartImport : public testing::Test {
  protected:
    // The lock of each test lies in its own folder: others may run at the same time.
    void SetUp() override {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(Folder.path()));
        SetProgramFolder(Folder.path());
        Before = InstallUserInterface(&Screen);
    }
    void TearDown() override {
        InstallUserInterface(Before);
        SetProgramFolder({});
        qputenv("XDG_RUNTIME_DIR", RuntimeBefore);
    }
    void Place(const QString& name, const QString& from) {
        ASSERT_TRUE(QFile::copy(from, Folder.filePath(name)));
    }
    bool Look(const UnicodeString& cnpj) {
        UnicodeString outputs[10];
        const bool found = GetParticipante(cnpj, outputs[0], outputs[1], outputs[2], outputs[3], outputs[4],
                                           outputs[5], outputs[6], outputs[7], outputs[8], outputs[9]);
        Filled = QStringList(std::begin(outputs), std::end(outputs)).join(u'|');
        return found;
    }
    UnicodeString File() const { return Folder.filePath(u"Config.ini"_s); }
    static UnicodeString MessageOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const Exception& e) {
            return e.Message;
        }
        return {};
    }

    const QByteArray RuntimeBefore = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir Folder;
    TScreen Screen;
    TUserInterface* Before = nullptr;
    QString Filled;
};

TEST_F(PartImport, FillsTheTenTextsFromTheProgram) {
    Place(u"PartImport"_s, QStringLiteral(PARTIMPORT));
    Place(u"PartImport.ini"_s, QStringLiteral(PARTIMPORT_FILES "/PartImport.ini"));
    Place(u"empresas.csv"_s, QStringLiteral(PARTIMPORT_FILES "/empresas.csv"));
    EXPECT_TRUE(Look(kCnpj));
    EXPECT_EQ(
        Filled,
        u"11222333000181|Comércio de Papéis Araçá Ltda|Papelaria Araçá|Rua das Acácias|120|Loja 2|80010-000|Centro|Curitiba|PR"_s);
    EXPECT_EQ(Screen.Said, (QStringList{u"off"_s, u"on"_s, u"front"_s}));
    EXPECT_FALSE(Look(u"11222333000182"_s));  // an answer of before must not count
    EXPECT_EQ(Filled, QString(9, u'|'));
}

TEST_F(PartImport, SaysWhatIsWrongBeforeAndAfter) {
    EXPECT_FALSE(Look(u"123"_s));
    EXPECT_EQ(
        Screen.Said,
        QStringList(
            u"Erro...|Para a busca dos dados online informe a quantidade exata de digitos do CNPJ.|16"_s));
    EXPECT_FALSE(QFile::exists(File()));
    for (const UnicodeString& cnpj : {kCnpj, UnicodeString()}) {
        Screen.Said.clear();
        EXPECT_TRUE(MessageOf([&] { Look(cnpj); }).contains(u"PartImport.exe"_s));
        EXPECT_EQ(Screen.Said, QStringList(u"off"_s)) << "the caller enables the form again";
    }
}

// The user types in the program: it is started without a number and waited for by its lock, which dies with
// it.
TEST_F(PartImport, WaitsForTheProgramInWhichTheUserTypes) {
    Place(u"PartImport"_s, QStringLiteral(PARTIMPORT));
    QElapsedTimer typing;
    typing.start();
    Screen.Idle = [&] {
        const int pid = FindProcessEx(Folder.filePath(u"PartImport.exe"_s));
        if (typing.elapsed() < 1500 || pid == 0) return;
        EXPECT_FALSE(TNamedMutex(u"VREN_IMPART"_s).TryLock());
        TIniFile(File()).WriteBool(u"CNPJ"_s, u"Usado"_s, true);
        TIniFile(File()).WriteString(u"CNPJ"_s, u"Cidade"_s, u"Curitiba"_s);
        KillProcessEx(pid);
    };
    EXPECT_TRUE(Look({}));
    EXPECT_EQ(Filled, QString(8, u'|') + u"Curitiba|"_s);
    EXPECT_EQ(Screen.Said, (QStringList{u"off"_s, u"on"_s, u"front"_s}));
}

TEST_F(PartImport, SourcesAnswerOrSayWhyNot) {
    const UnicodeString csv = Folder.filePath(u"e.csv"_s);
    WriteWholeFile(csv, "razao;CNPJ\r\n\"A; \"\"B\"\"\";11.222.333/0001-81\r\nS\xE3o;11444777000161\n");
    EXPECT_EQ(FonteCsv(csv)->Buscar(kCnpj)->Razao, u"A; \"B\""_s);
    EXPECT_EQ(FonteCsv(csv)->Buscar(u"11444777000161"_s)->Razao, u"São"_s);
    EXPECT_FALSE(FonteCsv(csv)->Buscar(u"45723174000110"_s));
    WriteWholeFile(csv, "nada");
    EXPECT_TRUE(MessageOf([&] { FonteCsv(csv)->Buscar(kCnpj); }).contains(u"não tem a coluna cnpj"_s));
    EXPECT_TRUE(MessageOf([&] { FonteCsv(u"/nenhum.csv"_s)->Buscar(kCnpj); }).contains(u"/nenhum.csv"_s));
    EXPECT_TRUE(MessageOf([&] { CriarFonte({.Fonte = u"FTP"_s}); }).contains(u"FTP"_s));
    EXPECT_TRUE(MessageOf([&] { CriarFonte({.Fonte = u"HTTP"_s}); }).contains(u"{cnpj}"_s));
}

TEST_F(PartImport, ServiceDeliversOrTheFileStaysAsItWas) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QByteArray answer;
    QByteArray asked;
    QObject::connect(&server, &QTcpServer::newConnection, [&] {
        QTcpSocket* socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, [&, socket] {
            asked = socket->readAll();
            if (answer.isEmpty()) return;
            socket->write(answer);
            socket->disconnectFromHost();
        });
    });
    const UnicodeString address = u"http://127.0.0.1:%1/empresas/{cnpj}"_s.arg(server.serverPort());
    const auto look = [&] {
        return MessageOf([&] { BuscarParticipante(kCnpj, *FonteHttp(address, 1), File()); });
    };
    const std::pair<const char*, const char16_t*> cases[] = {
        {"HTTP/1.1 404 N\r\nContent-Length: 0\r\n\r\n", u"Nenhuma empresa foi encontrada"},
        {"HTTP/1.1 500 E\r\nContent-Length: 0\r\n\r\n", u"não está disponível"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nlixo", u"não se entende"},
        {"", u"não respondeu em 1 segundos"}};
    for (const auto& [bytes, message] : cases) {
        answer = bytes;
        EXPECT_TRUE(look().contains(QString::fromUtf16(message))) << bytes;
        EXPECT_FALSE(QFile::exists(File()));
    }
    const QByteArray json = R"({"razao":"Alfa\nBeta","numero":12,"estado":"PR","outro":{}})";
    answer = "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(json.size()) + "\r\n\r\n" + json;
    EXPECT_EQ(look(), UnicodeString());
    EXPECT_TRUE(asked.startsWith("GET /empresas/11222333000181 "));
    const TIniFile file(File());
    EXPECT_EQ(file.ReadString(u"CNPJ", u"Razao", {}), u"Alfa Beta"_s);
    EXPECT_EQ(file.ReadString(u"CNPJ", u"Numero", {}), u"12"_s);
    EXPECT_TRUE(file.ReadBool(u"CNPJ", u"Usado", false));
    EXPECT_TRUE(MessageOf([&] {
                    BuscarParticipante(u"123"_s, *FonteHttp(address, 1), File());
                }).contains(u"não é válido"_s));
}

}  // namespace
