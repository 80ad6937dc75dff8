#include "platform/ui/DBGridColumns.h"

#include <algorithm>
#include "platform/data/DataSet.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int kLeastWidth = 8;
}

UnicodeString TColumnTitle::Caption() const {
    const TField* field = FColumn.Field();
    UnicodeString caption = FCaption ? *FCaption : field ? field->DisplayLabel() : FColumn.FieldName();
    return caption.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
}

void TColumnTitle::SetCaption(const UnicodeString& caption) {
    FCaption = caption;
    FColumn.Changed();
}

TColumn::TColumn(TDBGridColumns& columns, const UnicodeString& fieldName)
    : FColumns(columns), FFieldName(fieldName), FTitle(*this) {}

void TColumn::Changed() {
    FColumns.FHost.ColumnsChanged();
}

void TColumn::SetFieldName(const UnicodeString& name) {
    FFieldName = name;
    FField = nullptr;
    Changed();
}

TField* TColumn::Field() const {
    if (FField) return FField;
    const TDataSet* dataSet = FColumns.FHost.ColumnsDataSet();
    if (dataSet && !FFieldName.isEmpty()) FField = dataSet->FindField(FFieldName);
    return FField;
}

int TColumn::Width() const {
    return FWidth ? *FWidth : FColumns.FHost.NaturalWidth(*this);
}

void TColumn::SetWidth(int width) {
    FWidth = std::max(width, kLeastWidth);
    Changed();
}

TAlignment TColumn::Alignment() const {
    if (FAlignment) return *FAlignment;
    const TField* field = Field();
    return field ? field->Alignment() : taLeftJustify;
}

void TColumn::SetAlignment(TAlignment alignment) {
    FAlignment = alignment;
    Changed();
}

void TColumn::SetVisible(bool visible) {
    FVisible = visible;
    Changed();
}

int TColumn::Index() const {
    return FColumns.IndexOf(this);
}

void TColumn::SetIndex(int index) {
    FColumns.Move(Index(), index);
}

TColumn* TDBGridColumns::Add(const UnicodeString& fieldName, const UnicodeString& title, int width) {
    FColumns.emplace_back(new TColumn(*this, fieldName));
    TColumn* column = FColumns.back().get();
    if (!title.isEmpty()) column->FTitle.FCaption = title;
    if (width > 0) column->FWidth = std::max(width, kLeastWidth);
    FHost.ColumnsChanged();
    return column;
}

void TDBGridColumns::Delete(int index) {
    Items(index);
    FColumns.erase(FColumns.begin() + index);
    FHost.ColumnsChanged();
}

void TDBGridColumns::Clear() {
    FColumns.clear();
    FHost.ColumnsChanged();
}

void TDBGridColumns::Move(int from, int to) {
    if (from < 0 || to < 0 || from >= Count() || to >= Count() || from == to) return;
    const auto first = FColumns.begin();
    if (from < to) {
        std::rotate(first + from, first + from + 1, first + to + 1);
    } else {
        std::rotate(first + to, first + from, first + from + 1);
    }
    FHost.ColumnsChanged();
}

int TDBGridColumns::IndexOf(const TColumn* column) const {
    const auto found =
        std::find_if(FColumns.begin(), FColumns.end(), [&](const auto& c) { return c.get() == column; });
    return found == FColumns.end() ? -1 : static_cast<int>(found - FColumns.begin());
}

void TDBGridColumns::ForgetField(const TField* field) {
    for (const auto& column : FColumns) {
        if (!field || column->FField == field) column->FField = nullptr;
    }
}
