// A choice of one row of another dataset: the field gets the row's key, the user sees the row's text.
//
//     auto* city = new TDBLookupComboBox(form);
//     city->SetDataSource(source);
//     city->SetDataField(u"ID_CIDADE"_s);
//     city->SetListSource(cities);
//     city->SetKeyField(u"ID"_s);
//     city->SetListField(u"NM"_s);
#pragma once
#include <memory>
#include <QComboBox>
#include <vector>
#include "platform/ui/Control.h"
#include "platform/ui/DataAware.h"

class TLookupListLink;

class TDBLookupComboBox : public TWidget<QComboBox>, public TDataAware {
  public:
    explicit TDBLookupComboBox(TComponent* owner);

    // The rows to choose from. They are read, all of them, when the list or a text is first needed and again
    // after the list dataset changed.
    TDataSource* ListSource() const;
    void SetListSource(TDataSource* source);
    const UnicodeString& KeyField() const { return FKeyField; }
    void SetKeyField(const UnicodeString& name);
    // One field, or several separated by ';', whose texts stand side by side.
    const UnicodeString& ListField() const { return FListField; }
    void SetListField(const UnicodeString& names);

    // The chosen key, null for none; also without a data field. Setting it fires no event; it goes to the
    // field when the dataset is being edited.
    const Variant& KeyValue() const { return FKeyValue; }
    void SetKeyValue(const Variant& value);
    // The text shown; empty when no row has the key.
    UnicodeString Text();

    bool ListVisible() const;
    void DropDown() { showPopup(); }
    void CloseUp() { hidePopup(); }

    // The user chose a row.
    std::function<void(TComponent*)> OnChange;

  protected:
    ~TDBLookupComboBox() override;
    void DoEnter() override;
    void DoExit() override;
    void showPopup() override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    friend class TLookupListLink;
    void ListChanged();
    void FillList();
    void AddRow(const TDataSet& list);
    void Chosen(int index);
    void ShowKey();
    void ShowLater();

    std::unique_ptr<TLookupListLink> FList;
    UnicodeString FKeyField, FListField;
    std::vector<Variant> FKeys;  // of the items, in order
    Variant FKeyValue;
    bool FListRead = false;
    bool FShowQueued = false;
};
