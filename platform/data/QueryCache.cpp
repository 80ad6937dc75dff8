// A query's records kept back until they are written together.
#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RecordWriter.h"
#include "platform/data/PreparedQuery.h"
#include "platform/data/Query.h"
#include "platform/data/UpdateLog.h"

using namespace Qt::Literals::StringLiterals;
using namespace fichario;

void TFDCustomQuery::SetCachedUpdates(bool cached) {
    if (cached == CachedUpdates()) return;
    if (Active()) throw EDatabaseError(u"Cannot perform this operation on an open dataset"_s);
    FLog = cached ? std::make_unique<UpdateLog>() : nullptr;
}

bool TFDCustomQuery::UpdatesPending() const {
    return FLog && !FLog->Empty();
}

void TFDCustomQuery::RequireNoPending() const {
    if (UpdatesPending()) throw EDatabaseError(u"The dataset has updates that are not applied"_s);
}

void TFDCustomQuery::CommitUpdates() {
    if (FLog) FLog->TakeStored();
}

void TFDCustomQuery::CancelUpdates() {
    Close();
    Open();
}

void TFDCustomQuery::TransactionUndone() {
    if (AppliedIn(Connection()->FTransactions)) FLog->ForgetApplied();
}

std::vector<Variant> TFDCustomQuery::ValuesOf(int row) const {
    std::vector<Variant> values;
    for (int i = 0; i < FieldCount(); ++i) values.push_back(Rows().ValueOrBytes(row, i));
    return values;
}

// ---- keeping back ----

void TFDCustomQuery::LogPost() {
    std::vector<Variant> before = ValuesOf(CurrentRow()), values = before;
    for (int i = 0; i < FieldCount(); ++i) {
        if (Rows().Layout().IsBlob(i) && IsChanged(i)) {
            throw EDatabaseError(
                u"Cached updates cannot change the blob '%1'"_s.arg(FieldOfColumn(i)->FieldName()));
        }
        const Variant* assigned = Rows().Layout().IsBlob(i) ? nullptr : Assigned(i);
        if (assigned) values[static_cast<size_t>(i)] = *assigned;
    }
    const uint64_t from = Rows().Address(CurrentRow());
    Rows().SetValues(CurrentRow(), values);
    const uint64_t to = Rows().Address(CurrentRow());
    DoRowMoved(from, to);
    if (State() == dsInsert) return FLog->TakeInserted(to);
    FLog->TakeChanged(from, to, std::move(before));
}

void TFDCustomQuery::LogDelete() {
    FLog->TakeDeleted(Rows().Address(CurrentRow()), ValuesOf(CurrentRow()));
}

// ---- writing ----

void TFDCustomQuery::ApplyUpdates() {
    CheckBrowseMode();
    if (!UpdatesPending()) return;
    RequireWriting();
    FLog->ForgetApplied();
    WriteDeleted();
    for (int row = 0; row < Rows().Count(); ++row) {
        if (!FLog->Find(Rows().Address(row))) continue;
        try {
            WritePending(row);
        } catch (const EDatabaseError&) {
            MoveToRow(row);
            throw;
        }
    }
    TakeApplied();
}

void TFDCustomQuery::TakeApplied() {
    FAppliedIn = Connection()->FTransactions;
    FLog->TakeDeletionsApplied();
    for (int row = 0; row < Rows().Count(); ++row) {
        const uint64_t address = Rows().Address(row);
        if (FLog->Find(address)) FLog->TakeApplied(address, ValuesOf(row));
    }
}

void TFDCustomQuery::WriteDeleted() {
    for (const PendingRow& deleted : FLog->Deleted()) {
        if (deleted.New) continue;
        std::vector<WriteColumn> columns = TableColumns();
        for (WriteColumn& column : columns) {
            column.Write = false;
            column.Value = column.OldValue = deleted.Before[static_cast<size_t>(column.Column)];
        }
        RecordWriter(*FPrepared->On(), FColumnsTable, columns).Delete();
    }
}

void TFDCustomQuery::WritePending(int row) {
    const PendingRow& pending = *FLog->Find(Rows().Address(row));
    std::vector<WriteColumn> columns = TableColumns();
    bool some = pending.New;
    for (WriteColumn& column : columns) {
        column.Value = Rows().ValueOrBytes(row, column.Column);
        column.OldValue = pending.New ? Variant() : pending.Before[static_cast<size_t>(column.Column)];
        column.Write = column.CanWrite && column.Value != column.OldValue;
        some = some || column.Write;
    }
    WriteOnce(columns);
    RecordWriter writer(*FPrepared->On(), FColumnsTable, columns);
    if (!some) return;
    if (!pending.New) return writer.Update();

    const std::vector<Variant> key = writer.Insert();
    if (key.empty()) return;
    std::vector<Variant> values = ValuesOf(row);
    size_t next = 0;
    for (const WriteColumn& column : columns) {
        if (column.Key) values[static_cast<size_t>(column.Column)] = key[next++];
    }
    const uint64_t from = Rows().Address(row);
    Rows().SetValues(row, values);
    DoRowMoved(from, Rows().Address(row));
    FLog->TakeChanged(from, Rows().Address(row), {});
}
