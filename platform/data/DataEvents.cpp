#include "platform/data/DataEvents.h"

namespace fichario {

namespace {

template <class Tell>
void EachLink(TDataSource& source, const std::shared_ptr<NotifyList<TDataLink>>& links, Tell tell) {
    if (source.Enabled()) links->Each(tell);
}

void CallChange(TDataSource& source, TField* field) {
    if (source.Enabled() && source.OnDataChange) source.OnDataChange(field);
}

void CallState(TDataSource& source) {
    if (source.OnStateChange) source.OnStateChange();
}

}  // namespace

// The list of links is held by a copy: a source may be freed by what one of its links does.
template <class Tell>
void DataEvents::Links(Tell tell) {
    Sources.Each([&](TDataSource& source) {
        const auto links = source.FLinks;
        EachLink(source, links, tell);
    });
}

template <class Tell>
void DataEvents::LinksAndChange(TField* field, Tell tell) {
    Links(tell);
    Sources.Each([field](TDataSource& source) { CallChange(source, field); });
}

void DataEvents::ActiveChanged() {
    LinksAndChange(nullptr, [](TDataLink& link) { link.ActiveChanged(); });
    Sources.Each(CallState);
}

void DataEvents::DataSetChanged() {
    LinksAndChange(nullptr, [](TDataLink& link) { link.DataSetChanged(); });
}

void DataEvents::RowsArrived() {
    Links([](TDataLink& link) { link.RowsArrived(); });
}

void DataEvents::Scrolled() {
    LinksAndChange(nullptr, [](TDataLink& link) { link.DataSetScrolled(); });
}

void DataEvents::RecordChanged(TField* field) {
    LinksAndChange(field, [field](TDataLink& link) { link.RecordChanged(field); });
}

void DataEvents::EditingChanged() {
    Links([](TDataLink& link) { link.EditingChanged(); });
    Sources.Each(CallState);
}

void DataEvents::UpdateData() {
    Sources.Each([](TDataSource& source) {
        if (source.Enabled() && source.OnUpdateData) source.OnUpdateData();
    });
    Links([](TDataLink& link) { link.UpdateData(); });
}

void DataEvents::FieldGone(TField* field) {
    Sources.Each([field](TDataSource& source) {
        const auto links = source.FLinks;
        links->Each([field](TDataLink& link) { link.FieldGone(field); });
    });
}

void DataEvents::FocusControl(TField* field) {
    Links([field](TDataLink& link) { link.FocusControl(field); });
}

void DataEvents::DataSetGone() {
    Sources.Each([this](TDataSource& source) {
        source.FDataSet = nullptr;
        Sources.Remove(&source);
        SourceChanged(source);
    });
}

void DataEvents::SourceChanged(TDataSource& source) {
    const auto links = source.FLinks;
    links->Each([](TDataLink& link) { link.ActiveChanged(); });
    if (source.OnDataChange) source.OnDataChange(nullptr);
    CallState(source);
}

}  // namespace fichario
