#include "forms/masters/GridConfig.h"

#include <algorithm>

#include "forms/browse/UGrid_Master.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/CodePage.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char16_t* kColumnProps[] = {u"GRDF_", u"GRDS_", u"GRDV_", u"GRDA_"};
// More than a grid ever has; a damaged state file may claim anything.
constexpr int kMostColumns = 1000;
constexpr int kMostWidth = 16384;
constexpr int kMostFontSize = 72;

UnicodeString PropName(const char16_t* prefix, int index) {
    return QString::fromUtf16(prefix) + u"%1"_s.arg(index, 2, 10, QLatin1Char('0'));
}

int SaneProp(const TFrmGrid_Master& form, const UnicodeString& name, int fallback, int most) {
    const int stored = form.GetIntWindowProp(name, fallback);
    return stored > 0 && stored <= most ? stored : fallback;
}

TAlignment StoredAlignment(const TFrmGrid_Master& form, int index) {
    const TAlignment present = form.DBGrd->Columns()[index]->Alignment();
    const int stored = form.GetIntWindowProp(PropName(u"GRDA_", index), present);
    return stored >= taLeftJustify && stored <= taCenter ? static_cast<TAlignment>(stored) : present;
}

void SaveColumn(TFrmGrid_Master& form, int index) {
    const TColumn* column = form.DBGrd->Columns()[index];
    form.SetStrWindowProp(PropName(u"GRDF_", index), column->FieldName());
    form.SetStrWindowProp(PropName(u"GRDL_", index), form.GetColumnTitle(index));
    form.SetIntWindowProp(PropName(u"GRDA_", index), column->Alignment());
    form.SetBoolWindowProp(PropName(u"GRDV_", index), column->Visible());
    if (column->Visible()) form.SetIntWindowProp(PropName(u"GRDS_", index), column->Width());
}

void DeleteColumns(TFrmGrid_Master& form, int count) {
    for (int i = 0; i < std::min(count, kMostColumns); ++i) {
        for (const char16_t* prefix : kColumnProps) form.DeleteProp(PropName(prefix, i));
    }
}

UnicodeString StoredField(TFrmGrid_Master& form, int index) {
    return form.GetStrWindowProp(PropName(u"GRDF_", index), form.DBGrd->Columns()[index]->FieldName());
}

bool FitsGrid(TFrmGrid_Master& form, int count) {
    if (count != form.DBGrd->Columns().Count()) return false;
    for (int i = 0; i < count; ++i) {
        if (!form.MainDS->DataSet()->FindField(StoredField(form, i))) return false;
    }
    return true;
}

TPickLists CollectPickLists(TFrmGrid_Master& form) {
    TPickLists lists;
    for (int i = 0; i < form.DBGrd->Columns().Count(); ++i) {
        const TColumn* column = form.DBGrd->Columns()[i];
        const UnicodeString text = column->PickList().Text().trimmed();
        if (!text.isEmpty()) lists.emplace_back(column->FieldName(), text);
    }
    return lists;
}

UnicodeString PickListOf(const TPickLists& lists, const UnicodeString& fieldName) {
    for (const auto& [field, text] : lists) {
        if (SameText(field, fieldName)) return text;
    }
    return {};
}

// What is stored of a column, read in full before any column changes: the defaults are the present column's.
struct TStoredColumn {
    UnicodeString FieldName, Title;
    int Width;
    TAlignment Alignment;
    bool Visible;
};

TStoredColumn ReadColumn(TFrmGrid_Master& form, int index) {
    const TColumn* column = form.DBGrd->Columns()[index];
    return {StoredField(form, index),
            form.GetStrWindowProp(PropName(u"GRDL_", index), form.GetColumnTitle(index)),
            StoredColumnWidth(form, index), StoredAlignment(form, index),
            form.GetBoolWindowProp(PropName(u"GRDV_", index), column->Visible())};
}

void ApplyColumn(TColumn* column, const TStoredColumn& stored, const UnicodeString& pickList) {
    column->SetFieldName(stored.FieldName);
    column->Title().SetCaption(stored.Title);
    column->SetWidth(stored.Width);
    column->SetAlignment(stored.Alignment);
    column->SetVisible(stored.Visible);
    column->PickList().SetText(pickList);
}

void WriteGrid(TFrmGrid_Master& form) {
    const int count = form.DBGrd->Columns().Count();
    form.SetIntWindowProp(u"FontSize"_s, form.DBGrd->FontSize());
    form.SetIntWindowProp(u"GridCount"_s, count);
    const int order = form.OrderFieldIndex();
    if (order >= 0 && order < count) {
        form.SetStrWindowProp(u"OrderField"_s, form.DBGrd->Columns()[order]->FieldName());
    }
    for (int i = 0; i < count; ++i) SaveColumn(form, i);
}

}  // namespace

void SaveGridConfig(TFrmGrid_Master& form) {
    form.UpdateProps([&form] { WriteGrid(form); });
}

bool LoadGridColumns(TFrmGrid_Master& form, TPickLists& pickLists) {
    const int count = form.GetIntWindowProp(u"GridCount"_s, 0);
    form.DBGrd->SetFontSize(SaneProp(form, u"FontSize"_s, form.DBGrd->FontSize(), kMostFontSize));
    if (!FitsGrid(form, count)) {
        form.UpdateProps([&] { DeleteColumns(form, count); });
        return false;
    }
    pickLists = CollectPickLists(form);
    for (int i = 0; i < count; ++i) {
        const TStoredColumn stored = ReadColumn(form, i);
        ApplyColumn(form.DBGrd->Columns()[i], stored, PickListOf(pickLists, stored.FieldName));
    }
    return true;
}

int StoredOrderColumn(TFrmGrid_Master& form) {
    const UnicodeString stored = form.GetStrWindowProp(u"OrderField"_s, {});
    for (int i = 0; i < form.DBGrd->Columns().Count(); ++i) {
        if (UpperText(form.DBGrd->Columns()[i]->FieldName()) == stored) return form.CanOrderBy(i) ? i : -1;
    }
    return -1;
}

int StoredColumnWidth(TFrmGrid_Master& form, int index) {
    return SaneProp(form, PropName(u"GRDS_", index), form.DBGrd->Columns()[index]->Width(), kMostWidth);
}
