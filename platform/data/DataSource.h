// Joins controls to a dataset: they are linked to the source, the source to one dataset at a time.
//
//     auto* source = new TDataSource(form);
//     source->SetDataSet(query);
//     source->OnDataChange = [](TField* field) { … };       // null: the whole record
#pragma once
#include <functional>
#include <memory>
#include "platform/data/DataTypes.h"
#include "platform/rtl/Component.h"

class TDataLink;
class TDataSet;
class TField;
namespace fichario {
class DataEvents;
template <class T>
class NotifyList;
}  // namespace fichario

class TDataSource : public TComponent {
  public:
    explicit TDataSource(TComponent* owner);

    TDataSet* DataSet() const { return FDataSet; }
    // Null unlinks. A dataset that is freed unlinks itself.
    void SetDataSet(TDataSet* dataSet);
    // Whether typing in a control starts an edit; true at first.
    bool AutoEdit() const { return FAutoEdit; }
    void SetAutoEdit(bool autoEdit) { FAutoEdit = autoEdit; }
    bool Enabled() const { return FEnabled; }
    // A source that is not enabled shows its controls no data.
    void SetEnabled(bool enabled);
    // The dataset's state; dsInactive without one or when not enabled.
    TDataSetState State() const;
    // Starts an edit when AutoEdit is on and the dataset browses.
    void Edit();

    std::function<void(TField*)> OnDataChange;  // a field changed; null: the record or all of them
    std::function<void()> OnStateChange;
    std::function<void()> OnUpdateData;  // before a record is posted

  protected:
    ~TDataSource() override;

  private:
    friend class TDataLink;
    friend class TDataSet;
    friend class fichario::DataEvents;

    TDataSet* FDataSet = nullptr;
    std::shared_ptr<fichario::NotifyList<TDataLink>> FLinks;
    bool FAutoEdit = true;
    bool FEnabled = true;
};
