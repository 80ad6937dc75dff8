#include "platform/data/firebird/RecordWriter.h"

#include <algorithm>
#include "platform/data/firebird/CharacterSets.h"
#include "platform/data/firebird/Metadata.h"
#include "platform/data/firebird/Misfits.h"
#include "platform/data/firebird/SqlRunner.h"
#include "platform/data/firebird/WriteErrors.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

const UnicodeString kUndoable = u"SAVEPOINT REGISTRO"_s, kUndo = u"ROLLBACK TO SAVEPOINT REGISTRO"_s,
                    kKeep = u"RELEASE SAVEPOINT REGISTRO ONLY"_s;
const UnicodeString kAnd = u" AND "_s;
const UnicodeString kComma = u", "_s;
constexpr char kNone = 0, kOurs = 1, kServers = 2;  // whose value a column of an insertion gets

}  // namespace

void WriteWork::Bind(const WriteColumn& column, const Variant& value) {
    Values.emplace_back(value, column.Type);
    Places.push_back(&column);
}

// The key as it was.
TStringArray RecordWriter::KeyConditions(WriteWork& work) const {
    TStringArray conditions;
    for (const WriteColumn& column : FColumns) {
        if (!column.Key) continue;
        conditions.push_back(QuoteIdentifier(column.Name) + u" = ?"_s);
        work.Bind(column, column.OldValue);
    }
    if (conditions.empty())
        throw EDatabaseError(u"No key field in table '%1': the record cannot be written"_s.arg(FTable));
    return conditions;
}

// The old values of what is being changed.
TStringArray RecordWriter::OldConditions(WriteWork& work) const {
    TStringArray conditions;
    for (const WriteColumn& column : FColumns) {
        if (!column.Write || column.Key || !CanCompare(column)) continue;
        conditions.push_back(column.Same);
        work.Bind(column, column.OldValue);
    }
    return conditions;
}

void RecordWriter::AddConditions(WriteWork& work) const {
    work.Sql += u" WHERE "_s + Joined(KeyConditions(work), kAnd);
    for (const UnicodeString& condition : OldConditions(work)) work.Sql += kAnd + condition;
}

// The first character of a text that does not reach the column; empty when all do.
UnicodeString RecordWriter::LostOf(const WriteColumn& column, const Variant& value) const {
    if (value.Kind() != vkText) return {};
    return FirstLost(FAttachment.CharacterSet(), column.CharacterSet, value.Text());
}

// An old text that cannot be read, or not be sent over this connection, can still be replaced.
bool RecordWriter::CanCompare(const WriteColumn& column) const {
    if (column.Same.isEmpty() || column.OldValue.IsUnassigned()) return false;
    if (column.OldValue.Kind() == vkBytes) return column.Type == ftBlob;
    if (column.OldValue.Kind() != vkText) return true;
    const bool sent = FAttachment.CharacterSet() == kNoSet ||
                      FirstForeign(FAttachment.Encoding(), column.OldValue.ToText()).isEmpty();
    return sent && LostOf(column, column.OldValue).isEmpty();
}

// What the server would lose or refuse without a name on the way from the connection's set to a column's.
// Within one set all passes, but for the holes of Windows-1252.
void RecordWriter::CheckCharacters(const WriteWork& work) const {
    const unsigned connection = FAttachment.CharacterSet();
    for (size_t i = 0; i < work.Values.size(); ++i) {
        if (work.Places[i]->CharacterSet == connection && connection != kWin1252Set) continue;
        const UnicodeString lost = LostOf(*work.Places[i], work.Values[i].Value());
        if (!lost.isEmpty()) RefuseMisfit({i, lost, 0}, work.Places[i]->Label);
    }
}

// Whether no two records can share the key columns that are here.
bool RecordWriter::KeyIsWhole() const {
    const TStringArray& key = FAttachment.Tables().Table(FTable).Key;
    return !key.empty() && std::all_of(key.begin(), key.end(), [this](const UnicodeString& name) {
        return std::any_of(FColumns.begin(), FColumns.end(),
                           [&](const WriteColumn& column) { return column.Key && column.Name == name; });
    });
}

// Runs a change of one record. When it finds several, even a host's transaction is left as it was.
int64_t RecordWriter::ChangeOne(FunctionRef<int64_t()> run) {
    const bool undoable = FAttachment.Host() && !KeyIsWhole();
    if (undoable) ExecuteSql(FAttachment, kUndoable, {});
    const int64_t changed = run();
    if (undoable) ExecuteSql(FAttachment, changed > 1 ? kUndo : kKeep, {});
    if (changed == 0) TellWhatHappened();
    if (changed > 1) throw EDatabaseError(u"The key fields of '%1' find several records"_s.arg(FTable));
    return changed;
}

// The server judges again what no longer held.
void RecordWriter::TellWhatHappened() const {
    WriteWork work;
    work.Sql = u"SELECT 1"_s;
    for (const UnicodeString& same : OldConditions(work)) work.Sql += u", IIF("_s + same + u", 0, 1)"_s;
    const size_t compared = work.Places.size();
    work.Sql += u" FROM "_s + QuoteIdentifier(FTable) + u" WHERE "_s + Joined(KeyConditions(work), kAnd);
    const RowStore found = ReadRows(FAttachment, work.Sql, work.Values);
    if (found.Count() == 0) throw DeletedByOthers(FColumns);
    TStringArray changed;
    for (size_t i = 0; i < compared; ++i) {
        if (found.Value(0, static_cast<int>(i) + 1).ToInt() != 0) changed.push_back(work.Places[i]->Label);
    }
    throw ChangedByOthers(FColumns, changed);
}

int64_t RecordWriter::Execute(WriteWork& work, RowStore* returned) {
    if (!work.Prepared || !work.Prepared->IsCurrent()) work.Prepared = FAttachment.Prepare(work.Sql);
    Statement& statement = *work.Prepared;
    InputMessage input(FAttachment, statement.Inputs(), work.Values);
    if (const auto& misfit = input.Misfit()) RefuseMisfit(*misfit, work.Places[misfit->Place]->Label);
    if (returned && !statement.Columns().empty()) *returned = RowStore(RowLayout(statement.Columns()));
    CheckCharacters(work);
    WriteScope write(FAttachment);
    const auto run = [&] { return statement.Execute(*write.Get(), input, returned, CallKind::Write); };
    int64_t changed = 0;
    try {
        changed = returned ? run() : ChangeOne(run);
    } catch (const EFDError& error) {
        throw NamingFields(error, FTable, FColumns);
    }
    Commit(write);
    return changed;
}

void RecordWriter::Commit(WriteScope& write) {
    try {
        write.Commit();
    } catch (const EFDError& error) {
        FInDoubt = !error.ConnectionUsable;
        throw;
    }
}

void RecordWriter::Update() {
    WriteWork work;
    TStringArray assignments;
    for (const WriteColumn& column : FColumns) {
        if (!column.Write) continue;
        assignments.push_back(QuoteIdentifier(column.Name) + u" = ?"_s);
        work.Bind(column, column.Value);
    }
    if (assignments.empty()) return;
    work.Sql = u"UPDATE "_s + QuoteIdentifier(FTable) + u" SET "_s + Joined(assignments, kComma);
    AddConditions(work);
    Execute(work);
}

void RecordWriter::Delete() {
    WriteWork work;
    work.Sql = u"DELETE FROM "_s + QuoteIdentifier(FTable);
    AddConditions(work);
    Execute(work);
}

TStringArray RecordWriter::MissingKey() const {
    TStringArray names;
    for (const WriteColumn& column : FColumns) {
        if (column.Key && column.Value.IsNull()) names.push_back(QuoteIdentifier(column.Name));
    }
    return names;
}

// Whose value a column of the insertion gets.
char RecordWriter::NamedBy(const WriteColumn& column) {
    if (column.Key && column.Value.IsNull()) return kServers;
    return column.Write ? kOurs : kNone;
}

// Whether the insertion names the same columns as the one that `insertion` holds, whose values then are this
// one's; otherwise it has to be written anew.
bool RecordWriter::IsSameAs(const Insertion& insertion) const {
    const bool here = insertion.Columns == FColumns.data() && insertion.Named.size() == FColumns.size();
    return here && insertion.Table == FTable &&
           std::equal(FColumns.begin(), FColumns.end(), insertion.Named.begin(),
                      [](const WriteColumn& column, char named) { return NamedBy(column) == named; });
}

void RecordWriter::WriteAnew(Insertion& insertion) const {
    insertion = {};
    insertion.Table = FTable;
    insertion.Columns = FColumns.data();
    for (const WriteColumn& column : FColumns) {
        insertion.Named.push_back(NamedBy(column));
        if (insertion.Named.back() == kOurs) insertion.Work.Bind(column, column.Value);
    }
    insertion.Work.Sql = InsertSql();
}

UnicodeString RecordWriter::InsertSql() const {
    TStringArray names, marks;
    for (const WriteColumn& column : FColumns) {
        if (!column.Write || (column.Key && column.Value.IsNull())) continue;
        names.push_back(QuoteIdentifier(column.Name));
        marks.push_back(u"?"_s);
    }
    UnicodeString sql = u"INSERT INTO "_s + QuoteIdentifier(FTable);
    sql += names.empty() ? u" DEFAULT VALUES"_s
                         : u" ("_s + Joined(names, kComma) + u") VALUES ("_s + Joined(marks, kComma) + u')';
    const TStringArray missing = MissingKey();
    return missing.empty() ? sql : sql + u" RETURNING "_s + Joined(missing, kComma);
}

std::vector<Variant> RecordWriter::Insert() {
    Insertion once;
    return Insert(once);
}

std::vector<Variant> RecordWriter::Insert(Insertion& last) {
    if (!IsSameAs(last)) WriteAnew(last);
    RowStore& returned = last.Returned;
    if (returned.Count() > 0) returned = {};
    try {
        Execute(last.Work, &returned);
    } catch (const EFDError&) {
        if (FInDoubt) FDoubtfulKey = KeyOf(returned);
        throw;
    }
    return returned.Count() == 0 ? std::vector<Variant>() : KeyOf(returned);
}

std::vector<Variant> RecordWriter::KeyOf(const RowStore& returned) const {
    std::vector<Variant> key;
    int next = 0;
    for (const WriteColumn& column : FColumns) {
        if (column.Key)
            key.push_back(column.Value.IsNull() && returned.Count() > 0 ? returned.Value(0, next++)
                                                                        : column.Value);
    }
    return key;
}

}  // namespace fichario
