#include "platform/data/firebird/RecordWriter.h"

#include "platform/data/firebird/Misfits.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

const UnicodeString kAnd = u" AND "_s;
const UnicodeString kComma = u", "_s;

}  // namespace

void RecordWriter::Work::Bind(const WriteColumn& column, const Variant& value) {
    Values.push_back({value, column.Type});
    Places.push_back(&column);
}

// The key as it was, and the old values of what is being changed.
void RecordWriter::AddConditions(Work& work) const {
    TStringArray conditions;
    for (const WriteColumn& column : FColumns) {
        if (!column.Key) continue;
        conditions.push_back(QuoteIdentifier(column.Name) + u" = ?"_s);
        work.Bind(column, column.OldValue);
    }
    if (conditions.empty())
        throw EDatabaseError(u"No key field in table '%1': the record cannot be written"_s.arg(FTable));
    for (const WriteColumn& column : FColumns) {
        if (!column.Write || !column.Compare || column.Key) continue;
        conditions.push_back(QuoteIdentifier(column.Name) + u" IS NOT DISTINCT FROM ?"_s);
        work.Bind(column, column.OldValue);
    }
    work.Sql += u" WHERE "_s + Joined(conditions, kAnd);
}

int64_t RecordWriter::Execute(const Work& work, RowStore* returned) {
    StatementLease statement = FAttachment.Prepare(work.Sql);
    InputMessage input(FAttachment, statement->Inputs(), work.Values);
    if (const auto& misfit = input.Misfit()) RefuseMisfit(*misfit, work.Places[misfit->Place]->Label);
    if (returned) *returned = RowStore(RowLayout(statement->Columns()));
    WriteScope write(FAttachment);
    const int64_t changed = statement->Execute(*write.Get(), input, returned);
    if (!returned && changed == 0) {
        throw EDatabaseError(u"Este registro foi alterado ou excluído por outro usuário."_s);
    }
    if (!returned && changed > 1)
        throw EDatabaseError(u"The key fields of '%1' find several records"_s.arg(FTable));
    write.Commit();
    return changed;
}

void RecordWriter::Update() {
    Work work;
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
    Work work;
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

std::vector<Variant> RecordWriter::Insert() {
    Work work;
    TStringArray names, marks;
    for (const WriteColumn& column : FColumns) {
        const bool leftToServer = column.Key && column.Value.IsNull();
        if (!column.Write || leftToServer) continue;
        names.push_back(QuoteIdentifier(column.Name));
        marks.push_back(u"?"_s);
        work.Bind(column, column.Value);
    }
    work.Sql = u"INSERT INTO "_s + QuoteIdentifier(FTable);
    work.Sql += names.empty()
                    ? u" DEFAULT VALUES"_s
                    : u" ("_s + Joined(names, kComma) + u") VALUES ("_s + Joined(marks, kComma) + u')';
    const TStringArray missing = MissingKey();
    if (!missing.empty()) work.Sql += u" RETURNING "_s + Joined(missing, kComma);
    RowStore returned;
    Execute(work, &returned);

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
