#include "platform/ui/FieldLink.h"

#include <QScopedValueRollback>
#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/Control.h"

void TFieldDataLink::SetFieldName(const UnicodeString& name) {
    FFieldName = name;
    ActiveChanged();
}

void TFieldDataLink::SetReadOnly(bool readOnly) {
    FReadOnly = readOnly;
    EditingChanged();
}

void TFieldDataLink::FindField() {
    const TDataSet* dataSet = DataSet();
    FField = dataSet && !FFieldName.isEmpty() ? dataSet->FindField(FFieldName) : nullptr;
}

bool TFieldDataLink::CanModify() const {
    if (!Active() || !FField || FReadOnly || FField->ReadOnly()) return false;
    return Editing() || DataSource()->AutoEdit();
}

bool TFieldDataLink::Edit() {
    if (!CanModify()) return false;
    const QScopedValueRollback hold(FHoldingText, true);
    return TDataLink::Edit();
}

void TFieldDataLink::UserChanged() {
    try {
        FModified = Edit();
    } catch (...) {
        ShowData();
        throw;
    }
    if (!FModified) ShowData();
}

void TFieldDataLink::Commit() {
    if (!FModified || !FField || FHoldingText) return;
    try {
        const QScopedValueRollback hold(FHoldingText, true);
        if (OnUpdateData) OnUpdateData();
    } catch (...) {
        if (OnRejected) OnRejected();
        throw;
    }
    ShowData();
}

void TFieldDataLink::Reset() {
    ShowData();
}

void TFieldDataLink::ShowData() {
    if (FHoldingText) return;
    FModified = false;
    if (OnDataChange) OnDataChange();
}

void TFieldDataLink::ActiveChanged() {
    FindField();
    ShowData();
    EditingChanged();
}

void TFieldDataLink::DataSetChanged() {
    ShowData();
}

void TFieldDataLink::DataSetScrolled() {
    ShowData();
}

void TFieldDataLink::RecordChanged(TField* field) {
    if (!field || field == FField) ShowData();
}

void TFieldDataLink::EditingChanged() {
    if (OnEditingChange) OnEditingChange();
}

void TFieldDataLink::UpdateData() {
    Commit();
}

void TFieldDataLink::FieldGone(TField* field) {
    if (field != FField) return;
    FField = nullptr;
    ShowData();
    EditingChanged();
}

void TFieldDataLink::FocusControl(TField* field) {
    if (field == FField && FControl.CanFocus()) FControl.SetFocus();
}
