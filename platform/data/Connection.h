// A connection to a Firebird database.
//
//     auto* connection = new TFDConnection(owner);
//     connection->Params()->SetText(u"Protocol=Local\nDatabase=/dados/loja.fdb\nUser_Name=SYSDBA\n"_s);
//     connection->Open();
//     connection->StartTransaction();
//     try { connection->ExecSQL(u"UPDATE T SET A = :A"_s, {5}); connection->Commit(); }
//     catch (...) { connection->Rollback(); throw; }
//
// Outside StartTransaction … Commit, every record posted and every statement executed is a short transaction
// of its own, and open datasets read what others have committed without holding anything back.
#pragma once
#include <functional>
#include <memory>
#include <vector>
#include "platform/data/Errors.h"
#include "platform/rtl/Component.h"
#include "platform/rtl/Strings.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TFDDataSet;
namespace fichario {
class Attachment;
class TogetherSave;
}  // namespace fichario

class TFDCustomConnection : public TComponent {
  public:
    explicit TFDCustomConnection(TComponent* owner);

    // Name=value lines, read when the connection opens:
    //   DriverID       FB
    //   Server         host, or host/port; with Protocol=TCPIP; localhost at first
    //   Protocol       TCPIP, or Local: the engine inside this process opens the file
    //   Database       path or alias; unchanged to a remote server
    //                  (a name that begins with / takes \ for /, and \name is an alias)
    //   User_Name, Password
    //   RoleName       "Caixa" exactly so, with quotes; without them in any case
    //   ConnectTimeout seconds that connecting to a server may take; 10 at first
    //   StatementTimeout  seconds that one call of a statement (its execution, the fetch of a batch of
    //                  rows), or a commit, may take before it is broken off; 600 at first, 0: any time
    //   CharacterSet   ISO8859_1 (at first; the bytes are taken as Windows-1252), UTF8, WIN1252 or NONE, or
    //                  another name that the server has for one of them; the rest is refused
    //   PageSize       of a database that CreateDatabase makes: 4096, 8192 or 16384
    //   ForcedWrites   False: a database that CreateDatabase makes leaves writing to the system's cache
    TStrings* Params() { return &FParams; }

    bool Connected() const;
    void SetConnected(bool connected);
    // EFDError with a Portuguese sentence: what is wrong with server, file, user or role.
    void Open() { SetConnected(true); }
    // Closes the datasets on it, undoes an open transaction.
    void Close() { SetConnected(false); }
    // Makes the database file that Params describes, in the character set named there, and connects to it.
    // EFDError when the file exists.
    void CreateDatabase();

    // Brackets all that happens on this connection, what datasets read included, in one transaction. Datasets
    // still open at its end are first read to their end. EDatabaseError when one is already open
    // (StartTransaction) or none is.
    void StartTransaction();
    void Commit();
    void Rollback();
    bool InTransaction() const;

    // Executes a statement with its parameters, given in the order of their first appearance. Returns how
    // many records it changed. DDL too. EFDError.
    int ExecSQL(const UnicodeString& sql, const std::vector<Variant>& values = {});
    // The first column of the first row; null when there is no row. A statement that returns values without
    // being a SELECT (RETURNING, EXECUTE PROCEDURE) is executed as by ExecSQL.
    Variant ExecSQLScalar(const UnicodeString& sql, const std::vector<Variant>& values = {});

    // The connection was found lost; it opens anew with the next use.
    std::function<void(TFDCustomConnection*)> OnLost;

    // The open connection, opened now when it is not. Internal to the data layer, as what follows.
    const std::shared_ptr<fichario::Attachment>& RequireAttachment();
    enum class Use { Fetching, Reading, Writing };  // Reading: what may end in a commit of its own
    // What `work` gives. When it finds that the server has gone since the last use, but is there again, it is
    // done once more on a new connection: if it reads, or has not written anything yet. Not in a host's
    // transaction.
    template <class Work>
    decltype(auto) Lasting(Use use, Work work) {
        const std::shared_ptr<fichario::Attachment> used = FAttachment;
        try {
            return work();
        } catch (const EFDError& error) {
            if (!FAttachment || !Revive(error, use, used)) throw;
        }
        return work();
    }
    // Whether what failed so on `used` can be done once more, on the connection as it is now.
    bool Revive(const EFDError& error, Use use, const std::shared_ptr<fichario::Attachment>& used);

  protected:
    ~TFDCustomConnection() override;

  private:
    friend class TFDDataSet;
    friend class TFDCustomQuery;
    friend class fichario::TogetherSave;
    void CloseDataSets();
    void EndTransaction(bool commit);

    TStringList FParams;
    std::shared_ptr<fichario::Attachment> FAttachment;
    int FTransactions = 0;  // that the host has begun
    std::vector<TFDDataSet*> FDataSets;
};

class TFDConnection : public TFDCustomConnection {
  public:
    using TFDCustomConnection::TFDCustomConnection;

  protected:
    ~TFDConnection() override = default;
};
