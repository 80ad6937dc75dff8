#include "bench/ClienteTable.h"

#include <map>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kTable =
    u"CREATE TABLE CLIENTE (CD INTEGER NOT NULL PRIMARY KEY, NM VARCHAR(60), CPF VARCHAR(14), EMAIL "
    u"VARCHAR(40), UF CHAR(2), SALDO NUMERIC(15,2), DT_NASC DATE, CRIADO TIMESTAMP, ATIVO CHAR(1))"_s;

const UnicodeString kFill =
    u"EXECUTE BLOCK (N INTEGER = :N) AS DECLARE I INTEGER = 1; BEGIN WHILE (I <= N) DO BEGIN "
    u"INSERT INTO CLIENTE VALUES (:I, "
    u"DECODE(MOD(:I, 5), 0, 'João da ', 1, 'MARIA ', 2, 'Antônio ', 3, 'Inês de ', 'Conceição ') || "
    u"DECODE(MOD(:I, 7), 0, 'Souza ', 1, 'Araújo ', 2, 'Gonçalves ', 3, 'Lima ', 4, 'Magalhães ', 5, 'Sá ', "
    u"'Assunção ') || "
    u"DECODE(MOD(:I, 3), 0, 'Filho', 1, 'Pires', 'Cardoso'), LPAD(:I, 11, '0'), "
    u"'c' || :I || '@loja.com', DECODE(MOD(:I, 3), 0, 'SP', 1, 'PR', 'MG'), :I * 1.37, "
    u"DATE '1950-01-01' + MOD(:I, 20000), TIMESTAMP '2020-01-01 08:00:00' + MOD(:I, 1000) * 0.37, "
    u"IIF(MOD(:I, 5) = 0, 'N', 'S')); I = I + 1; END END"_s;

UnicodeString ServerFolder() {
    return qEnvironmentVariable("FICHARIO_TEST_SERVER");
}

UnicodeString FolderOf(Place place) {
    static QTemporaryDir here;
    static QTemporaryDir there(ServerFolder() + u"/db/bench-XXXXXX"_s);
    return place == Place::Embedded ? here.path() : there.path();
}

TFDConnection* Make(Place place, int rows) {
    auto* connection = new TFDConnection(nullptr);
    TStrings& params = *connection->Params();
    params.SetText(u"Protocol=Local\nUser_Name=SYSDBA\nPassword=teste\nForcedWrites=False\nPageSize=16384"_s);
    if (place == Place::Server) {
        params.SetValue(u"Protocol"_s, u"TCPIP"_s);
        params.SetValue(u"Server"_s, u"127.0.0.1/%1"_s.arg(PortOfServer()));
    }
    params.SetValue(u"Database"_s, ClientesPath(place, rows));
    connection->CreateDatabase();
    connection->ExecSQL(kTable);
    connection->ExecSQL(kFill, {rows});
    return connection;
}

}  // namespace

bool HasServer() {
    return !ServerFolder().isEmpty();
}

int PortOfServer() {
    QFile file(ServerFolder() + u"/porta"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
}

UnicodeString ClientesPath(Place place, int rows) {
    return u"%1/clientes-%2.fdb"_s.arg(FolderOf(place)).arg(rows);
}

TFDConnection* ClientesOf(Place place, int rows) {
    static std::map<std::pair<Place, int>, TFDConnection*> made;
    TFDConnection*& connection = made[{place, rows}];
    if (!connection) connection = Make(place, rows);
    return connection;
}
