// One column of a dataset, read and written for the dataset's current record.
//
//     TField* name = query->FieldByName(u"NM"_s);
//     name->SetDisplayLabel(u"Nome"_s);
//     query->Edit();
//     name->SetAsString(u"Ação"_s);
//     query->Post();
//
// A property that the host sets stays as it is whatever the database describes later; the others follow the
// description. Reading is possible at any time: without a record the value is null.
#pragma once
#include <functional>
#include <optional>
#include "platform/data/DataTypes.h"
#include "platform/rtl/Component.h"
#include "platform/rtl/Currency.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Decimal.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TDataSet;

// What the database says of a column. Filled when a statement is prepared.
struct TFieldDescription {
    TFieldType Type = ftUnknown;
    int Size = 0;              // text: characters; exact decimals: places after the separator; others 0
    double Largest = 0;        // numbers but DOUBLE PRECISION: the greatest amount that fits; others 0
    UnicodeString BaseColumn;  // the column's bare name in its table; empty for an expression
    UnicodeString BaseTable;   // the table it comes from; empty for an expression
    bool Required = false;     // NOT NULL in its table
    bool Computed = false;     // by its table
    bool ReadOnly = false;     // computed, or not of the table that posts go to
    TProviderFlags ProviderFlags = pfInUpdate | pfInWhere;
};

class TField : public TComponent {
  public:
    // A field of `owner`, normally its dataset, of the given kind; datasets make their fields themselves.
    TField(TComponent* owner, TFieldType type);

    // ---- identity ----
    UnicodeString FieldName() const { return FFieldName; }
    // Names the column. Only before the field belongs to a dataset.
    void SetFieldName(const UnicodeString& name) { FFieldName = name; }
    TDataSet* DataSet() const { return FDataSet; }
    // Adds the field to `dataSet` (null: takes it out), which must not be active. EDatabaseError otherwise.
    void SetDataSet(TDataSet* dataSet);
    // The field's place among its dataset's fields, from 0; -1 without a dataset.
    int Index() const;
    TFieldType DataType() const { return FDescription.Type; }
    // Text kinds: characters; exact decimals: decimal places; other kinds 0.
    int Size() const { return FDescription.Size; }
    // Numbers: the greatest amount that the column can hold on either side of 0, which the server also asks
    // of values compared with it; DOUBLE PRECISION and other kinds 0.
    double Largest() const { return FDescription.Largest; }
    // The table the column comes from, empty for an expression.
    UnicodeString BaseTable() const { return FDescription.BaseTable; }
    // The base column's bare name, empty for an expression, unless the host set something else.
    UnicodeString Origin() const { return FOrigin.value_or(FDescription.BaseColumn); }
    void SetOrigin(const UnicodeString& origin) { FOrigin = origin; }

    // ---- properties ----
    // The name that people read; the field's name until the host sets one.
    UnicodeString DisplayLabel() const { return FDisplayLabel.value_or(FFieldName); }
    void SetDisplayLabel(const UnicodeString& label);
    TProviderFlags ProviderFlags() const { return FProviderFlags.value_or(FDescription.ProviderFlags); }
    void SetProviderFlags(TProviderFlags flags);
    bool Required() const { return FRequired.value_or(FDescription.Required); }
    void SetRequired(bool required) { FRequired = required; }
    // Until the host says otherwise, what cannot be written is read-only to controls. Code may set it, as the
    // name of a customer that was just chosen, but for a column that its table computes: it is shown until
    // the record is posted and read again.
    bool ReadOnly() const { return FReadOnly.value_or(FDescription.ReadOnly); }
    void SetReadOnly(bool readOnly) { FReadOnly = readOnly; }
    bool Visible() const { return FVisible; }
    void SetVisible(bool visible);
    // The width that a grid column gets at first, in characters.
    int DisplayWidth() const { return FDisplayWidth.value_or(DefaultWidth()); }
    void SetDisplayWidth(int characters) { FDisplayWidth = characters; }
    // Numbers stand right, all else left.
    TAlignment Alignment() const { return FAlignment.value_or(DefaultAlignment()); }
    void SetAlignment(TAlignment alignment) { FAlignment = alignment; }
    // The mask that edits type the value through ("!99/99/0000;1;_"); empty: none.
    UnicodeString EditMask() const { return FEditMask; }
    void SetEditMask(const UnicodeString& mask) { FEditMask = mask; }

    // ---- value of the current record (of the row being painted inside TRowReading) ----
    Variant Value() const;
    bool IsNull() const;
    // The value before the edit began; null in a new record; Value() while nothing is edited.
    Variant OldValue() const;
    // Null gives the empty text, 0, false.
    // EConvertError when the value cannot be one of that kind; EUnreadableText, naming the label, when the
    // bytes of a stored text form no characters. Such a value is not null, and whatever is set in its place
    // counts as a change.
    virtual UnicodeString AsString() const;
    int AsInteger() const;
    int64_t AsLargeInt() const;
    double AsFloat() const;
    Currency AsCurrency() const;
    Decimal AsDecimal() const;
    TDateTime AsDateTime() const;
    bool AsBoolean() const;

    // Setting converts to the field's kind, calls OnValidate, stores, and calls OnChange. EDatabaseError when
    // the dataset is neither editing nor inserting or the field is read-only; EConvertError, naming the
    // label, when the value cannot be converted. A failure leaves the old value.
    void SetValue(const Variant& value);
    // The empty text is stored as it is in text kinds and is null in all others.
    void SetAsString(const UnicodeString& text);
    void SetAsInteger(int value);
    void SetAsLargeInt(int64_t value);
    void SetAsFloat(double value);
    void SetAsCurrency(Currency value);
    void SetAsDecimal(Decimal value);
    void SetAsDateTime(TDateTime value);
    void SetAsBoolean(bool value);
    // Makes the value null.
    void Clear();

    // ---- texts of controls ----
    // The text that an edit shows while the user types: OnGetText with displayText false, or the plain value.
    UnicodeString Text() const;
    // What the user typed: OnSetText, or SetAsString.
    void SetText(const UnicodeString& text);
    // The text that grids and labels show: OnGetText with displayText true, or the value by the field's
    // format; "(ilegível)" for a stored text that cannot be read.
    UnicodeString DisplayText() const;

    // Asks the controls on this field to take the focus.
    void FocusControl();

    // ---- events ----
    std::function<void(TField* sender, UnicodeString& text, bool displayText)> OnGetText;
    std::function<void(TField* sender, const UnicodeString& text)> OnSetText;
    // Before a value is stored: reading the field gives the new value, setting it changes what will be
    // stored, an exception refuses it.
    std::function<void(TField* sender)> OnValidate;
    std::function<void(TField* sender)> OnChange;

    // ---- between field and dataset ----
    // Takes over what the database describes. The dataset calls it.
    virtual void Describe(const TFieldDescription& description);
    const TFieldDescription& Description() const { return FDescription; }
    // `value`, which is not null, as the kind that this field stores. EConvertError.
    Variant Converted(const Variant& value) const;
    // A value of this field as plain text, the one that AsString gives.
    UnicodeString TextOf(const Variant& value) const { return FormatValue(value, false); }

  protected:
    ~TField() override;

    // `value` as the kind that this field stores, null for nothing. EConvertError.
    virtual Variant Convert(const Variant& value) const = 0;
    // What the user typed or code set as text, as the kind this field stores.
    virtual Variant ConvertText(const UnicodeString& text) const = 0;
    // The value as people read it (`display`) or type it. Never called for null.
    virtual UnicodeString FormatValue(const Variant& value, bool display) const;
    // The record's value of this column.
    virtual Variant StoredValue() const;
    virtual int DefaultWidth() const { return 10; }
    virtual TAlignment DefaultAlignment() const { return taLeftJustify; }
    // EConvertError: `text` is not `kind` ("uma data válida"), with the field's label.
    [[noreturn]] void RefuseText(const UnicodeString& text, const UnicodeString& kind) const;
    // Tells the dataset's links that properties changed.
    void PropertyChanged();

  private:
    friend class TDataSet;
    UnicodeString PlainDisplayText() const;
    void Store(Variant&& value);
    void CheckWritable() const;

    TDataSet* FDataSet = nullptr;
    UnicodeString FFieldName;
    TFieldDescription FDescription;
    std::optional<UnicodeString> FOrigin, FDisplayLabel;
    std::optional<TProviderFlags> FProviderFlags;
    std::optional<bool> FRequired;
    std::optional<int> FDisplayWidth;
    std::optional<TAlignment> FAlignment;
    UnicodeString FEditMask;
    std::optional<bool> FReadOnly;
    bool FVisible = true;
    int FColumn = -1;                // place in the dataset's rows; -1 while not described
    bool FAutomatic = false;         // made by its dataset
    Variant* FValidating = nullptr;  // the value that OnValidate is judging
};
