// The table that the data benchmarks read: nine columns of a customer, rows of 112 bytes on the wire, in a
// database of its own for each size, in this process's engine or on a private server.
//
//     TFDConnection* connection = ClientesOf(Place::Embedded, 100000);
#pragma once
#include "platform/data/Connection.h"

enum class Place { Embedded, Server };

// FICHARIO_TEST_SERVER names the folder of a started server (tests/servidor).
bool HasServer();

// A connection to the database of that many rows, made when it is first asked for.
TFDConnection* ClientesOf(Place place, int rows);

// Its path, and the port of the server.
UnicodeString ClientesPath(Place place, int rows);
int PortOfServer();

// All columns of the table, and the INSERT of them all.
const UnicodeString kSelectClientes =
    QStringLiteral("SELECT CD, NM, CPF, EMAIL, UF, SALDO, DT_NASC, CRIADO, ATIVO FROM CLIENTE");
const UnicodeString kInsertCliente = QStringLiteral(
    "INSERT INTO \"CLIENTE\" (\"CD\", \"NM\", \"CPF\", \"EMAIL\", \"UF\", \"SALDO\", \"DT_NASC\", "
    "\"CRIADO\", "
    "\"ATIVO\") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");

// A record to insert, but for its key.
namespace novo {
const UnicodeString kNome = QStringLiteral("Antônio Gonçalves Pires");
const UnicodeString kCpf = QStringLiteral("52998224725");
const UnicodeString kEmail = QStringLiteral("c12345@loja.com");
const UnicodeString kUf = QStringLiteral("PR");
constexpr int64_t kSaldo = 123450;  // 1234,50
constexpr double kNasc = 36526, kCriado = 45000.5;
const UnicodeString kAtivo = QStringLiteral("S");
}  // namespace novo
