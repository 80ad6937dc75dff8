#include "platform/data/Query.h"

#include <limits>
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/Blob.h"
#include "platform/data/firebird/Cursor.h"
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/PreparedQuery.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

namespace {

constexpr int kFirstPage = 64;

}  // namespace

TFDCustomQuery::TFDCustomQuery(TComponent* owner) : TFDRdbmsDataSet(owner) {
    FSQL.OnChange = [this] { SQLChanged(); };
}

TFDCustomQuery::~TFDCustomQuery() {
    ShutDown();
}

// ---- preparing ----

void TFDCustomQuery::SQLChanged() {
    Close();
    FPrepared.reset();
    FParams.SetNames(ScanParams(FSQL.Text()).Names);
}

PreparedQuery& TFDCustomQuery::RequirePrepared() {
    const std::shared_ptr<Attachment> attachment = RequireConnection().RequireAttachment();
    if (!FPrepared || FPrepared->On() != attachment) {
        FPrepared.reset();
        FPrepared = std::make_unique<PreparedQuery>(attachment, FSQL.Text());
    }
    return *FPrepared;
}

void TFDCustomQuery::Prepare() {
    RequirePrepared();
}

UnicodeString TFDCustomQuery::MainTable() const {
    return FPrepared ? FPrepared->Shape().MainTable() : SqlShape(ScanParams(FSQL.Text()).Text).MainTable();
}

void TFDCustomQuery::TakeColumns() {
    TStringArray names;
    for (const ColumnInfo& column : FPrepared->Columns()) names.push_back(column.Name);
    SetColumns(names, FPrepared->Describe(UpdateTable()));
}

void TFDCustomQuery::DoDescribe() {
    RequirePrepared();
    TakeColumns();
}

std::vector<InputValue> TFDCustomQuery::Inputs() const {
    std::vector<InputValue> values;
    for (const int place : FPrepared->Sql().Places)
        values.push_back({FParams[place]->Value(), FParams[place]->DataType()});
    return values;
}

// ---- reading ----

// Runs the statement and brings its first rows. False: those were all.
bool TFDCustomQuery::OpenRows(std::unique_ptr<RowStore>& rows, std::unique_ptr<Cursor>& cursor) {
    const std::shared_ptr<Attachment>& attachment = FPrepared->On();
    const auto read = [&](std::shared_ptr<Transaction> transaction, int count) {
        StatementLease statement = FPrepared->Take();
        rows = std::make_unique<RowStore>(RowLayout(FPrepared->Columns()));
        InputMessage input(*attachment, FPrepared->Inputs(), Inputs());
        if (input.Misfit()) return;
        cursor = std::make_unique<Cursor>(attachment, std::move(statement), std::move(transaction), input);
        cursor->Fetch(*rows, count);
    };
    try {
        read(attachment->Reading(), kFirstPage);
    } catch (const EFDError& error) {
        if (!error.Has(kReadOnlyTransaction)) throw;
        WriteScope write(*attachment);
        read(write.Get(), std::numeric_limits<int>::max());
        write.Commit();
    }
    return cursor && !cursor->AtEnd();
}

bool TFDCustomQuery::DoOpen() {
    RequirePrepared();
    std::unique_ptr<RowStore> rows;
    std::unique_ptr<Cursor> cursor;
    bool more = false;
    if (FPrepared->HasCursor()) {
        more = OpenRows(rows, cursor);
    } else if (!FPrepared->Columns().empty()) {
        rows = std::make_unique<RowStore>();
        ExecuteSql(*FPrepared->On(), FPrepared->Sql().Text, Inputs(), rows.get());
    } else {
        throw EDatabaseError(u"The statement returns no rows; use ExecSQL"_s);
    }
    TakeColumns();
    SetRows(std::move(rows));
    FCursor = std::move(cursor);
    return more;
}

void TFDCustomQuery::DoClose() {
    FCursor.reset();
}

bool TFDCustomQuery::DoFetch(int rows) {
    FCursor->Fetch(Rows(), rows);
    return !FCursor->AtEnd();
}

int TFDCustomQuery::DoCount() {
    const PreparedQuery& prepared = RequirePrepared();
    const RowStore count = ReadRows(*prepared.On(), prepared.Shape().CountText(FieldCount()), Inputs());
    return count.Count() > 0 ? count.Value(0, 0).ToInt() : 0;
}

QByteArray TFDCustomQuery::DoReadBlob(int64_t id) const {
    const std::shared_ptr<Attachment> attachment = RequireConnection().RequireAttachment();
    return ReadBlob(*attachment, *attachment->Reading(), id);
}

int TFDCustomQuery::ExecSQL() {
    const PreparedQuery& prepared = RequirePrepared();
    if (prepared.HasCursor()) throw EDatabaseError(u"The statement returns rows; use Open"_s);
    const UnicodeString sql = prepared.Sql().Text;
    const std::vector<InputValue> values = Inputs();
    const std::shared_ptr<Attachment> attachment = prepared.On();
    FPrepared.reset();
    return static_cast<int>(ExecuteSql(*attachment, sql, values));
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
