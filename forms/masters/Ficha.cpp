#include "forms/masters/Ficha.h"

#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/rtl/Strings.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/DBLookup.h"
#include "platform/ui/StdCtrls.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 16;
constexpr int kBesideGap = 4;
constexpr int kLookupWidth = 28;
constexpr int kLabelHeight = 18;
constexpr int kRowHeight = kLabelHeight + kEditHeight + 13;

}  // namespace

TFicha::TFicha(TComponent* owner, TControl* page, TDataSource* source)
    : FOwner(owner), FPage(page), FSource(source), FLeft(kMargin), FTop(kMargin) {}

TDBEdit* TFicha::Edit(const UnicodeString& fieldName, int width) {
    return Place(new TDBEdit(FOwner), fieldName, width, true);
}

TDBEdit* TFicha::ReadOnlyEdit(const UnicodeString& fieldName, int width) {
    TDBEdit* edit = Edit(fieldName, width);
    edit->SetReadOnly(true);
    edit->SetTabStop(false);
    return edit;
}

TDBComboBox* TFicha::Combo(const UnicodeString& fieldName, const TStringArray& items, int width) {
    auto* combo = Place(new TDBComboBox(FOwner), fieldName, width, true);
    for (const UnicodeString& item : items) combo->Items()->Add(item);
    return combo;
}

TDBLookupComboBox* TFicha::LookupCombo(const UnicodeString& fieldName, TDataSource* list,
                                       const UnicodeString& keyField, const UnicodeString& listField,
                                       int width) {
    auto* combo = Place(new TDBLookupComboBox(FOwner), fieldName, width, true);
    combo->SetListSource(list);
    combo->SetKeyField(keyField);
    combo->SetListField(listField);
    return combo;
}

TDBCheckBox* TFicha::Check(const UnicodeString& fieldName, int width) {
    auto* check = Place(new TDBCheckBox(FOwner), fieldName, width, false);
    check->SetCaption(FSource->DataSet()->FieldByName(fieldName)->DisplayLabel());
    return check;
}

TButton* TFicha::Lookup(TDBEdit* edit, const std::function<void()>& search) {
    FLeft += kBesideGap - kGap;
    auto* button = NewControl<TButton>(FOwner, FPage, u"Btn"_s + edit->DataField(),
                                       QRect(FLeft, FTop + kLabelHeight, kLookupWidth, kEditHeight));
    button->SetCaption(u"…"_s);
    button->SetHint(u"Procurar (F2)"_s);
    button->SetAccessibleName(u"Procurar "_s + edit->AccessibleName());
    button->SetTabStop(false);
    button->OnClick = [search](TComponent*) { search(); };
    edit->OnKeyDown = [search](TComponent*, int& key, TShiftState shift) {
        if (key != VK_F2 || shift) return;
        key = 0;
        search();
    };
    FLeft += kLookupWidth + kGap;
    return button;
}

QRect TFicha::Area(const UnicodeString& caption, int width, int height) {
    Caption(caption, width);
    const QRect area(FLeft, FTop + kLabelHeight, width, height);
    NewRow();
    FTop += height - kEditHeight;
    return area;
}

void TFicha::NewRow() {
    FLeft = kMargin;
    FTop += kRowHeight;
}

void TFicha::Caption(const UnicodeString& caption, int width) {
    auto* label = new TLabel(FOwner);
    label->SetParent(FPage);
    label->SetCaption(caption);
    label->SetBounds(FLeft, FTop, width, kLabelHeight);
}

template <class T>
T* TFicha::Place(T* control, const UnicodeString& fieldName, int width, bool labelled) {
    const UnicodeString caption = FSource->DataSet()->FieldByName(fieldName)->DisplayLabel();
    if (labelled) Caption(caption, width);
    control->SetName(u"Db"_s + fieldName);
    control->SetParent(FPage);
    control->SetBounds(FLeft, FTop + kLabelHeight, width, kEditHeight);
    control->SetDataSource(FSource);
    control->SetDataField(fieldName);
    control->SetAccessibleName(caption);
    FLeft += width + kGap;
    return control;
}
