// A dataset's fields: made, matched with what the statement gives, read and written.
#include <algorithm>
#include "platform/data/DataEvents.h"
#include "platform/data/DataSet.h"
#include "platform/data/EditBuffer.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/WireTime.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t kBlobsKept = 256;

// Types whose fields are of one class.
TFieldType ClassOf(TFieldType type) {
    if (type == ftFixedChar) return ftString;
    return type == ftSmallint ? ftInteger : type;
}

// A name that no column has yet.
UnicodeString UniqueName(const TStringArray& taken, const UnicodeString& name) {
    const auto isTaken = [&](const UnicodeString& candidate) {
        return std::any_of(taken.begin(), taken.end(), [&](const UnicodeString& other) {
            return other.compare(candidate, Qt::CaseInsensitive) == 0;
        });
    };
    UnicodeString candidate = name;
    for (int i = 1; isTaken(candidate); ++i) candidate = u"%1_%2"_s.arg(name).arg(i);
    return candidate;
}

}  // namespace

// ---- the list ----

void TDataSet::AddField(TField* field) {
    field->FDataSet = this;
    field->FColumn = -1;
    FFields.push_back(field);
    FieldsChanged();
}

void TDataSet::RemoveField(TField* field) {
    std::erase(FFields, field);
    ++FFieldsVersion;
    field->FDataSet = nullptr;
    const auto events = FEvents;
    events->FieldGone(field);
}

// The others would read from columns that are not theirs.
void TDataSet::FieldFreed(TField* field) {
    if (Active()) Drop();
    RemoveField(field);
}

void TDataSet::FieldsChanged() {
    ++FFieldsVersion;
    if (auto* events = Events()) events->ActiveChanged();
}

TField* TDataSet::FindField(const UnicodeString& name) const {
    for (TField* field : FFields) {
        if (field->FFieldName.compare(name, Qt::CaseInsensitive) == 0) return field;
    }
    return nullptr;
}

TField* TDataSet::FieldByName(const UnicodeString& name) const {
    if (TField* field = FindField(name)) return field;
    throw EDatabaseError(u"Field '%1' not found"_s.arg(name));
}

void TDataSet::DescribeFields() {
    if (Active()) return;
    DoDescribe();
    FieldsChanged();
}

// The field for a column: the one of that name and class, or a new one.
TField* TDataSet::TakeField(const UnicodeString& name, TFieldType type) {
    TField* field = FindField(name);
    if (field && ClassOf(field->DataType()) == ClassOf(type)) return field;
    if (field && !field->FAutomatic) {
        throw EDatabaseError(u"Field '%1' is of another type than its column"_s.arg(name));
    }
    field = NewField(this, type);
    field->FFieldName = name;
    field->FAutomatic = true;
    field->FDataSet = this;
    return field;
}

void TDataSet::DropUnmatched(const std::vector<TField*>& matched) {
    std::vector<TField*> gone;
    for (TField* field : FFields) {
        if (std::find(matched.begin(), matched.end(), field) == matched.end()) gone.push_back(field);
    }
    for (TField* field : gone) {
        if (!field->FAutomatic) throw EDatabaseError(u"Field '%1' not found"_s.arg(field->FFieldName));
    }
    for (TField* field : gone) {
        RemoveField(field);
        field->Free();
    }
}

// Those that were made in vain.
void TDataSet::DropNew(const std::vector<TField*>& matched) {
    for (TField* field : matched) {
        if (std::find(FFields.begin(), FFields.end(), field) != FFields.end()) continue;
        field->FDataSet = nullptr;
        field->Free();
    }
}

void TDataSet::SetColumns(const TStringArray& names, const std::vector<TFieldDescription>& described) {
    TStringArray taken;
    std::vector<TField*> matched;
    try {
        for (size_t i = 0; i < names.size(); ++i) {
            taken.push_back(UniqueName(taken, names[i]));
            matched.push_back(TakeField(taken.back(), described[i].Type));
        }
        DropUnmatched(matched);
    } catch (...) {
        DropNew(matched);
        throw;
    }
    FFields = matched;
    ++FFieldsVersion;
    for (size_t i = 0; i < matched.size(); ++i) {
        matched[i]->FColumn = static_cast<int>(i);
        matched[i]->Describe(described[i]);
    }
}

// ---- values ----

Variant TDataSet::RowValue(int row, int column) const {
    if (FRows->IsOutdated(row)) DoRenew(row);
    try {
        return FRows->Layout().IsBlob(column) ? BlobValue(row, column) : FRows->Value(row, column);
    } catch (const EUnreadableText& error) {
        throw EUnreadableText(FieldOfColumn(column)->DisplayLabel(), error.Reason);
    }
}

Variant TDataSet::RowValueOrBytes(int row, int column) const {
    try {
        return RowValue(row, column);
    } catch (const EUnreadableText&) {
        return FRows->Layout().IsBlob(column) ? Variant::Null() : FRows->ValueOrBytes(row, column);
    }
}

Variant TDataSet::BlobValue(int row, int column) const {
    const std::optional<QByteArray> bytes = BlobBytes(row, column);
    if (!bytes) return Variant::Null();
    if (FRows->Layout().Type(column) == ftBlob) return *bytes;
    std::optional<UnicodeString> text = fichario::DecodeExact(FRows->Layout().Encoding(column), *bytes);
    if (!text) throw EUnreadableText();
    return *std::move(text);
}

// Kept by the place of the row's bytes, which is another one once the row was read again.
std::optional<QByteArray> TDataSet::BlobBytes(int row, int column) const {
    if (FRows->Value(row, column).IsNull()) return std::nullopt;
    const auto known = FBlobs.find({FRows->Address(row), column});
    if (known != FBlobs.end()) return known->second;
    const std::optional<QByteArray> bytes = DoReadBlob(row, column);
    if (FBlobs.size() >= kBlobsKept) FBlobs.clear();
    if (bytes) FBlobs.insert_or_assign({FRows->Address(row), column}, *bytes);
    return bytes;
}

Variant TDataSet::ColumnValue(const TField* field) const {
    const int row = FReadRow >= 0 ? FReadRow : FRow;
    if (row < 0 || row >= RowCount() || field->FColumn < 0) return Variant::Null();
    return row == FRow && Editing() ? EditedValue(field->FColumn) : RowValue(row, field->FColumn);
}

Variant TDataSet::OldColumnValue(const TField* field) const {
    if (FRow < 0 || field->FColumn < 0) return Variant::Null();
    return RowValue(FRow, field->FColumn);
}

Variant TDataSet::EditedValue(int column) const {
    const Variant* edited = FEdits->Find(column);
    return edited ? *edited : RowValue(FRow, column);
}

const Variant* TDataSet::Assigned(int column) const {
    return FEdits->Find(column);
}

bool TDataSet::IsChanged(int column) const {
    const Variant* edited = FEdits->Find(column);
    if (!edited) return false;
    const Variant* before = FEdits->Before(column);
    try {
        return !(*edited == (before ? *before : RowValue(FRow, column)));
    } catch (const EUnreadableText&) {
        return true;
    }
}

int TDataSet::Turn(int column) const {
    return FEdits->Turn(column);
}

Variant TDataSet::BlobBefore(int column) const {
    const Variant* before = FEdits->Before(column);
    return before ? *before : Variant();
}

// By the time of the post others may have changed it.
void TDataSet::KeepBlob(int column) {
    if (!FRows->Layout().IsBlob(column) || FEdits->Find(column)) return;
    try {
        FEdits->KeepBefore(column, RowValue(FRow, column));
    } catch (const EUnreadableText& error) {
        if (!error.Reason.isEmpty()) throw;  // bytes that are no text can still be replaced
    }
}

// Moments and numbers are kept as exactly as the server keeps them, so that the same one typed again is no
// change, and one that was stored is known again.
void TDataSet::StoreColumn(TField* field, Variant&& value) {
    const bool moment = value.Kind() == vkDateTime && field->DataType() != ftDate;
    if (moment) value = fichario::FromWire(fichario::ToWire(value.ToDateTime()));
    if (value.Kind() == vkFloat && FRows->Layout().IsFloat(field->FColumn))
        value = fichario::FromFloat(static_cast<float>(value.ToDouble()));
    if (FState == dsEdit) KeepBlob(field->FColumn);
    FEdits->Set(field->FColumn, std::move(value));
    if (field->OnChange) field->OnChange(field);
    if (auto* events = Events()) events->RecordChanged(field);
}
