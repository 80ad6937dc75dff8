#include "db/UDBUtils.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include "platform/data/Connection.h"
#include "platform/data/firebird/DatabaseName.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"
#include "utils/funcoes/Senhas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class Configuracao : public testing::Test {
  protected:
    void SetUp() override { SetProgramFolder(Folder.path()); }
    void TearDown() override {
        SetFileFailure(nullptr);
        SetProgramFolder({});
        Connection->Free();
    }
    UnicodeString File() const { return Folder.filePath(u"Config.ini"_s); }
    void Write(const QByteArray& text) { WriteWholeFile(File(), text); }
    QString Loaded() {
        LoadConnection(Connection);
        return Connection->Params()->Text().replace(u"\r\n"_s, u"|"_s).replace(Folder.path(), u"@"_s);
    }
    QString Value(const char16_t* name) {
        LoadConnection(Connection);
        return Connection->Params()->Values(name);
    }

    QTemporaryDir Folder;
    TFDConnection* Connection = new TFDConnection(nullptr);
};

TEST_F(Configuracao, FillsInWhatIsMissing) {
    const QString defaults =
        u"DriverID=FB|Server=localhost|Protocol=TCPIP|Database=@\\DATABASE.FDB|User_Name=SYSDBA|"
        "Password=pwdefault|RoleName=|CharacterSet=ISO8859_1|PageSize=16384|"_s;
    Connection->Params()->SetText(u"Alheio=1"_s);
    EXPECT_EQ(Loaded(), defaults);
    EXPECT_FALSE(HasConnection());
    for (const char* text : {"[DATABASE]\r\nHost=\r\nPassword=\r\n", "[DATABASE]\r\nPassword=ZZ\r\n",
                             "\x01\x02lixo[[[\r\n=\r\n"}) {
        SCOPED_TRACE(text);
        Write(text);
        EXPECT_EQ(Loaded(), defaults);
    }
    Write("[DATABASE]\r\nPath=C:\\dados\\\r\nFile=\r\nUser=\r\nRoleName=GERENTE\r\n");
    EXPECT_TRUE(HasConnection());
    EXPECT_EQ(Value(u"Database"), u"C:\\dados\\\\"_s);
    EXPECT_EQ(Value(u"User_Name"), QString());
    EXPECT_EQ(Value(u"RoleName"), u"GERENTE"_s);
}

TEST_F(Configuracao, ComesBackAsItWasSaved) {
    const struct {
        const char16_t *Database, *Loaded, *ForServer;
    } cases[] = {
        {u"/srv/dados/LOJA.FDB", u"/srv/dados\\LOJA.FDB", u"/srv/dados/LOJA.FDB"},
        {u"C:\\Dados da loja\\LOJA.FDB", u"C:\\Dados da loja\\LOJA.FDB", u"C:\\Dados da loja\\LOJA.FDB"},
        {u"loja", u"\\loja", u"loja"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(QString::fromUtf16(c.Database).toStdString());
        SaveConnection(u"servidor/3051"_s, QString::fromUtf16(c.Database), u"ana"_s, u"sênha;=#1"_s,
                       u"CAIXA"_s);
        EXPECT_EQ(Value(u"Server"), u"servidor/3051"_s);
        EXPECT_EQ(Value(u"Database"), QString::fromUtf16(c.Loaded));
        EXPECT_EQ(fichario::NameForServer(Value(u"Database")), QString::fromUtf16(c.ForServer));
        EXPECT_EQ(Value(u"Password"), u"sênha;=#1"_s);
        EXPECT_EQ(Value(u"User_Name") + Value(u"RoleName"), u"anaCAIXA"_s);
    }
    EXPECT_FALSE(ReadWholeFile(File()).contains("nha;"));
}

TEST_F(Configuracao, IsWrittenAsAWholeOrNotAtAll) {
    Write("; da loja\r\n[CNPJ]\r\nUsado=1\r\n[DATABASE]\r\nHost=velho\r\n");
    const QByteArray before = ReadWholeFile(File());
    EXPECT_THROW(SaveConnection(u"novo"_s, u"/d/x"_s, u"a\nb"_s, {}, {}), EConvertError);
    EXPECT_EQ(ReadWholeFile(File()), before);
    SetFileFailure([](const UnicodeString&, TFileOperation operation) {
        return operation == foWrite ? std::optional(ENOSPC) : std::nullopt;
    });
    EXPECT_THROW(SaveConnection(u"novo"_s, u"/d/x"_s, u"a"_s, {}, {}), EInOutError);
    SetFileFailure(nullptr);
    EXPECT_EQ(ReadWholeFile(File()), before);
    SaveConnection(u"novo"_s, u"/d/x"_s, u"a"_s, {}, {});
    EXPECT_TRUE(ReadWholeFile(File()).startsWith("; da loja\r\n[CNPJ]\r\nUsado=1\r\n"));
}

}  // namespace
