#include "platform/ui/DBLookup.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QWheelEvent>
#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/Application.h"
#include "platform/ui/Guard.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int kFetchRows = 1000;
}

// Hears of changes of the rows to choose from.
class TLookupListLink : public TDataLink {
  public:
    explicit TLookupListLink(TDBLookupComboBox& combo) : FCombo(combo) {}
    void ActiveChanged() override { FCombo.ListChanged(); }
    void DataSetChanged() override { FCombo.ListChanged(); }
    void RecordChanged(TField*) override { FCombo.ListChanged(); }

  private:
    TDBLookupComboBox& FCombo;
};

TDBLookupComboBox::TDBLookupComboBox(TComponent* owner)
    : TWidget(owner),
      TDataAware(static_cast<TControl&>(*this)),
      FList(std::make_unique<TLookupListLink>(*this)) {
    setFocusPolicy(Qt::StrongFocus);
    FKeyValue = Variant::Null();
    FLink.OnDataChange = [this] {
        FKeyValue = Field() ? Field()->Value() : Variant::Null();
        ShowKey();
    };
    FLink.OnUpdateData = [this] { Field()->SetValue(FKeyValue); };
    FLink.OnEditingChange = [this] { NameAfterField(*this); };
    connect(this, &QComboBox::activated, this,
            [this](int index) { CalledByQt(this, [&] { Chosen(index); }); });
}

TDBLookupComboBox::~TDBLookupComboBox() {
    FLink.OnDataChange = nullptr;
    FLink.OnEditingChange = nullptr;
}

TDataSource* TDBLookupComboBox::ListSource() const {
    return FList->DataSource();
}

void TDBLookupComboBox::SetListSource(TDataSource* source) {
    FList->SetDataSource(source);
}

void TDBLookupComboBox::SetKeyField(const UnicodeString& name) {
    FKeyField = name;
    ListChanged();
}

void TDBLookupComboBox::SetListField(const UnicodeString& names) {
    FListField = names;
    ListChanged();
}

// The list dataset may be in the middle of its change: it is read again later.
void TDBLookupComboBox::ListChanged() {
    FListRead = false;
    if (std::exchange(FShowQueued, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { CalledByQt(this, [this] { ShowLater(); }); }, Qt::QueuedConnection);
}

void TDBLookupComboBox::ShowLater() {
    FShowQueued = false;
    if (Application->Waiting()) return Application->AfterWait(this, [this] { ListChanged(); });
    ShowKey();
}

void TDBLookupComboBox::FillList() {
    if (FListRead || !FList->Active()) return;
    FListRead = true;
    const QSignalBlocker silent(this);
    clear();
    FKeys.clear();
    TDataSet* list = FList->DataSet();
    while (!list->AllFetched()) list->FetchMore(kFetchRows);
    for (int row = 0; row < list->RowCount(); ++row) {
        const TRowReading reading(list, row);
        AddRow(*list);
    }
}

void TDBLookupComboBox::AddRow(const TDataSet& list) {
    UnicodeString text;
    for (const UnicodeString& name : FListField.split(u';', Qt::SkipEmptyParts)) {
        const TField* field = list.FindField(name.trimmed());
        if (field) text += (text.isEmpty() ? u""_s : u"  |  "_s) + field->DisplayText();
    }
    const TField* key = list.FindField(FKeyField);
    FKeys.push_back(key ? key->Value() : Variant::Null());
    addItem(text);
}

void TDBLookupComboBox::ShowKey() {
    const QSignalBlocker silent(this);
    int index = -1;
    if (!FKeyValue.IsNull()) {
        FillList();
        const auto found = std::find(FKeys.begin(), FKeys.end(), FKeyValue);
        if (found != FKeys.end()) index = static_cast<int>(found - FKeys.begin());
    }
    setCurrentIndex(index);
    update();
}

UnicodeString TDBLookupComboBox::Text() {
    if (!FListRead) ShowKey();
    return currentText();
}

void TDBLookupComboBox::SetKeyValue(const Variant& value) {
    if (FKeyValue == value) return;
    if (Field() && FLink.Editing()) {
        Field()->SetValue(value);
    } else {
        FKeyValue = value;
        ShowKey();
    }
}

void TDBLookupComboBox::Chosen(int index) {
    const Variant key = FKeys.at(size_t(index));
    if (Field()) {
        FLink.UserChanged();
        if (!FLink.IsModified()) return;
        FKeyValue = key;
        FLink.Commit();
    } else {
        FKeyValue = key;
    }
    if (OnChange) OnChange(this);
}

bool TDBLookupComboBox::ListVisible() const {
    return view()->isVisible();
}

void TDBLookupComboBox::showPopup() {
    CalledByQt(this, [this] {
        FillList();
        ShowKey();
    });
    if (!Field() || FLink.CanModify()) QComboBox::showPopup();
}

// The wheel over a form must not change a value that the user is not at.
void TDBLookupComboBox::wheelEvent(QWheelEvent* event) {
    if (Focused()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void TDBLookupComboBox::DoEnter() {
    FillList();
    ShowKey();
    TWidget::DoEnter();
}

void TDBLookupComboBox::DoExit() {
    FLink.Commit();
    TWidget::DoExit();
}
