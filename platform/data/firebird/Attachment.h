// An open connection to a database on the client library: its transactions, its prepared statements, what it
// knows of the tables.
//
//     auto attachment = Attachment::Attach(settings);
//     StatementLease statement = attachment->Prepare(u"SELECT * FROM T"_s);
#pragma once
#include <chrono>
#include <memory>
#include <vector>
#include "platform/data/firebird/ClientCall.h"
#include "platform/data/firebird/TextEncoding.h"

namespace Firebird {
class IAttachment;
}

namespace fichario {

class Metadata;
class Statement;
class StatementLease;
class Transaction;

// What it takes to reach a database.
struct AttachSettings {
    UnicodeString Server;    // host or host/port; only used when not Local
    UnicodeString Database;  // path or alias
    UnicodeString User, Password, Role;
    UnicodeString CharacterSet;  // a name that CharacterSetNumber knows
    bool Local = false;          // the engine inside this process
    int ConnectTimeout = 10;     // seconds that connecting to a server may take
    int StatementTimeout = 600;  // seconds that one call of a statement, or a commit, may take; 0: any time
    int PageSize = 16384;        // of a new database
    bool ForcedWrites = true;    // of a new database
};

class Attachment : public std::enable_shared_from_this<Attachment> {
  public:
    // EFDError whose sentence names file or server.
    static std::shared_ptr<Attachment> Attach(const AttachSettings& settings);
    // Makes the database first. EFDError also when the file exists.
    static std::shared_ptr<Attachment> Create(const AttachSettings& settings);
    // Undoes an open transaction and detaches.
    ~Attachment();
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;

    Firebird::IAttachment* Handle() const { return FHandle; }
    TextEncoding Encoding() const { return FEncoding; }
    // The connection's character set as the server numbers it.
    unsigned CharacterSet() const { return FCharacterSet; }
    // False once a call found the connection lost.
    bool Usable() const { return FUsable; }
    // The call that found it so.
    CallKind LostIn() const { return FLostIn; }
    // A client call with this connection's encoding; notices a lost connection.
    void Call(CallKind kind, ClientBody body);
    // The same for endings, which must not keep anybody waiting for a server that does not answer: true when
    // `body` ran without an error; nothing is thrown.
    bool End(CallKind kind, ClientBody body) noexcept;

    // The transaction that reads happen in now: the host's, or the long read-only one.
    std::shared_ptr<Transaction> Reading();
    // The host's transaction; null when none is open.
    const std::shared_ptr<Transaction>& Host() const { return FHost; }
    void StartHost();
    // EDatabaseError without one. The transaction stays open when the end fails and the connection is usable.
    void EndHost(bool commit);

    // The statement prepared, taken from those prepared before when it is there and not in use.
    StatementLease Prepare(const UnicodeString& sql);
    // Drops the prepared statements not in use and what is known of tables: before a definition changes.
    // Those in use are not used again.
    void Forget();
    // How often that was.
    int Definitions() const { return FDefinitions; }
    Metadata& Tables();

  private:
    friend class StatementLease;  // gives its statement back
    Attachment(Firebird::IAttachment* handle, const AttachSettings& settings, unsigned set);
    static std::shared_ptr<Attachment> Reach(const AttachSettings& settings, bool create);
    std::chrono::seconds EndingTime() const;
    std::chrono::seconds TimeFor(CallKind kind) const;
    void GiveBack(std::unique_ptr<Statement> statement);

    Firebird::IAttachment* FHandle;
    int FStatementTimeout;
    bool FLocal;
    TextEncoding FEncoding;
    unsigned FCharacterSet;
    bool FUsable = true;
    CallKind FLostIn = CallKind::Attach;
    int FDefinitions = 0;
    std::shared_ptr<Transaction> FRead, FHost;
    std::vector<std::unique_ptr<Statement>> FIdle;  // oldest first
    std::unique_ptr<Metadata> FTables;
};

}  // namespace fichario
