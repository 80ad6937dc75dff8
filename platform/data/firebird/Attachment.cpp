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
#include "platform/data/firebird/Statement.h"
#include "platform/data/firebird/TcpProbe.h"
#include "platform/data/firebird/Transaction.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

constexpr size_t kIdleStatements = 64;
constexpr int kEndingSeconds = 10;

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
    if (!settings.Role.isEmpty()) options.Text(isc_dpb_sql_role_name, settings.Role);
    if (settings.Local) options.Text(isc_dpb_config, u"Providers=Engine12"_s);
    if (!settings.Local) options.Number(isc_dpb_connect_timeout, settings.ConnectTimeout);
}

void FillNew(AttachOptions& options, const AttachSettings& settings) {
    options.Number(isc_dpb_sql_dialect, SQL_DIALECT_V6);
    options.Number(isc_dpb_page_size, settings.PageSize);
    options.Number(isc_dpb_force_write, settings.ForcedWrites ? 1 : 0);
    options.Text(isc_dpb_set_db_charset, settings.CharacterSet);
}

UnicodeString ServerOf(const AttachSettings& settings) {
    return settings.Server.isEmpty() ? u"localhost"_s : settings.Server;
}

UnicodeString PlaceOf(const AttachSettings& settings) {
    const UnicodeString name = NameForServer(settings.Database);
    return settings.Local ? name : ServerOf(settings) + u':' + name;
}

// The client library itself has no limit for reaching a host.
void RequireAnswer(const AttachSettings& settings) {
    if (settings.Local || AnswersWithin(ServerOf(settings), settings.ConnectTimeout)) return;
    throw AttachErrorOf(ErrorOfCodes({isc_network_error, isc_net_connect_err}), settings, false);
}

// A program started later must not keep the connection, and with it locks, alive.
void KeepFromOtherPrograms() {
    constexpr unsigned kFirstOwnFile = 3, kCloseOnExec = 4;
    syscall(SYS_close_range, kFirstOwnFile, ~0U, kCloseOnExec);
}

}  // namespace

std::shared_ptr<Attachment> Attachment::Reach(const AttachSettings& settings, bool create) {
    RequireAnswer(settings);
    Firebird::IProvider* provider = ClientLibrary().getDispatcher();
    Firebird::IAttachment* handle = nullptr;
    const QByteArray place = PlaceOf(settings).toUtf8();
    const SignalKeeper signals;
    try {
        ClientCall(CallKind::Attach, EncodingOfName(settings.CharacterSet),
                   [&](Firebird::ThrowStatusWrapper& status) {
                       AttachOptions options(status);
                       Fill(options, settings);
                       if (create) FillNew(options, settings);
                       handle = create ? provider->createDatabase(&status, place.constData(),
                                                                  options.Length(), options.Bytes())
                                       : provider->attachDatabase(&status, place.constData(),
                                                                  options.Length(), options.Bytes());
                   });
    } catch (const EFDError& error) {
        provider->release();
        throw AttachErrorOf(error, settings, create);
    }
    provider->release();
    KeepFromOtherPrograms();
    return std::shared_ptr<Attachment>(new Attachment(handle, settings));
}

std::shared_ptr<Attachment> Attachment::Attach(const AttachSettings& settings) {
    return Reach(settings, false);
}

std::shared_ptr<Attachment> Attachment::Create(const AttachSettings& settings) {
    return Reach(settings, true);
}

Attachment::Attachment(Firebird::IAttachment* handle, const AttachSettings& settings)
    : FHandle(handle),
      FStatementTimeout(settings.StatementTimeout),
      FLocal(settings.Local),
      FEncoding(EncodingOfName(settings.CharacterSet)),
      FCharacterSet(CharacterSetNumber(settings.CharacterSet)) {}

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
    return QuietClientCall(kind, body, {FHandle, FLocal ? 0 : kEndingSeconds, FLocal});
}

void Attachment::Call(CallKind kind, ClientBody body) {
    try {
        ClientCall(kind, FEncoding, body, {FHandle, FStatementTimeout, FLocal});
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
