// The link of a data-aware control to one field of a dataset.
//
//     TFieldDataLink link(*this);
//     link.OnDataChange = [this] { SetText(FLink.Field() ? FLink.Field()->Text() : u""_s); };
//     link.OnUpdateData = [this] { FLink.Field()->SetText(Text()); };
//     ... the user types:  link.UserChanged();
//     ... the control is left:  link.Commit();
#pragma once
#include <functional>
#include "platform/data/DataLink.h"
#include "platform/data/Field.h"
#include "platform/rtl/Types.h"

class TControl;

class TFieldDataLink : public TDataLink {
  public:
    // `control` owns the link; it gets the focus when a post is stopped because its value cannot be stored.
    explicit TFieldDataLink(TControl& control) : FControl(control) {}

    // The field's name; it need not exist (yet).
    const UnicodeString& FieldName() const { return FFieldName; }
    void SetFieldName(const UnicodeString& name);
    // The field of that name in the source's dataset, null without one.
    TField* Field() const { return FField; }

    // The control's own lock, besides those of field and dataset.
    bool ReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool readOnly);

    // The control may begin or go on changing the field: there is one, nothing is read-only, and the dataset
    // is being edited or the source starts an edit by itself.
    bool CanModify() const;

    // Puts the dataset into edit state where it may; answers whether the control may change its value now.
    // May throw what the dataset says.
    bool Edit();
    // The user changed the control's value: begins the edit and remembers that the field has not got it yet.
    // Where no edit may begin, or the dataset throws, the control shows the field's value again.
    void UserChanged();
    // The control holds a value that the field has not got yet.
    bool IsModified() const { return FModified; }
    // Writes the pending value to the field. What the field throws leaves the text as it is (OnRejected); a
    // control that throws it out of its DoExit keeps the focus.
    void Commit();
    // Drops the pending value and shows the field's again.
    void Reset();

    // The control must show the field's value anew (empty when Field is null).
    std::function<void()> OnDataChange;
    // The control must write its value to the field; called only while modified.
    std::function<void()> OnUpdateData;
    // CanModify may have changed.
    std::function<void()> OnEditingChange;
    // The value was refused: time to select the text.
    std::function<void()> OnRejected;

  protected:
    void ActiveChanged() override;
    void DataSetChanged() override;
    void DataSetScrolled() override;
    void RecordChanged(TField* field) override;
    void EditingChanged() override;
    void UpdateData() override;
    void FieldGone(TField* field) override;
    void FocusControl(TField* field) override;

  private:
    void FindField();
    void ShowData();

    TControl& FControl;
    UnicodeString FFieldName;
    TField* FField = nullptr;
    bool FReadOnly = false;
    bool FModified = false;
    bool FHoldingText = false;  // notifications must not replace the control's text now
};
