// Carries what happens to a dataset to its data sources and from there to their links.
#pragma once
#include "platform/data/DataLink.h"
#include "platform/data/DataSource.h"
#include "platform/data/NotifyList.h"

namespace fichario {

class DataEvents {
  public:
    NotifyList<TDataSource> Sources;

    void ActiveChanged();
    void DataSetChanged();
    void RowsArrived();
    void Scrolled();
    void RecordChanged(TField* field);
    void EditingChanged();
    void UpdateData();
    void FieldGone(TField* field);
    void FocusControl(TField* field);
    // The dataset goes: its sources forget it.
    void DataSetGone();

    // One source's links, for changes of the source itself.
    static void SourceChanged(TDataSource& source);

  private:
    template <class Tell>
    void Links(Tell tell);
    template <class Tell>
    void LinksAndChange(TField* field, Tell tell);
};

}  // namespace fichario
