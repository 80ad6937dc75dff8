#include "platform/data/DataSource.h"

#include "platform/data/DataEvents.h"
#include "platform/data/DataSet.h"

TDataSource::TDataSource(TComponent* owner)
    : TComponent(owner), FLinks(std::make_shared<fichario::NotifyList<TDataLink>>()) {}

TDataSource::~TDataSource() {
    if (FDataSet) FDataSet->RemoveSource(this);
    FDataSet = nullptr;
    const auto links = FLinks;
    links->Each([&](TDataLink& link) {
        links->Remove(&link);
        link.FDataSource = nullptr;
        link.ActiveChanged();
    });
}

void TDataSource::SetDataSet(TDataSet* dataSet) {
    if (dataSet == FDataSet) return;
    if (FDataSet) FDataSet->RemoveSource(this);
    FDataSet = dataSet;
    if (FDataSet) {
        FDataSet->RenewRows();
        FDataSet->AddSource(this);
    }
    fichario::DataEvents::SourceChanged(*this);
}

void TDataSource::SetEnabled(bool enabled) {
    if (enabled == FEnabled) return;
    FEnabled = enabled;
    fichario::DataEvents::SourceChanged(*this);
}

TDataSetState TDataSource::State() const {
    return FDataSet && FEnabled ? FDataSet->State() : dsInactive;
}

void TDataSource::Edit() {
    if (FAutoEdit && State() == dsBrowse) FDataSet->Edit();
}
