#include "platform/data/firebird/Statement.h"

#include "platform/data/firebird/Aliases.h"
#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/Describe.h"
#include "platform/data/firebird/FbApi.h"
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/Misfits.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/SqlLexer.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

// The server would take it for the text's end, and a DELETE without its WHERE empties the table.
void RefuseNul(const UnicodeString& sql) {
    if (!sql.contains(QChar(u'\0'))) return;
    SqlLexer lexer(sql);
    for (SqlToken token = lexer.Next(); token.Kind != SqlTokenKind::End; token = lexer.Next()) {
        if (token.IsSymbol(u'\0'))
            throw EDatabaseError(u"The statement has a NUL character at position %1"_s.arg(token.Start + 1));
    }
}

// From a connection without a set the server takes names as UTF-8, and literals as the bytes that they are.
std::optional<QByteArray> EncodeSql(const Attachment& attachment, QStringView sql) {
    if (attachment.CharacterSet() != kNoSet) return EncodeText(attachment.Encoding(), sql);
    QByteArray bytes;
    qsizetype done = 0;
    SqlLexer lexer(sql);
    for (SqlToken token = lexer.Next(); token.Kind != SqlTokenKind::End; token = lexer.Next()) {
        if (token.Kind != SqlTokenKind::Literal) continue;
        const std::optional<QByteArray> literal = EncodeText(attachment.Encoding(), token.Text);
        if (!literal) return std::nullopt;
        bytes += sql.sliced(done, token.Start - done).toUtf8() + *literal;
        done = token.End();
    }
    return bytes + sql.sliced(done).toUtf8();
}

}  // namespace

Statement::Statement(Attachment& attachment, const UnicodeString& sql)
    : FAttachment(attachment), FSql(sql), FDefinitions(attachment.Definitions()) {
    Prepare();
    try {
        Describe();
    } catch (...) {
        FHandle->release();
        throw;
    }
}

void Statement::Prepare() {
    RefuseNul(FSql);
    const std::optional<QByteArray> text = EncodeSql(FAttachment, FSql);
    if (!text) RefuseMisfit({0, FirstForeign(FAttachment.Encoding(), FSql), 0}, {});
    const std::shared_ptr<Transaction> transaction = FAttachment.Reading();
    FAttachment.Call(CallKind::Prepare, [&](Firebird::ThrowStatusWrapper& status) {
        FHandle = FAttachment.Handle()->prepare(
            &status, transaction->Handle(), static_cast<unsigned>(text->size()), text->constData(),
            SQL_DIALECT_V6, Firebird::IStatement::PREPARE_PREFETCH_METADATA);
    });
}

void Statement::Describe() {
    FAttachment.Call(CallKind::Prepare, [&](Firebird::ThrowStatusWrapper& status) {
        FType = FHandle->getType(&status);
        FHasCursor = FHandle->getFlags(&status) & Firebird::IStatement::FLAG_HAS_CURSOR;
        FInputFormat = FHandle->getInputMetadata(&status);
        FRowFormat = FHandle->getOutputMetadata(&status);
        FInputs = ColumnsOf(status, *FInputFormat, FAttachment);
        FColumns = ColumnsOf(status, *FRowFormat, FAttachment);
        FRowBytes = FRowFormat->getMessageLength(&status);
    });
    if (FType >= isc_info_sql_stmt_start_trans && FType <= isc_info_sql_stmt_rollback) {
        throw EDatabaseError(u"Use StartTransaction, Commit and Rollback of the connection"_s);
    }
}

Statement::~Statement() {
    if (FInputFormat) FInputFormat->release();
    if (FRowFormat) FRowFormat->release();
    const bool freed = FAttachment.End(CallKind::Close,
                                       [&](Firebird::ThrowStatusWrapper& status) { FHandle->free(&status); });
    if (!freed) FHandle->release();
}

bool Statement::IsDefinition() const {
    return FType == isc_info_sql_stmt_ddl;
}

void Statement::DescribeAliases() {
    if (FAliases) return;
    FAliases = true;
    FAttachment.Call(CallKind::Prepare,
                     [&](Firebird::ThrowStatusWrapper& status) { ReadAliases(status, *FHandle, FColumns); });
}

int64_t Statement::Execute(Transaction& transaction, InputMessage& input, RowStore* returned, CallKind kind) {
    std::vector<uint8_t> row(FColumns.empty() ? 0 : FRowBytes);
    uint64_t changed = 0;
    input.Build(*this, transaction);
    FAttachment.Call(kind, [&](Firebird::ThrowStatusWrapper& status) {
        FHandle->execute(&status, transaction.Handle(), input.Format(), input.Bytes(),
                         row.empty() ? nullptr : FRowFormat, row.empty() ? nullptr : row.data());
        if (!returned) changed = FHandle->getAffectedRecords(&status);
    });
    if (returned && !row.empty()) returned->Append(row.data());
    return static_cast<int64_t>(changed);
}

StatementLease::StatementLease(std::shared_ptr<Attachment> attachment, std::unique_ptr<Statement> statement)
    : FAttachment(std::move(attachment)), FStatement(std::move(statement)) {}

void StatementLease::End() {
    if (FStatement) FAttachment->GiveBack(std::move(FStatement));
    FAttachment.reset();
}

StatementLease::~StatementLease() {
    End();
}

StatementLease& StatementLease::operator=(StatementLease&& other) noexcept {
    End();
    FAttachment = std::move(other.FAttachment);
    FStatement = std::move(other.FStatement);
    return *this;
}

}  // namespace fichario
