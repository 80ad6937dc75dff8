#include "platform/data/DataLink.h"

#include "platform/data/DataSource.h"
#include "platform/data/NotifyList.h"

TDataLink::~TDataLink() {
    if (FDataSource) FDataSource->FLinks->Remove(this);
}

void TDataLink::SetDataSource(TDataSource* source) {
    if (source == FDataSource) return;
    if (FDataSource) FDataSource->FLinks->Remove(this);
    FDataSource = source;
    if (FDataSource) FDataSource->FLinks->Add(this);
    ActiveChanged();
}

TDataSet* TDataLink::DataSet() const {
    return FDataSource ? FDataSource->DataSet() : nullptr;
}

bool TDataLink::Active() const {
    return FDataSource && FDataSource->State() != dsInactive;
}

bool TDataLink::Editing() const {
    return FDataSource && (FDataSource->State() == dsEdit || FDataSource->State() == dsInsert);
}

bool TDataLink::Edit() {
    if (FDataSource) FDataSource->Edit();
    return Editing();
}
