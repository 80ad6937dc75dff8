// A control's ear and hand on a data source: derive one, override what the control must know.
//
//     class NameLink : public TDataLink {
//         void RecordChanged(TField* field) override { … }
//         void UpdateData() override { field->SetText(edit->Text()); }
//     };
//
// A link unlinks itself when its source or dataset goes, and may be deleted inside any of its own
// notifications.
#pragma once
#include "platform/data/DataTypes.h"

class TDataSet;
class TDataSource;
class TField;

class TDataLink {
  public:
    TDataLink() = default;
    virtual ~TDataLink();
    TDataLink(const TDataLink&) = delete;
    TDataLink& operator=(const TDataLink&) = delete;

    TDataSource* DataSource() const { return FDataSource; }
    void SetDataSource(TDataSource* source);
    // The source's dataset; null without one.
    TDataSet* DataSet() const;
    // There is an open dataset.
    bool Active() const;
    // The dataset is editing or inserting.
    bool Editing() const;
    // Starts an edit through the source (its AutoEdit). Returns Editing().
    bool Edit();

    // The dataset was opened, closed, set or taken away, or its fields changed.
    virtual void ActiveChanged() {}
    // Any row may be different: draw everything anew.
    virtual void DataSetChanged() {}
    // More rows were fetched and stand behind the ones that were here.
    virtual void RowsArrived() {}
    // Another record is current.
    virtual void DataSetScrolled() {}
    // A value of the current record changed; null: any of them.
    virtual void RecordChanged(TField* field) { static_cast<void>(field); }
    // The dataset's state changed.
    virtual void EditingChanged() {}
    // Write what was typed into the field now. May throw, which stops what was going on.
    virtual void UpdateData() {}
    // A field is about to be freed: forget it.
    virtual void FieldGone(TField* field) { static_cast<void>(field); }
    // The control on this field should take the focus.
    virtual void FocusControl(TField* field) { static_cast<void>(field); }

  private:
    friend class TDataSource;
    TDataSource* FDataSource = nullptr;
};
