#include "tests/platform/data/TestDatabase.h"

#include <QDir>
#include <QFile>

namespace {

const TStringArray kTables = {
    u"CREATE TABLE CIDADE (ID INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(30) NOT NULL)"_s,
    u"CREATE TABLE CLIENTE (ID INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(20) NOT NULL, UF CHAR(2), SALDO "
    u"NUMERIC(15,2), "
    u"PESO DOUBLE PRECISION, QTD SMALLINT, CODIGO BIGINT, NASC DATE, HORA TIME, CRIADO TIMESTAMP, ATIVO "
    u"BOOLEAN, "
    u"OBS BLOB SUB_TYPE TEXT, FOTO BLOB, ID_CIDADE INTEGER REFERENCES CIDADE, DOBRO COMPUTED BY (SALDO * 2))"_s,
    u"CREATE UNIQUE INDEX I_CODIGO ON CLIENTE (CODIGO)"_s,
    u"CREATE SEQUENCE GEN_CLIENTE"_s,
    u"CREATE TRIGGER CLIENTE_BI FOR CLIENTE BEFORE INSERT AS BEGIN "
    u"IF (NEW.ID IS NULL) THEN NEW.ID = GEN_ID(GEN_CLIENTE, 1) + 1000; END"_s,
    u"CREATE EXCEPTION PROIBIDO 'Não é permitido.'"_s,
    u"CREATE TABLE NUMEROS (N INTEGER NOT NULL PRIMARY KEY, T VARCHAR(10))"_s,
};

const TStringArray kRows = {
    u"INSERT INTO CIDADE VALUES (1, 'São Paulo')"_s,
    u"INSERT INTO CIDADE VALUES (2, 'Curitiba')"_s,
    u"INSERT INTO CLIENTE VALUES (1, 'Ação', 'SP', 1234.50, 70.5, 3, 9000000000, '2000-01-31', '12:30:00', "
    u"'2001-02-03 04:05:06.7890', TRUE, 'memória', NULL, 1)"_s,
    u"INSERT INTO CLIENTE (ID, NM, ID_CIDADE) VALUES (2, 'Bia', 2)"_s,
    u"INSERT INTO CLIENTE (ID, NM, UF) VALUES (3, 'bruno', 'P')"_s,
    u"EXECUTE BLOCK AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= 500) DO BEGIN "
    u"INSERT INTO NUMEROS VALUES (:I, 'n' || :I); I = I + 1; END END"_s,
};

void SetParams(TFDConnection& connection, const UnicodeString& path, const UnicodeString& characterSet) {
    TStrings& params = *connection.Params();
    params.SetText(
        u"DriverID=FB\nProtocol=Local\nUser_Name=SYSDBA\nPassword=teste\nForcedWrites=False\nPageSize=8192"_s);
    if (OnServer()) {
        params.SetValue(u"Protocol"_s, u"TCPIP"_s);
        params.SetValue(u"Server"_s, u"127.0.0.1/"_s + ServerPort());
    }
    params.SetValue(u"Database"_s, path);
    params.SetValue(u"CharacterSet"_s, characterSet);
}

// Few commits: each costs a wait for the disk.
void Run(TFDConnection& connection, const TStringArray& statements) {
    connection.StartTransaction();
    for (const UnicodeString& sql : statements) connection.ExecSQL(sql);
    connection.Commit();
}

// Where databases may lie: on the server's side in the folder that it allows.
QString FolderTemplate() {
    return OnServer() ? qEnvironmentVariable("FICHARIO_TEST_SERVER") + u"/db/XXXXXX"_s
                      : QDir::tempPath() + u"/fichario-XXXXXX"_s;
}

// The database that all tests begin with.
UnicodeString Master() {
    static QTemporaryDir folder(FolderTemplate());
    static const UnicodeString path = [] {
        const UnicodeString file = folder.filePath(u"mestre.fdb"_s);
        auto* connection = new TFDConnection(nullptr);
        SetParams(*connection, file, u"ISO8859_1"_s);
        connection->CreateDatabase();
        Run(*connection, kTables);
        Run(*connection, kRows);
        connection->Free();
        return file;
    }();
    return path;
}

}  // namespace

bool OnServer() {
    return qEnvironmentVariableIsSet("FICHARIO_TEST_SERVER");
}

UnicodeString ServerPort() {
    QFile file(qEnvironmentVariable("FICHARIO_TEST_SERVER") + u"/porta"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll().trimmed()) : QString();
}

DataTest::DataTest() : FFolder(FolderTemplate()) {}

void DataTest::SetUp() {
    ASSERT_TRUE(QFile::copy(Master(), Path()));
    FRoot = new TComponent(nullptr);
    FConnection = Connect();
}

void DataTest::TearDown() {
    FRoot->Free();
}

TFDConnection* DataTest::Connect(const UnicodeString& characterSet) {
    auto* connection = new TFDConnection(FRoot);
    SetParams(*connection, Path(), characterSet);
    connection->Open();
    return connection;
}

TFDQuery* DataTest::Query(const UnicodeString& sql, TFDConnection* connection) {
    auto* query = new TFDQuery(FRoot);
    query->SetConnection(connection ? connection : FConnection);
    query->SQL()->SetText(sql);
    return query;
}

TFDQuery* DataTest::Open(const UnicodeString& sql, TFDConnection* connection) {
    TFDQuery* query = Query(sql, connection);
    query->Open();
    return query;
}
