#include "platform/data/firebird/Attachment.h"

#include <sys/syscall.h>
#include <unistd.h>
#include <algorithm>
#include "platform/data/firebird/AttachErrors.h"
#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/ClientLibrary.h"
#include "platform/data/firebird/DatabaseName.h"
#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/FbErrors.h"
#include "platform/data/firebird/Metadata.h"
#include "platform/data/firebird/NewConnections.h"
#include "platform/data/firebird/Statement.h"
#include "platform/data/firebird/TcpProbe.h"
#include "platform/data/firebird/Transaction.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace fichario {

namespace {

constexpr size_t kIdleStatements = 64;
constexpr std::chrono::seconds kEnding(10);
constexpr int64_t kUsualPort = 3050;

// The list of options of an attach, as the client library builds it.
class AttachOptions {
  public:
    explicit AttachOptions(Firebird::ThrowStatusWrapper& status)
        : FStatus(status),
          FBuilder(ClientLibrary().getUtilInterface()->getXpbBuilder(&status, Firebird::IXpbBuilder::DPB,
                                                                     nullptr, 0)) {
        FBuilder->insertTag(&FStatus, isc_dpb_utf8_filename);
    }
    ~AttachOptions() { FBuilder->dispose(); }
    AttachOptions(const AttachOptions&) = delete;
    AttachOptions& operator=(const AttachOptions&) = delete;

    void Text(unsigned char tag, const UnicodeString& text) {
        FBuilder->insertString(&FStatus, tag, text.toUtf8().constData());
    }
    void Number(unsigned char tag, int number) { FBuilder->insertInt(&FStatus, tag, number); }
    unsigned Length() { return FBuilder->getBufferLength(&FStatus); }
    const unsigned char* Bytes() { return FBuilder->getBuffer(&FStatus); }

  private:
    Firebird::ThrowStatusWrapper& FStatus;
    Firebird::IXpbBuilder* FBuilder;
};

// User and password always go along: absent, the client would take them from the environment.
void Fill(AttachOptions& options, const AttachSettings& settings) {
    options.Text(isc_dpb_user_name, settings.User);
    options.Text(isc_dpb_password, settings.Password);
    options.Text(isc_dpb_lc_ctype, settings.CharacterSet);
    options.Number(isc_dpb_sql_dialect, SQL_DIALECT_V6);  // only so are quotes around the role understood
    if (!settings.Role.isEmpty()) options.Text(isc_dpb_sql_role_name, settings.Role);
    if (settings.Local) options.Text(isc_dpb_config, u"Providers=Engine12"_s);
    if (!settings.Local) options.Number(isc_dpb_connect_timeout, settings.ConnectTimeout);
}

void FillNew(AttachOptions& options, const AttachSettings& settings) {
    options.Number(isc_dpb_page_size, settings.PageSize);
    options.Number(isc_dpb_force_write, settings.ForcedWrites ? 1 : 0);
    options.Text(isc_dpb_set_db_charset, settings.CharacterSet);
}

// With the port that the client library takes where none is named.
UnicodeString WithPort(const UnicodeString& server) {
    if (!server.section(u'/', 1).isEmpty()) return server;
    Firebird::IFirebirdConf* known = ClientLibrary().getConfigManager()->getFirebirdConf();
    const int64_t port = known->asInteger(known->getKey("RemoteServicePort"));
    known->release();
    return server.section(u'/', 0, 0) + u'/' + QString::number(port > 0 ? port : kUsualPort);
}

// The address that a server answers on; empty for the engine in this process. EFDError.
UnicodeString AddressOf(const AttachSettings& settings, Deadline end) {
    if (settings.Local) return {};
    const UnicodeString server = WithPort(settings.Server);
    UnicodeString address;
    ClientCall(CallKind::Attach,
               [&](Firebird::ThrowStatusWrapper&) { address = AddressThatAnswers(server, end); });
    if (address.isEmpty()) throw ErrorOfCodes({isc_network_error, isc_net_connect_err});
    return address;
}

unsigned KnownSet(const AttachSettings& settings) {
    if (const std::optional<unsigned> set = CharacterSetNumber(settings.CharacterSet)) return *set;
    throw EDatabaseError(
        u"O conjunto de caracteres \"%1\" não é atendido. Use ISO8859_1, WIN1252, UTF8 ou NONE."_s.arg(
            settings.CharacterSet));
}

// EFDError.
Firebird::IAttachment* HandleOf(const AttachSettings& settings, bool create) {
    const Deadline end = Deadline::clock::now() + std::chrono::seconds(settings.ConnectTimeout);
    const UnicodeString address = AddressOf(settings, end), name = NameForServer(settings.Database);
    const QByteArray place = (settings.Local ? name : address + u':' + name).toUtf8();
    const NewConnections connections(address);
    const std::shared_ptr<Firebird::IProvider> provider(
        ClientLibrary().getDispatcher(), [](Firebird::IProvider* dispatcher) { dispatcher->release(); });
    Firebird::IAttachment* handle = nullptr;
    const SignalKeeper signals;
    ClientCall(CallKind::Attach,
               [&](Firebird::ThrowStatusWrapper& status) {
                   AttachOptions options(status);
                   Fill(options, settings);
                   if (create) FillNew(options, settings);
                   handle = create ? provider->createDatabase(&status, place.constData(), options.Length(),
                                                              options.Bytes())
                                   : provider->attachDatabase(&status, place.constData(), options.Length(),
                                                              options.Bytes());
               },
               {.Time = settings.Local ? 0ms : LeftUntil(end), .Connections = &connections});
    return handle;
}

// A program started later must not keep the connection, and with it locks, alive.
void KeepFromOtherPrograms() {
    constexpr unsigned kFirstOwnFile = 3, kCloseOnExec = 4;
    syscall(SYS_close_range, kFirstOwnFile, ~0U, kCloseOnExec);
}

}  // namespace

std::shared_ptr<Attachment> Attachment::Reach(const AttachSettings& settings, bool create) {
    const unsigned set = KnownSet(settings);
    try {
        Firebird::IAttachment* handle = HandleOf(settings, create);
        KeepFromOtherPrograms();
        return std::shared_ptr<Attachment>(new Attachment(handle, settings, set));
    } catch (const EFDError& error) {
        throw AttachErrorOf(error, settings, create);
    }
}

std::shared_ptr<Attachment> Attachment::Attach(const AttachSettings& settings) {
    return Reach(settings, false);
}

std::shared_ptr<Attachment> Attachment::Create(const AttachSettings& settings) {
    return Reach(settings, true);
}

Attachment::Attachment(Firebird::IAttachment* handle, const AttachSettings& settings, unsigned set)
    : FHandle(handle),
      FStatementTimeout(settings.StatementTimeout),
      FLocal(settings.Local),
      FEncoding(EncodingOf(set)),
      FCharacterSet(set) {}

Attachment::~Attachment() {
    FIdle.clear();
    FHost.reset();
    FRead.reset();
    // The wait may want to break the detachment off just as it ends.
    FHandle->addRef();
    const bool ended =
        End(CallKind::Detach, [&](Firebird::ThrowStatusWrapper& status) { FHandle->detach(&status); });
    FHandle->release();
    if (!ended) FHandle->release();
}

bool Attachment::End(CallKind kind, ClientBody body) noexcept {
    // The engine in this process always answers: a long rollback or flush is its work.
    return QuietClientCall(kind, body, {FHandle, EndingTime(), FLocal});
}

std::chrono::seconds Attachment::EndingTime() const {
    return FLocal ? 0s : kEnding;
}

std::chrono::seconds Attachment::TimeFor(CallKind kind) const {
    return kind == CallKind::Rollback ? EndingTime() : std::chrono::seconds(FStatementTimeout);
}

void Attachment::Call(CallKind kind, ClientBody body) {
    try {
        ClientCall(kind, body, {FHandle, TimeFor(kind), FLocal});
    } catch (const EFDError& error) {
        if (FUsable && !error.ConnectionUsable) FLostIn = kind;
        FUsable = FUsable && error.ConnectionUsable;
        throw;
    }
}

std::shared_ptr<Transaction> Attachment::Reading() {
    if (FHost) return FHost;
    if (!FRead) FRead = std::make_shared<Transaction>(*this, Transaction::Mode::Read);
    return FRead;
}

void Attachment::StartHost() {
    if (FHost) throw EDatabaseError(u"A transaction is already active"_s);
    FHost = std::make_shared<Transaction>(*this, Transaction::Mode::Write);
}

void Attachment::EndHost(bool commit) {
    if (!FHost) throw EDatabaseError(u"No transaction is active"_s);
    if (!FUsable && !commit) return FHost.reset();  // the server has undone it
    try {
        commit ? FHost->Commit() : FHost->Rollback();
    } catch (...) {
        if (!FUsable) FHost.reset();
        throw;
    }
    FHost.reset();
}

StatementLease Attachment::Prepare(const UnicodeString& sql) {
    const auto same = [&](const auto& statement) { return statement->Sql() == sql; };
    // The latest first: what is repeated is found at once.
    const auto found = std::find_if(FIdle.rbegin(), FIdle.rend(), same);
    std::unique_ptr<Statement> statement;
    if (found != FIdle.rend()) {
        statement = std::move(*found);
        FIdle.erase(std::next(found).base());
    } else {
        statement = std::make_unique<Statement>(*this, sql);
    }
    return StatementLease(shared_from_this(), std::move(statement));
}

void Attachment::GiveBack(std::unique_ptr<Statement> statement) {
    if (!FUsable || !statement->IsCurrent()) return;
    const auto same = [&](const auto& idle) { return idle->Sql() == statement->Sql(); };
    if (std::any_of(FIdle.begin(), FIdle.end(), same)) return;
    if (FIdle.size() >= kIdleStatements) FIdle.erase(FIdle.begin());
    FIdle.push_back(std::move(statement));
}

void Attachment::Forget() {
    ++FDefinitions;
    FIdle.clear();
    FTables.reset();
}

Metadata& Attachment::Tables() {
    if (!FTables) FTables = std::make_unique<Metadata>(*this);
    return *FTables;
}

}  // namespace fichario
