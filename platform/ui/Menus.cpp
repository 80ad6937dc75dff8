#include "platform/ui/Menus.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QPainter>
#include "platform/ui/Control.h"
#include "platform/ui/Guard.h"
#include "platform/ui/Mnemonic.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kShiftBit = 0x2000;
constexpr int kCtrlBit = 0x4000;
constexpr int kAltBit = 0x8000;
constexpr int kKeyBits = 0x1FFF;

UnicodeString KeyName(int key) {
    if (key >= VK_F1 && key <= VK_F12) return u"F"_s + UnicodeString::number(key - VK_F1 + 1);
    static const std::pair<int, const char*> kNames[] = {
        {VK_INSERT, "Ins"}, {VK_DELETE, "Del"},    {VK_RETURN, "Enter"}, {VK_ESCAPE, "Esc"},
        {VK_PRIOR, "PgUp"}, {VK_NEXT, "PgDn"},     {VK_HOME, "Home"},    {VK_END, "End"},
        {VK_LEFT, "Left"},  {VK_RIGHT, "Right"},   {VK_UP, "Up"},        {VK_DOWN, "Down"},
        {VK_TAB, "Tab"},    {VK_BACK, "Backspace"}};
    for (const auto& [code, name] : kNames) {
        if (code == key) return UnicodeString::fromLatin1(name);
    }
    return QChar(ushort(key));
}

// Escape closes the menu. The bar's own keyboard mode, which would take the focus, is never entered.
class TDropMenu : public QMenu {
  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) {
            close();
        } else {
            QMenu::keyPressEvent(event);
        }
    }
};

// A flat bar that leaves the Alt key alone: mnemonics reach it through the key hub.
class TFlatMenuBar : public QMenuBar {
  public:
    using QMenuBar::QMenuBar;

  protected:
    bool eventFilter(QObject*, QEvent*) override { return false; }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        for (QAction* action : actions()) PaintItem(painter, action);
    }

  private:
    void PaintItem(QPainter& painter, QAction* action) const {
        const QRect place = actionGeometry(action);
        if (action == activeAction()) painter.fillRect(place, Cores::Selecao);
        painter.setPen(action->isEnabled() ? Cores::Texto : Cores::Fio);
        painter.drawText(place, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, action->text());
    }
};

}  // namespace

int ShortCut(int key, TShiftState shift) {
    return key | (shift & ssShift ? kShiftBit : 0) | (shift & ssCtrl ? kCtrlBit : 0) |
           (shift & ssAlt ? kAltBit : 0);
}

UnicodeString ShortCutToText(int shortCut) {
    if (!shortCut) return {};
    return UnicodeString(shortCut & kCtrlBit ? u"Ctrl+"_s : u""_s) +
           (shortCut & kAltBit ? u"Alt+"_s : u""_s) + (shortCut & kShiftBit ? u"Shift+"_s : u""_s) +
           KeyName(shortCut & kKeyBits);
}

TMenuItem::TMenuItem(TComponent* owner) : TComponent(owner), FAction(std::make_unique<QAction>()) {
    QObject::connect(FAction.get(), &QAction::triggered,
                     [this] { CalledByQt(this, [this] { Triggered(); }); });
}

TMenuItem::~TMenuItem() {
    if (FParent) FParent->Remove(this);
    for (TMenuItem* item : FItems) item->FParent = nullptr;
}

void TMenuItem::SetCaption(const UnicodeString& caption) {
    FCaption = caption;
    ShowText();
}

void TMenuItem::SetShortCut(int shortCut) {
    FShortCut = shortCut;
    ShowText();
}

void TMenuItem::ShowText() {
    FAction->setSeparator(IsSeparator());
    if (IsSeparator()) return FAction->setText({});  // a text would stand before its line
    const UnicodeString keys = ShortCutToText(FShortCut);
    FAction->setText(keys.isEmpty() ? FCaption : FCaption + u'\t' + keys);
}

void TMenuItem::SetChecked(bool checked) {
    FChecked = checked;
    FAction->setCheckable(checked || FRadio);
    FAction->setChecked(checked);
    if (!checked || !FRadio || !FParent) return;
    for (TMenuItem* sibling : FParent->FItems) {
        if (sibling != this && sibling->FRadio && sibling->FChecked) sibling->SetChecked(false);
    }
}

// The toolkit draws an item as one of several only when it belongs to a group.
void TMenuItem::SetRadioItem(bool radio) {
    FRadio = radio;
    FAction->setCheckable(FChecked || radio);
    delete FAction->actionGroup();
    if (radio) FAction->setActionGroup(new QActionGroup(FAction.get()));
}

QMenu* TMenuItem::SubMenu() {
    if (!FSubMenu) {
        FSubMenu = std::make_unique<TDropMenu>();
        FAction->setMenu(FSubMenu.get());
    }
    return FSubMenu.get();
}

TMenuItem* TMenuItem::Add(TMenuItem* item) {
    return Insert(Count(), item);
}

TMenuItem* TMenuItem::Insert(int index, TMenuItem* item) {
    if (item->FParent) item->FParent->Remove(item);
    index = std::clamp(index, 0, Count());
    QAction* before = index < Count() ? Items(index)->Action() : nullptr;
    FItems.insert(FItems.begin() + index, item);
    item->FParent = this;
    SubMenu()->insertAction(before, item->Action());
    Changed();
    return item;
}

TMenuItem* TMenuItem::AddNew(const UnicodeString& caption, std::function<void(TComponent*)> onClick) {
    auto* item = new TMenuItem(Owner());
    item->SetCaption(caption);
    item->OnClick = std::move(onClick);
    return Add(item);
}

void TMenuItem::Remove(TMenuItem* item) {
    if (!std::erase(FItems, item)) return;
    item->FParent = nullptr;
    FSubMenu->removeAction(item->Action());
    Changed();
}

void TMenuItem::Changed() {
    if (OnItemsChanged) OnItemsChanged();
}

void TMenuItem::Triggered() {
    FAction->setChecked(FChecked);
    Click();
}

void TMenuItem::Click() {
    if (Enabled() && OnClick) OnClick(this);
}

TMenuItem* TMenuItem::FindShortCut(int shortCut) {
    if (!Visible() || !Enabled()) return nullptr;
    if (FShortCut == shortCut && FItems.empty()) return this;
    for (TMenuItem* item : FItems) {
        if (TMenuItem* found = item->FindShortCut(shortCut)) return found;
    }
    return nullptr;
}

TMenu::TMenu(TComponent* owner) : TComponent(owner), FItems(new TMenuItem(this)) {}

TMainMenu::TMainMenu(TComponent* owner) : TMenu(owner) {
    Items()->OnItemsChanged = [this] { FillBar(); };
}

TMainMenu::~TMainMenu() {
    Items()->OnItemsChanged = nullptr;
    delete FBar;
}

QMenuBar* TMainMenu::ShowIn(QWidget* host) {
    if (!FBar) {
        FBar = new TFlatMenuBar;
        FBar->setNativeMenuBar(false);
        FBar->setFocusPolicy(Qt::NoFocus);
        FBar->setAccessibleName(u"Menu"_s);
        FillBar();
    }
    FBar->setParent(host);
    FBar->show();
    return FBar;
}

void TMainMenu::HideBar() {
    if (!FBar) return;
    FBar->hide();
    FBar->setParent(nullptr);
}

void TMainMenu::FillBar() {
    if (!FBar) return;
    const QList<QAction*> shown = FBar->actions();
    for (QAction* action : shown) FBar->removeAction(action);
    for (int i = 0; i < Items()->Count(); ++i) FBar->addAction(Items()->Items(i)->Action());
}

bool TMainMenu::RunShortCut(int key, TShiftState shift) {
    TMenuItem* item = Items()->FindShortCut(ShortCut(key, shift));
    if (item) item->Click();
    return item != nullptr;
}

bool TMainMenu::RunMnemonic(QChar letter) {
    for (int i = 0; i < Items()->Count(); ++i) {
        TMenuItem* item = Items()->Items(i);
        if (!item->Visible() || !item->Enabled() || !HasMnemonic(item->Caption(), letter)) continue;
        if (FBar && FBar->isVisible() && item->Count()) {
            FBar->setActiveAction(item->Action());
        } else {
            item->Click();
        }
        return true;
    }
    return false;
}

bool TMainMenu::OpenMenu() {
    if (!FBar || !FBar->isVisible()) return false;
    for (QAction* action : FBar->actions()) {
        if (!action->isVisible() || !action->isEnabled()) continue;
        FBar->setActiveAction(action);
        return true;
    }
    return false;
}

void TPopupMenu::Popup(int x, int y) {
    if (OnPopup) OnPopup(this);
    Items()->SubMenu()->popup(QPoint(x, y));
}
