#include "platform/data/Query.h"

#include <algorithm>
#include <limits>
#include <QScopeGuard>
#include <utility>
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/Cursor.h"
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/UpdateLog.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

namespace {

using Use = TFDCustomConnection::Use;

constexpr int kFirstPage = 64;

// Whether a search holds what some column's set lacks: no record can hold it either. Over a connection
// without a set a text that is cast goes as UTF-8.
bool SeeksForeign(const Attachment& attachment, const UnicodeString& sql,
                  const std::vector<InputValue>& values) {
    const unsigned set = attachment.CharacterSet() == kNoSet ? kUtf8Set : attachment.CharacterSet();
    const auto foreign = [&](const UnicodeString& text) { return !FirstDoubtful(set, text).isEmpty(); };
    return foreign(sql) || std::any_of(values.begin(), values.end(), [&](const InputValue& input) {
               return input.Value().Kind() == vkText && foreign(input.Value().Text());
           });
}

}  // namespace

TFDCustomQuery::TFDCustomQuery(TComponent* owner) : TFDRdbmsDataSet(owner) {
    FSQL.OnChange = [this] { SQLChanged(); };
}

TFDCustomQuery::~TFDCustomQuery() {
    ShutDown();
}

// ---- preparing ----

// A handler may keep the dataset open: the text then counts once it is closed.
void TFDCustomQuery::SQLChanged() {
    FTextChanged = true;
    const auto taken = qScopeGuard([this] {
        if (!Active()) TakeText();
    });
    Close();
}

void TFDCustomQuery::TakeText() {
    if (!std::exchange(FTextChanged, false)) return;
    FPrepared.reset();
    FText = FSQL.Text();
    FParams.SetNames(ScanParams(FText).Names);
}

// When it cannot be prepared anew, what is known of the statement before stays: rows of it may be here.
PreparedQuery& TFDCustomQuery::RequirePrepared() const {
    const std::shared_ptr<Attachment>& attachment = RequireConnection().RequireAttachment();
    if (!FPrepared || FPrepared->On() != attachment) {
        auto prepared = std::make_unique<PreparedQuery>(attachment, FText);
        if (FPrepared && FPrepared->IsWide()) prepared->Widen();
        FPrepared = std::move(prepared);
        FColumnsVersion = -1;
        FFits = false;
    }
    return *FPrepared;
}

void TFDCustomQuery::Prepare() {
    RequireConnection().Lasting(Use::Reading, [this] { RequirePrepared(); });
}

UnicodeString TFDCustomQuery::MainTable() const {
    return FPrepared ? FPrepared->Shape().MainTable() : SqlShape(ScanParams(FText).Text).MainTable();
}

TStringArray TFDCustomQuery::ColumnNames() const {
    TStringArray names;
    for (const ColumnInfo& column : FPrepared->Columns()) names.push_back(column.Name);
    return names;
}

void TFDCustomQuery::TakeColumns() {
    FNames = ColumnNames();
    SetColumns(FNames, FPrepared->Describe(UpdateTable()));
}

void TFDCustomQuery::DoDescribe() {
    Prepare();
    TakeColumns();
}

TFDCustomQuery::TGiven TFDCustomQuery::Given() const {
    TGiven given;
    for (int i = 0; i < FParams.Count(); ++i) given.emplace_back(FParams[i]->Value(), FParams[i]->DataType());
    return given;
}

// For each place of the statement.
std::vector<InputValue> TFDCustomQuery::InputsOf(const TGiven& given) const {
    std::vector<InputValue> values;
    for (const int place : FPrepared->Sql().Places) {
        const auto& [value, type] = given[static_cast<size_t>(place)];
        values.emplace_back(value, type);
    }
    return values;
}

// ---- reading ----

// Runs the statement and brings its first rows. False: those were all. A stored character that the
// connection's set lacks fails the row it is in: then all texts come as UTF-8.
bool TFDCustomQuery::OpenRows(std::unique_ptr<RowStore>& rows, std::unique_ptr<Cursor>& cursor, int count,
                              const TGiven& given) {
    FFits = false;
    const std::shared_ptr<Attachment>& attachment = FPrepared->On();
    const std::vector<InputValue> inputs = InputsOf(given);
    const auto read = [&](std::shared_ptr<Transaction> transaction, int wanted) {
        BoundStatement bound = FPrepared->Bind(inputs);
        rows = std::make_unique<RowStore>(FPrepared->Layout());
        if (bound.Input->Misfit()) return;
        cursor = std::make_unique<Cursor>(attachment, std::move(bound.Statement), std::move(transaction),
                                          *bound.Input, *rows, wanted);
    };
    try {
        read(attachment->Reading(), count);
    } catch (const EFDError& error) {
        if (error.Has(kTransliteration) && FPrepared->Widen()) return OpenRows(rows, cursor, count, given);
        if (error.Has(kTransliteration) && SeeksForeign(*attachment, FPrepared->Sql().Text, inputs)) {
            FPrepared->Narrow();
            rows = std::make_unique<RowStore>(FPrepared->Layout());
            cursor.reset();
            return false;
        }
        if (error.Has(kTransliteration))
            throw error.Saying(
                u"Um texto guardado tem um caractere que o resultado da consulta não comporta."_s);
        if (!error.Has(kReadOnlyTransaction)) throw;
        WriteScope write(*attachment);
        read(write.Get(), std::numeric_limits<int>::max());
        write.Commit();
    }
    return cursor && !cursor->AtEnd();
}

// A statement that returns a row without a cursor may write.
bool TFDCustomQuery::DoOpen() {
    RequireNoPending();
    Prepare();
    const Use use = FPrepared->HasCursor() ? Use::Reading : Use::Writing;
    return RequireConnection().Lasting(use, [this] { return OpenOnce(); });
}

bool TFDCustomQuery::OpenOnce() {
    RequirePrepared();
    TGiven given = Given();
    std::unique_ptr<RowStore> rows;
    std::unique_ptr<Cursor> cursor;
    bool more = false;
    if (FPrepared->HasCursor()) {
        more = OpenRows(rows, cursor, kFirstPage, given);
    } else if (!FPrepared->Columns().empty()) {
        rows = std::make_unique<RowStore>();
        ExecuteSql(*FPrepared->On(), FPrepared->Sql().Text, InputsOf(given), rows.get());
    } else {
        throw EDatabaseError(u"The statement returns no rows; use ExecSQL"_s);
    }
    TakeColumns();
    TakeRows(std::move(rows), std::move(cursor));
    FOpenedWith = std::move(given);
    return more;
}

void TFDCustomQuery::TakeRows(std::unique_ptr<RowStore> rows, std::unique_ptr<Cursor> cursor) {
    SetRows(std::move(rows));
    FCursor = std::move(cursor);
    FReadIn = FCursor ? FCursor->InTransaction() : nullptr;
    FReadAgainIn.clear();
}

void TFDCustomQuery::DoClose() {
    TakeText();
    FCursor.reset();
    if (FLog) FLog->Clear();
}

bool TFDCustomQuery::DoFetch(int rows) {
    try {
        FCursor->Fetch(Rows(), rows);
    } catch (const EFDError& error) {
        if (State() != dsBrowse || UpdatesPending() || !CanBeginAgain(error)) throw;
        return FetchAgain(rows);
    }
    return !FCursor->AtEnd();
}

// Whether the rows can be had in another way than by the cursor that failed.
bool TFDCustomQuery::CanBeginAgain(const EFDError& error) {
    if (error.Has(kTransliteration)) return FPrepared && (FPrepared->IsWide() || FPrepared->Widen());
    if (!RequireConnection().Revive(error, Use::Fetching, FCursor->On())) return false;
    RequirePrepared();
    return true;
}

// The rows that are here come again: they must all be of one layout, and of one reading.
bool TFDCustomQuery::FetchAgain(int rows) {
    const int wanted = rows > std::numeric_limits<int>::max() - RowCount() ? rows : RowCount() + rows;
    std::unique_ptr<RowStore> wide;
    std::unique_ptr<Cursor> cursor;
    const bool more = OpenRows(wide, cursor, wanted, FOpenedWith);
    if (ColumnNames() != FNames)
        throw EDatabaseError(u"The columns of the statement have changed; refresh the dataset"_s);
    TakeRows(std::move(wide), std::move(cursor));
    return more;
}

// Some statements cannot stand in a FROM.
int TFDCustomQuery::DoCount() {
    try {
        return RequireConnection().Lasting(Use::Reading, [this] { return CountOnServer(); });
    } catch (const EFDError& error) {
        if (!error.Has(kSqlError)) throw;
    }
    FetchAll();
    return RowCount() - (State() == dsInsert ? 1 : 0);
}

int TFDCustomQuery::CountOnServer() {
    const PreparedQuery& prepared = RequirePrepared();
    const RowStore count =
        ReadRows(*prepared.On(), prepared.Shape().CountText(FieldCount()), InputsOf(FOpenedWith));
    return count.Count() > 0 ? count.Value(0, 0).ToInt() : 0;
}

int TFDCustomQuery::ExecSQL() {
    return RequireConnection().Lasting(Use::Writing, [this] {
        const PreparedQuery& prepared = RequirePrepared();
        if (prepared.HasCursor()) throw EDatabaseError(u"The statement returns rows; use Open"_s);
        const UnicodeString sql = prepared.Sql().Text;
        const TGiven given = Given();
        const std::vector<InputValue> values = InputsOf(given);
        const std::shared_ptr<Attachment> attachment = prepared.On();
        FPrepared.reset();
        return static_cast<int>(ExecuteSql(*attachment, sql, values));
    });
}

void TFDCustomQuery::ConnectionClosing() {
    Close();
    FPrepared.reset();
}

// A failure here is told by the fetch that will miss the rows.
void TFDCustomQuery::TransactionEnding() {
    if (!FCursor || FCursor->AtEnd() || FCursor->InTransaction() != FPrepared->On()->Host()) return;
    try {
        FetchAll();
    } catch (const EFDError&) {
        return;
    }
}
