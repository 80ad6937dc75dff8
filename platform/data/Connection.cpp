#include "platform/data/Connection.h"

#include "platform/data/firebird/Blob.h"
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/FbErrors.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/ParamScanner.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/SqlLexer.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

namespace {

AttachSettings SettingsOf(const TStrings& params) {
    const auto value = [&](QStringView name) { return params.Values(name).trimmed(); };
    const auto isSaid = [&](QStringView name, QStringView text) {
        return value(name).compare(text, Qt::CaseInsensitive) == 0;
    };
    AttachSettings settings;
    settings.Server = value(u"Server");
    settings.Database = params.Values(u"Database");
    settings.User = value(u"User_Name");
    settings.Password = params.Values(u"Password");
    settings.Role = value(u"RoleName");
    settings.CharacterSet = value(u"CharacterSet");
    if (settings.CharacterSet.isEmpty()) settings.CharacterSet = u"ISO8859_1"_s;
    settings.Local =
        isSaid(u"Protocol", u"Local") || (value(u"Protocol").isEmpty() && settings.Server.isEmpty());
    if (settings.Server.isEmpty()) settings.Server = u"localhost"_s;
    if (const int size = value(u"PageSize").toInt()) settings.PageSize = size;
    if (const int seconds = value(u"ConnectTimeout").toInt(); seconds > 0) settings.ConnectTimeout = seconds;
    bool isNumber = false;
    if (const int seconds = value(u"StatementTimeout").toInt(&isNumber); isNumber && seconds >= 0)
        settings.StatementTimeout = seconds;
    settings.ForcedWrites = !isSaid(u"ForcedWrites", u"False");
    return settings;
}

// The server takes a role that does not exist, or was not granted, for none and says nothing.
void CheckRole(Attachment& attachment, const AttachSettings& settings) {
    if (settings.Role.isEmpty()) return;
    const RowStore rows = ReadRows(attachment, u"SELECT TRIM(CURRENT_ROLE) FROM RDB$DATABASE"_s, {});
    const UnicodeString given = rows.Value(0, 0).ToText();
    const bool exactly = settings.Role.startsWith(u'"');
    const UnicodeString role = exactly ? NameOf({SqlTokenKind::QuotedName, 0, settings.Role}) : settings.Role;
    if (given.compare(role, exactly ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0) return;
    EFDError error = ErrorOfCodes({kInvalidRole})
                         .Saying(u"O papel \"%1\" não existe ou não foi concedido ao usuário %2."_s.arg(
                             role, settings.User));
    error.ConnectionUsable = false;
    throw error;
}

// Values in the order of the names' first appearance, for each place of the text.
std::vector<InputValue> InputsFor(const ScannedSql& sql, const std::vector<Variant>& values) {
    if (values.size() != sql.Names.size()) {
        throw EDatabaseError(u"The statement has %1 parameters, %2 values were given"_s.arg(sql.Names.size())
                                 .arg(values.size()));
    }
    std::vector<InputValue> inputs;
    for (const int place : sql.Places) inputs.emplace_back(values[static_cast<size_t>(place)]);
    return inputs;
}

// The first column of the first row, null without one.
Variant FirstValue(Attachment& attachment, const RowStore& rows) {
    if (rows.Count() == 0) return Variant::Null();
    const Variant value = rows.Value(0, 0);
    const TFieldType type = rows.Layout().Type(0);
    if (value.IsNull() || (type != ftMemo && type != ftBlob)) return value;
    const bool wide = rows.Layout().Encoding(0) == TextEncoding::Utf8Signs;
    const QByteArray bytes = ReadBlob(attachment, *attachment.Reading(), value.ToInt64(), wide);
    if (type == ftBlob) return bytes;
    const std::optional<UnicodeString> text = DecodeExact(rows.Layout().Encoding(0), bytes);
    if (!text) throw EUnreadableText();
    return *text;
}

Variant ReadScalar(std::shared_ptr<Attachment> attachment, const UnicodeString& sql,
                   const std::vector<Variant>& values) {
    const ScannedSql scanned = ScanParams(sql);
    return FirstValue(*attachment, ReadWhole(attachment, scanned.Text, InputsFor(scanned, values), 1));
}

// The first exception tells the cause.
void Undo(Attachment& attachment) {
    try {
        if (attachment.Host()) attachment.EndHost(false);
    } catch (const EFDError&) {
    }
}

// Does `work` in the host's transaction or in one of its own.
template <class Work>
Variant InTransactionOf(Attachment& attachment, Work work) {
    if (attachment.Host()) return work();
    attachment.StartHost();
    try {
        const Variant value = work();
        attachment.EndHost(true);
        return value;
    } catch (const EFDError& error) {
        Undo(attachment);
        if (attachment.LostIn() == CallKind::Commit) throw Undecided(error);
        throw;
    } catch (...) {
        Undo(attachment);
        throw;
    }
}

// What a statement that is no SELECT gives: one that gives rows one after the other (EXECUTE BLOCK) is read.
// A blob lives as long as the transaction.
Variant ExecuteScalar(std::shared_ptr<Attachment> attachment, const UnicodeString& sql,
                      const std::vector<Variant>& values) {
    const ScannedSql scanned = ScanParams(sql);
    if (attachment->Prepare(scanned.Text)->HasCursor()) return ReadScalar(attachment, sql, values);
    const std::vector<InputValue> inputs = InputsFor(scanned, values);
    return InTransactionOf(*attachment, [&] {
        RowStore returned;
        ExecuteSql(*attachment, scanned.Text, inputs, &returned);
        return FirstValue(*attachment, returned);
    });
}

}  // namespace

TFDCustomConnection::TFDCustomConnection(TComponent* owner) : TComponent(owner) {}

TFDCustomConnection::~TFDCustomConnection() {
    FreeOwned();
    Close();
    for (TFDDataSet* dataSet : FDataSets) dataSet->FConnection = nullptr;
}

// ---- opening and closing ----

bool TFDCustomConnection::Connected() const {
    return FAttachment != nullptr;
}

void TFDCustomConnection::SetConnected(bool connected) {
    if (connected) {
        RequireAttachment();
    } else if (FAttachment) {
        CloseDataSets();
        FAttachment.reset();
    }
}

void TFDCustomConnection::CloseDataSets() {
    const std::vector<TFDDataSet*> dataSets = FDataSets;
    for (TFDDataSet* dataSet : dataSets) dataSet->ConnectionClosing();
}

// A lost connection is replaced, but for the one that a host's transaction was lost with: the host must hear
// of it and roll back.
const std::shared_ptr<Attachment>& TFDCustomConnection::RequireAttachment() {
    if (FAttachment && !FAttachment->Usable()) {
        if (InTransaction()) throw ErrorOfCodes({kConnectionLost});
        FAttachment.reset();
        if (OnLost) OnLost(this);
    }
    if (!FAttachment) {
        const AttachSettings settings = SettingsOf(FParams);
        const std::shared_ptr<Attachment> attachment = Attachment::Attach(settings);
        CheckRole(*attachment, settings);
        FAttachment = attachment;
    }
    return FAttachment;
}

bool TFDCustomConnection::Revive(const EFDError& error, Use use, const std::shared_ptr<Attachment>& used) {
    if (error.ConnectionUsable || error.BrokenOff || !used) return false;
    if (used == FAttachment && InTransaction()) return false;
    const CallKind lost = used->LostIn();
    if (use == Use::Reading && lost == CallKind::Commit) return false;
    const bool nothingWritten = lost == CallKind::Start || lost == CallKind::Prepare;
    if (use == Use::Writing && (used != FAttachment || !nothingWritten)) return false;
    try {
        RequireAttachment();
        return true;
    } catch (const EFDError&) {
        return false;  // the first error says what happened
    }
}

void TFDCustomConnection::CreateDatabase() {
    Close();
    FAttachment = Attachment::Create(SettingsOf(FParams));
}

// ---- transactions ----

bool TFDCustomConnection::InTransaction() const {
    return FAttachment && FAttachment->Host();
}

void TFDCustomConnection::StartTransaction() {
    Lasting(Use::Writing, [&] { RequireAttachment()->StartHost(); });
    ++FTransactions;
}

void TFDCustomConnection::Commit() {
    try {
        EndTransaction(true);
    } catch (const EFDError& error) {
        if (FAttachment->LostIn() != CallKind::Commit) throw;
        throw Undecided(error);
    }
}

void TFDCustomConnection::Rollback() {
    EndTransaction(false);
}

void TFDCustomConnection::EndTransaction(bool commit) {
    if (!InTransaction()) throw EDatabaseError(u"No transaction is active"_s);
    const std::vector<TFDDataSet*> dataSets = FDataSets;
    for (TFDDataSet* dataSet : dataSets) dataSet->TransactionEnding();
    FAttachment->EndHost(commit);
    if (commit) return;
    for (TFDDataSet* dataSet : dataSets) dataSet->TransactionUndone();
}

// ---- statements ----

int TFDCustomConnection::ExecSQL(const UnicodeString& sql, const std::vector<Variant>& values) {
    const ScannedSql scanned = ScanParams(sql);
    const std::vector<InputValue> inputs = InputsFor(scanned, values);
    return Lasting(Use::Writing,
                   [&] { return static_cast<int>(ExecuteSql(*RequireAttachment(), scanned.Text, inputs)); });
}

Variant TFDCustomConnection::ExecSQLScalar(const UnicodeString& sql, const std::vector<Variant>& values) {
    const bool reads = SqlShape(ScanParams(sql).Text).IsSelect();
    return Lasting(reads ? Use::Reading : Use::Writing,
                   [&] { return (reads ? ReadScalar : ExecuteScalar)(RequireAttachment(), sql, values); });
}
