#include "demo/dados/Banco.h"

#include <cerrno>

#include <QFileInfo>
#include <QLockFile>

#include "demo/dados/CargaVendas.h"
#include "demo/dados/Esquema.h"
#include "platform/data/Connection.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FileDraft.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A connection for the length of a scope; its end closes it.
class TConexao {
  public:
    TConexao() : FConnection(new TFDConnection(nullptr)) {}
    ~TConexao() { FConnection->Free(); }
    TConexao(const TConexao&) = delete;
    TConexao& operator=(const TConexao&) = delete;

    TFDConnection& operator*() const { return *FConnection; }
    TFDConnection* operator->() const { return FConnection; }

  private:
    TFDConnection* FConnection;
};

// Waits for nobody; a lock whose holder has died does not count, however long the living one takes.
void Travar(QLockFile& trava, const UnicodeString& path) {
    trava.setStaleLockTime(0);
    if (trava.tryLock(0)) return;
    if (trava.error() != QLockFile::LockFailedError) RaiseFileError(path, foWrite, EACCES);
    throw EInOutError(u"O banco de dados '%1' está sendo criado por outro programa."_s.arg(path), EBUSY);
}

// One transaction for all of them, which is several times quicker than one for each.
void Executar(TFDConnection& connection, const TStringArray& comandos) {
    connection.StartTransaction();
    for (const UnicodeString& comando : comandos) connection.ExecSQL(comando);
    connection.Commit();
}

void Carregar(TFDConnection& connection, int clientes, const TProgresso& progresso) {
    TGeradorDeClientes gerador;
    connection.StartTransaction();
    CarregarMunicipios(connection);
    CarregarClientes(connection, clientes, gerador, progresso);
    connection.Commit();
}

void Preencher(const UnicodeString& path, int clientes, const TProgresso& progresso) {
    TConexao connection;
    ApontarConexao(*connection, path);
    connection->Params()->SetValue(u"PageSize"_s, u"16384"_s);
    connection->CreateDatabase();
    Executar(*connection, ComandosDasTabelas());
    Carregar(*connection, clientes, progresso);
    Executar(*connection, ComandosDosIndices());
    CompletarBanco(*connection);
    connection->Close();
}

}  // namespace

UnicodeString CaminhoDoBanco() {
    return JoinPath(UserDataFolder(u"Comercial"), u"COMERCIAL.FDB");
}

bool BancoExiste(const UnicodeString& path) {
    return QFileInfo(path).isFile();
}

void CriarBancoDeExemplo(const UnicodeString& path, int clientes, const TProgresso& progresso) {
    EnsureFolder(QFileInfo(path).absolutePath());
    QLockFile trava(path + u".trava"_s);
    Travar(trava, path);
    TFileDraft rascunho(path);
    Preencher(rascunho.Name(), clientes, progresso);
    rascunho.Commit();
}

// The last of its steps is one transaction, so that the users are there exactly when all of it is.
void CompletarBanco(TFDConnection& connection) {
    const auto ha = [&](const UnicodeString& consulta) {
        return connection.ExecSQLScalar(consulta).ToInt() > 0;
    };
    if (!ha(u"SELECT COUNT(*) FROM RDB$RELATIONS WHERE RDB$RELATION_NAME = 'USUARIO'"_s))
        Executar(connection, ComandosDeVendas());
    if (ha(u"SELECT COUNT(*) FROM USUARIO"_s)) return;
    connection.StartTransaction();
    CarregarVendas(connection);
    connection.Commit();
}

void ApontarConexao(TFDConnection& connection, const UnicodeString& path) {
    TStrings* params = connection.Params();
    params->SetValue(u"DriverID"_s, u"FB"_s);
    params->SetValue(u"Protocol"_s, u"Local"_s);
    params->SetValue(u"Database"_s, path);
    params->SetValue(u"User_Name"_s, u"SYSDBA"_s);
    params->SetValue(u"CharacterSet"_s, u"ISO8859_1"_s);
}
