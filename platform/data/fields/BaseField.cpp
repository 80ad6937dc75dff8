#include "platform/data/fields/BaseField.h"

#include <algorithm>
#include <utility>
#include "platform/data/DataSet.h"

using namespace Qt::Literals::StringLiterals;

TField::TField(TComponent* owner, TFieldType type) : TComponent(owner) {
    FDescription.Type = type;
}

TField::~TField() {
    if (FDataSet) FDataSet->FieldFreed(this);
}

void TField::SetDataSet(TDataSet* dataSet) {
    if (dataSet == FDataSet) return;
    if ((FDataSet && FDataSet->Active()) || (dataSet && dataSet->Active())) {
        throw EDatabaseError(u"Fields cannot be added or removed while the dataset is open"_s);
    }
    if (FDataSet) FDataSet->RemoveField(this);
    if (dataSet) dataSet->AddField(this);
}

int TField::Index() const {
    if (!FDataSet) return -1;
    const std::vector<TField*>& fields = FDataSet->Fields();
    return static_cast<int>(std::find(fields.begin(), fields.end(), this) - fields.begin());
}

void TField::Describe(const TFieldDescription& description) {
    FDescription = description;
}

// ---- properties ----

void TField::PropertyChanged() {
    if (FDataSet) FDataSet->FieldsChanged();
}

void TField::SetDisplayLabel(const UnicodeString& label) {
    FDisplayLabel = label;
    PropertyChanged();
}

void TField::SetProviderFlags(TProviderFlags flags) {
    FProviderFlags = flags;
    if (FDataSet) ++FDataSet->FFieldsVersion;
}

void TField::SetVisible(bool visible) {
    FVisible = visible;
    PropertyChanged();
}

// ---- reading ----

Variant TField::StoredValue() const {
    return FDataSet ? FDataSet->ColumnValue(this) : Variant::Null();
}

Variant TField::Value() const {
    return FValidating ? *FValidating : StoredValue();
}

bool TField::IsNull() const {
    try {
        return Value().IsNull();
    } catch (const EUnreadableText&) {
        return false;
    }
}

Variant TField::OldValue() const {
    return FDataSet ? FDataSet->OldColumnValue(this) : Variant::Null();
}

UnicodeString TField::AsString() const {
    const Variant value = Value();
    return value.IsNull() ? UnicodeString() : FormatValue(value, false);
}

namespace {

// Null as the kind's nothing.
template <class T, class Convert>
T ValueOr(const Variant& value, T nothing, Convert convert) {
    return value.IsNull() ? nothing : convert(value);
}

}  // namespace

int TField::AsInteger() const {
    return ValueOr(Value(), 0, [](const Variant& value) { return value.ToInt(); });
}

int64_t TField::AsLargeInt() const {
    return ValueOr(Value(), int64_t{0}, [](const Variant& value) { return value.ToInt64(); });
}

double TField::AsFloat() const {
    return ValueOr(Value(), 0.0, [](const Variant& value) { return value.ToDouble(); });
}

Currency TField::AsCurrency() const {
    return ValueOr(Value(), Currency{}, [](const Variant& value) { return value.ToCurrency(); });
}

Decimal TField::AsDecimal() const {
    return ValueOr(Value(), Decimal{}, [](const Variant& value) { return value.ToDecimal(); });
}

TDateTime TField::AsDateTime() const {
    return ValueOr(Value(), TDateTime(), [](const Variant& value) { return value.ToDateTime(); });
}

bool TField::AsBoolean() const {
    return ValueOr(Value(), false, [](const Variant& value) { return value.ToBool(); });
}

// ---- writing ----

void TField::CheckWritable() const {
    if (!FDataSet) throw EDatabaseError(u"Field '%1' has no dataset"_s.arg(FFieldName));
    FDataSet->CheckEditing();
    if (FReadOnly.value_or(FDescription.Computed)) throw EDatabaseError(u"Field '%1' cannot be modified"_s.arg(FFieldName));
}

void TField::Store(Variant&& value) {
    CheckWritable();
    if (!OnValidate && !FValidating) return FDataSet->StoreColumn(this, std::move(value));
    Variant* const outer = std::exchange(FValidating, &value);
    try {
        if (OnValidate) OnValidate(this);
    } catch (...) {
        FValidating = outer;
        throw;
    }
    FValidating = outer;
    if (outer) {
        *outer = std::move(value);
    } else {
        FDataSet->StoreColumn(this, std::move(value));
    }
}

Variant TField::Converted(const Variant& value) const {
    return value.Kind() == vkText ? ConvertText(value.ToText()) : Convert(value);
}

void TField::SetValue(const Variant& value) {
    const bool nothing = value.IsNull() || value.IsUnassigned();
    Store(nothing ? Variant::Null() : Converted(value));
}

void TField::SetAsString(const UnicodeString& text) {
    Store(ConvertText(text));
}

void TField::SetAsInteger(int value) {
    Store(Convert(value));
}

void TField::SetAsLargeInt(int64_t value) {
    Store(Convert(value));
}

void TField::SetAsFloat(double value) {
    Store(Convert(value));
}

void TField::SetAsCurrency(Currency value) {
    Store(Convert(value));
}

void TField::SetAsDecimal(Decimal value) {
    Store(Convert(value));
}

void TField::SetAsDateTime(TDateTime value) {
    Store(Convert(value));
}

void TField::SetAsBoolean(bool value) {
    Store(Convert(value));
}

void TField::Clear() {
    Store(Variant::Null());
}

void TField::RefuseText(const UnicodeString& text, const UnicodeString& kind) const {
    throw EConvertError(u"\"%1\" não é %2 para o campo \"%3\"."_s.arg(text, kind, DisplayLabel()));
}

// ---- texts of controls ----

UnicodeString TField::FormatValue(const Variant& value, bool) const {
    return value.ToText();
}

UnicodeString TField::Text() const {
    UnicodeString text = AsString();
    if (OnGetText) OnGetText(const_cast<TField*>(this), text, false);
    return text;
}

// Painting must not fail: it would at once be asked for again, without end.
UnicodeString TField::PlainDisplayText() const {
    try {
        const Variant value = Value();
        return value.IsNull() ? UnicodeString() : FormatValue(value, true);
    } catch (const EUnreadableText&) {
        return kUnreadable.toString();
    }
}

UnicodeString TField::DisplayText() const {
    UnicodeString text = PlainDisplayText();
    if (OnGetText) OnGetText(const_cast<TField*>(this), text, true);
    return text;
}

void TField::SetText(const UnicodeString& text) {
    if (OnSetText) {
        OnSetText(this, text);
    } else {
        SetAsString(text);
    }
}

void TField::FocusControl() {
    if (FDataSet) FDataSet->AskFocus(this);
}
