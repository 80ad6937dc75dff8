// What all data-aware controls have in common: the properties that name their field.
//
//     class TDBEdit : public TMaskEdit, public TDataAware { … };
#pragma once
#include "platform/ui/FieldLink.h"

class QWidget;
class TDataSource;

// How many characters may be typed for the field; 0 is no limit. With an edit mask its places are the limit.
int TypedLimit(const TField* field);

class TDataAware {
  public:
    TDataSource* DataSource() const { return FLink.DataSource(); }
    void SetDataSource(TDataSource* source) { FLink.SetDataSource(source); }

    const UnicodeString& DataField() const { return FLink.FieldName(); }
    void SetDataField(const UnicodeString& name) { FLink.SetFieldName(name); }

    // The field itself, null while the dataset has none of that name.
    TField* Field() const { return FLink.Field(); }

    // The user cannot change the value.
    bool ReadOnly() const { return FLink.ReadOnly(); }
    void SetReadOnly(bool readOnly) { FLink.SetReadOnly(readOnly); }

  protected:
    explicit TDataAware(TControl& control) : FLink(control) {}
    ~TDataAware() = default;

    // Gives a control without an accessible name its field's label.
    void NameAfterField(QWidget& widget) const;
    // The field's text: as it is typed, or as people read it. Empty without a record.
    UnicodeString FieldText(bool toEdit) const;

    TFieldDataLink FLink;
};
