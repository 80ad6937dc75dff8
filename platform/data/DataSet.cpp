#include "platform/data/DataSet.h"

#include "platform/data/DataEvents.h"
#include "platform/data/EditBuffer.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RowStore.h"

using namespace Qt::Literals::StringLiterals;

TDataSet::TDataSet(TComponent* owner)
    : TComponent(owner),
      FRows(std::make_unique<fichario::RowStore>()),
      FEdits(std::make_unique<fichario::EditBuffer>()),
      FEvents(std::make_shared<fichario::DataEvents>()) {}

TDataSet::~TDataSet() {
    const auto events = FEvents;
    events->DataSetGone();
    FreeOwned();
    for (TField* field : FFields) field->FDataSet = nullptr;
}

// Handlers are left alone: what they speak of may be gone before the dataset.
void TDataSet::ShutDown() {
    BeforeClose = AfterClose = nullptr;
    try {
        Close();
    } catch (...) {
        DoClose();
    }
}

// ---- life ----

void TDataSet::SetActive(bool active) {
    active ? Open() : Close();
}

void TDataSet::Open() {
    if (Active()) return;
    Call(BeforeOpen);
    if (Active()) return;  // the handler has opened it
    FAllFetched = !DoOpen();
    FState = dsBrowse;
    Settle(0);
    FBof = true;
    FEof = RowCount() == 0;
    if (auto* events = Events()) events->ActiveChanged();
    Call(AfterOpen);
    if (FRow >= 0) Call(AfterScroll);
}

void TDataSet::Close() {
    if (!Active()) return;
    Call(BeforeClose);
    if (!Active()) return;
    Drop();
    Call(AfterClose);
}

void TDataSet::Drop() {
    FState = dsInactive;
    DoClose();
    SetRows(std::make_unique<fichario::RowStore>());
    FEdits->Clear();
    FRow = -1;
    FBof = FEof = FAllFetched = true;
    if (auto* events = Events()) events->ActiveChanged();
}

void TDataSet::SetRows(std::unique_ptr<fichario::RowStore> rows) {
    FRows = std::move(rows);
    ++FResult;
    FBlobs.clear();
}

void TDataSet::CheckActive() const {
    if (!Active()) throw EDatabaseError(u"Cannot perform this operation on a closed dataset"_s);
}

void TDataSet::SetState(TDataSetState state) {
    if (state == FState) return;
    FState = state;
    if (auto* events = Events()) events->EditingChanged();
}

void TDataSet::Call(const TEvent& event) {
    if (event) event(this);
}

// ---- controls ----

void TDataSet::AddSource(TDataSource* source) {
    FEvents->Sources.Add(source);
    ++FHearing;
}

void TDataSet::RemoveSource(TDataSource* source) {
    FEvents->Sources.Remove(source);
    --FHearing;
}

void TDataSet::DisableControls() {
    if (FDisabled++ == 0) FActiveBefore = Active();
}

void TDataSet::EnableControls() {
    if (FDisabled == 0 || --FDisabled > 0) return;
    if (FActiveBefore != Active()) {
        FEvents->ActiveChanged();
    } else {
        FEvents->EditingChanged();
        FEvents->DataSetChanged();
    }
}

void TDataSet::AskFocus(TField* field) {
    FEvents->FocusControl(field);
}
