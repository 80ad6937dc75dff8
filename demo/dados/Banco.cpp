#include "demo/dados/Banco.h"

#include <cerrno>
#include <cstdio>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include "demo/dados/Esquema.h"
#include "platform/data/Connection.h"
#include "platform/rtl/Exceptions.h"
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

// A file that goes away with the scope unless it was put in its place.
class TRascunho {
  public:
    explicit TRascunho(const UnicodeString& path) : FPath(path) { QFile::remove(FPath); }
    ~TRascunho() { QFile::remove(FPath); }
    TRascunho(const TRascunho&) = delete;
    TRascunho& operator=(const TRascunho&) = delete;

    const UnicodeString& Path() const { return FPath; }

    // QFile::rename does not replace a file, the system's own call does, at once.
    void PorEm(const UnicodeString& path) const {
        CheckFileFailure(path, foWrite);
        const int result =
            std::rename(QFile::encodeName(FPath).constData(), QFile::encodeName(path).constData());
        if (result != 0) RaiseFileError(path, foWrite, errno);
    }

  private:
    UnicodeString FPath;
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
    const TRascunho rascunho(path + u".novo"_s);
    Preencher(rascunho.Path(), clientes, progresso);
    rascunho.PorEm(path);
}

void ApontarConexao(TFDConnection& connection, const UnicodeString& path) {
    TStrings* params = connection.Params();
    params->SetValue(u"DriverID"_s, u"FB"_s);
    params->SetValue(u"Protocol"_s, u"Local"_s);
    params->SetValue(u"Database"_s, path);
    params->SetValue(u"User_Name"_s, u"SYSDBA"_s);
    params->SetValue(u"CharacterSet"_s, u"ISO8859_1"_s);
}
