#include "platform/ui/ListBoxes.h"

#include <QSignalBlocker>
#include "platform/ui/ShownList.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kItemHeight = 20;
constexpr int kHintLength = 160;

// Users' texts may look like markup, and be longer than a screen is wide.
UnicodeString HintOf(UnicodeString text) {
    if (text.size() > kHintLength) text = text.left(kHintLength) + u'…';
    return u"<span>"_s + text.toHtmlEscaped() + u"</span>"_s;
}

}  // namespace

TListBox::TListBox(TComponent* owner)
    : TWidget(owner), FItems(std::make_unique<TShownList>([this] { ShowItems(); })) {
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
}

TListBox::~TListBox() = default;

void TListBox::ShowItems() {
    const QSignalBlocker silent(this);
    const int chosen = ItemIndex();
    while (count() > FItems->Count()) delete takeItem(count() - 1);
    for (int i = 0; i < FItems->Count(); ++i) {
        if (i == count()) {
            auto* added = new QListWidgetItem(this);
            added->setSizeHint(QSize(0, kItemHeight));
            Prepare(*added);
        }
        item(i)->setText(FItems->Strings(i));
        item(i)->setToolTip(HintOf(FItems->Strings(i)));
    }
    setCurrentRow(chosen < count() ? chosen : -1);
}

void TListBox::SetItemIndex(int index) {
    const QSignalBlocker silent(this);
    setCurrentRow(index >= 0 && index < count() ? index : -1);
}

void TListBox::keyPressEvent(QKeyEvent* event) {
    const int before = ItemIndex();
    TWidget::keyPressEvent(event);
    if (ItemIndex() != before) CalledByQt(this, [this] { DoClick(); });
}

TCheckListBox::TCheckListBox(TComponent* owner) : TListBox(owner) {
    connect(this, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* item) { CalledByQt(this, [&] { UserChecked(*item); }); });
}

void TCheckListBox::Prepare(QListWidgetItem& item) {
    item.setFlags(item.flags() | Qt::ItemIsUserCheckable);
    item.setCheckState(Qt::Unchecked);
}

bool TCheckListBox::Checked(int index) const {
    return index >= 0 && index < count() && item(index)->checkState() == Qt::Checked;
}

void TCheckListBox::SetChecked(int index, bool checked) {
    if (index < 0 || index >= count()) return;
    const QSignalBlocker silent(this);
    item(index)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    update(indexFromItem(item(index)));
}

void TCheckListBox::UserChecked(QListWidgetItem& item) {
    SetItemIndex(row(&item));
    if (OnClickCheck) OnClickCheck(this);
}
