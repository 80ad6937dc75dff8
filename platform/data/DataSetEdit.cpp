// A dataset's edits: a record is changed, added, posted, cancelled, deleted.
#include <utility>

#include "platform/data/DataEvents.h"
#include "platform/data/DataSet.h"
#include "platform/data/EditBuffer.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RowStore.h"

using namespace Qt::Literals::StringLiterals;

void TDataSet::CheckEditing() const {
    if (!Editing()) throw EDatabaseError(u"Dataset not in edit or insert mode"_s);
}

void TDataSet::CheckBrowseMode() {
    CheckActive();
    if (!Editing()) return;
    UpdateRecord();
    Modified() ? Post() : Cancel();
}

void TDataSet::UpdateRecord() {
    if (Editing() && Heard()) FEvents->UpdateData();
}

bool TDataSet::Modified() const {
    if (!Editing()) return false;
    if (FEdits->Doubtful) return true;  // what is stored may not be what is here
    for (int column = 0; column < FEdits->End(); ++column) {
        if (IsChanged(column)) return true;
    }
    return false;
}

std::optional<std::vector<fichario::WriteColumn>>& TDataSet::Doubtful() const {
    return FEdits->Doubtful;
}

// ---- beginning ----

void TDataSet::Append() {
    BeginInsert(true);
}

void TDataSet::Insert() {
    BeginInsert(false);
}

// All rows are here first: the open cursor would bring the new record a second time.
void TDataSet::BeginInsert(bool atEnd) {
    CheckBrowseMode();
    Call(BeforeInsert);
    if (FState != dsBrowse) return;
    FetchAll();
    FRowBefore = FRow;
    FRow = atEnd || FRow < 0 ? RowCount() : FRow;
    FRows->InsertNull(FRow);
    FBof = FEof = false;
    FEdits->Clear();
    FState = dsInsert;
    try {
        Call(OnNewRecord);
    } catch (...) {
        if (FState == dsInsert) DropInserted();
        if (FState == dsInsert) FState = dsBrowse;
        throw;
    }
    if (FState != dsInsert) return;
    FEdits->TakeDefaults();
    if (auto* events = Events()) {
        events->EditingChanged();
        events->DataSetChanged();
    }
    Call(AfterInsert);
    Call(AfterScroll);
}

void TDataSet::DropInserted() {
    FRows->Remove(FRow);
    FEdits->Clear();
    Settle(FRowBefore);
}

void TDataSet::Edit() {
    if (Editing()) return;
    CheckActive();
    if (FRow < 0) return Insert();
    Call(BeforeEdit);
    if (FState != dsBrowse) return;
    FEdits->Clear();
    SetState(dsEdit);
    if (auto* events = Events()) events->RecordChanged(nullptr);
    Call(AfterEdit);
}

// ---- ending ----

void TDataSet::Post() {
    CheckActive();
    if (!Editing()) return;
    UpdateRecord();
    Call(BeforePost);
    if (!Editing()) return;
    if (FKeepPosted) *std::exchange(FKeepPosted, nullptr) = Typed();
    if (FState == dsInsert || Modified()) DoPost();
    EndEditing();
    Call(AfterPost);
}

void TDataSet::Cancel() {
    if (!Editing()) return;
    Call(BeforeCancel);
    if (!Editing()) return;
    if (FState == dsInsert) DropInserted();
    EndEditing();
    Call(AfterCancel);
}

void TDataSet::EndEditing() {
    FEdits->Clear();
    SetState(dsBrowse);
    if (auto* events = Events()) events->DataSetChanged();
}

// ---- a post that is undone ----

fichario::TypedRecord TDataSet::Typed() const {
    if (!Editing()) return {};
    fichario::TypedRecord typed{FState, FRow, FRowBefore, FResult, *FEdits, {}};
    for (int i = 0; i < FieldCount(); ++i) typed.Before.push_back(FRows->ValueOrBytes(FRow, i));
    return typed;
}

// The record is in edit again just as it was, without asking anybody. A host that has brought another result
// meanwhile types for itself.
void TDataSet::TypeAgain(const fichario::TypedRecord& typed) {
    if (Editing() || typed.State == dsBrowse || typed.Result != FResult || typed.Row >= RowCount()) return;
    const uint64_t before = FRows->Address(typed.Row);
    FRows->SetValues(typed.Row, typed.Before);
    DoRowMoved(before, FRows->Address(typed.Row));
    FRow = typed.Row;
    FRowBefore = typed.RowBefore;
    *FEdits = typed.Edits;
    FState = typed.State;
    FBof = FEof = false;
    if (auto* events = Events()) {
        events->EditingChanged();
        events->DataSetChanged();
    }
}

void TDataSet::Delete() {
    CheckActive();
    if (FState == dsInsert) return Cancel();
    if (FRow < 0) throw EDatabaseError(u"Cannot perform this operation on an empty dataset"_s);
    const TDataSetState state = FState;
    const int row = FRow;
    Call(BeforeDelete);
    if (FState != state || FRow != row) return;
    DoDelete();
    FRows->Remove(row);
    FEdits->Clear();
    Settle(row);
    FetchInPlace(row);
    EndEditing();
    Call(AfterDelete);
    if (FRow >= 0) Call(AfterScroll);
}

// The record that comes in the place of a deleted one. The record is deleted: a failure to fetch must not
// look like a failure to delete, and shows at the next call.
void TDataSet::FetchInPlace(int row) {
    try {
        FetchUntil(row);
    } catch (const EFDError&) {
        return;
    }
    Settle(row);
}
