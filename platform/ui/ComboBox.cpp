#include <QAbstractItemView>
#include <QSignalBlocker>
#include "platform/ui/ShownList.h"
#include "platform/ui/StdCtrls.h"

TComboBox::TComboBox(TComponent* owner)
    : TWidget(owner), FItems(std::make_unique<TShownList>([this] { ShowItems(); })) {
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(NoInsert);
    connect(this, &QComboBox::activated, this, [this] { CalledByQt(this, [this] { Change(); }); });
}

TComboBox::~TComboBox() = default;

TStrings* TComboBox::Items() const {
    return FItems.get();
}

void TComboBox::ShowItems() {
    const QSignalBlocker silent(this);
    const QString text = isEditable() ? currentText() : QString();
    const int index = currentIndex();
    clear();
    for (int i = 0; i < FItems->Count(); ++i) addItem(FItems->Strings(i));
    setCurrentIndex(index < count() ? index : -1);
    if (isEditable()) setEditText(text);
}

void TComboBox::SetItemIndex(int index) {
    const QSignalBlocker silent(this);
    setCurrentIndex(index >= 0 && index < count() ? index : -1);
    update();
}

void TComboBox::SetText(const UnicodeString& text) {
    const QSignalBlocker silent(this);
    setCurrentIndex(FItems->IndexOf(text));
    if (isEditable()) setEditText(text);
    update();
}

// Typing is a choice of its own, but only while no item is being chosen by it.
void TComboBox::SetEditable(bool editable) {
    if (editable == isEditable()) return;
    setEditable(editable);
    if (!editable) return;
    setCompleter(nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { CalledByQt(this, [this] { Change(); }); });
}

bool TComboBox::DroppedDown() const {
    return view()->isVisible();
}

void TComboBox::SetDroppedDown(bool dropped) {
    CallQt([&] {
        if (dropped) {
            showPopup();
        } else {
            hidePopup();
        }
    });
}

void TComboBox::Change() {
    if (OnChange) OnChange(this);
}
