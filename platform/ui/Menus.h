// Menus: a tree of items shown by a menu bar, by a toolbar or as a popup.
//
//     auto* menu = new TMainMenu(form);
//     TMenuItem* file = menu->Items()->AddNew(u"Arquivo"_s);
//     file->AddNew(u"&Sair..."_s, [form](TComponent*) { form->Close(); })->SetShortCut(ShortCut(VK_F4,
//     ssCtrl)); toolBar->SetMenu(menu);            // or form->SetMenu(menu)
//
// Key strokes do not pass through the toolkit's own short-cut table: the key hub asks the active form's menu.
#pragma once
#include <functional>
#include <memory>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <vector>
#include "platform/rtl/Component.h"
#include "platform/ui/KeyHub.h"

// A short cut in one integer: the virtual key plus 0x2000 for Shift, 0x4000 for Ctrl, 0x8000 for Alt; 0 is
// none. `key`: virtual key code; `shift`: bits of TShiftState. Ctrl+F4 is 16499.
int ShortCut(int key, TShiftState shift);

// The text shown beside the item: "Ctrl+F4"; empty for 0.
UnicodeString ShortCutToText(int shortCut);

// One line of a menu, or, with items of its own, a submenu. Freeing an item takes it out of its menu.
class TMenuItem : public TComponent {
  public:
    explicit TMenuItem(TComponent* owner);

    // "&" marks the mnemonic; the caption "-" makes the item a separator line.
    const UnicodeString& Caption() const { return FCaption; }
    void SetCaption(const UnicodeString& caption);

    int ShortCut() const { return FShortCut; }
    void SetShortCut(int shortCut);

    bool Visible() const { return FAction->isVisible(); }
    void SetVisible(bool visible) { FAction->setVisible(visible); }
    bool Enabled() const { return FAction->isEnabled(); }
    void SetEnabled(bool enabled) { FAction->setEnabled(enabled); }

    // The check mark is the program's: a click does not change it. Checking a radio item unchecks its radio
    // siblings.
    bool Checked() const { return FChecked; }
    void SetChecked(bool checked);
    bool RadioItem() const { return FRadio; }
    void SetRadioItem(bool radio);

    void SetIcon(const QIcon& icon) { FAction->setIcon(icon); }

    // Appends `item` (taken out of its former parent); returns it.
    TMenuItem* Add(TMenuItem* item);
    // Puts `item` before the one at `index` (0 .. Count).
    TMenuItem* Insert(int index, TMenuItem* item);
    // Creates an item with the owner of this one and appends it.
    TMenuItem* AddNew(const UnicodeString& caption, std::function<void(TComponent*)> onClick = {});
    // Takes `item` out; it stays its owner's.
    void Remove(TMenuItem* item);

    int Count() const { return int(FItems.size()); }
    TMenuItem* Items(int index) const { return FItems.at(size_t(index)); }
    TMenuItem* Parent() const { return FParent; }
    bool IsSeparator() const { return FCaption == QLatin1String("-"); }

    // Runs OnClick when the item is enabled, as a click or the short cut does.
    void Click();

    // What the toolkit draws.
    QAction* Action() const { return FAction.get(); }
    QMenu* SubMenu();

    // The first item at or below this one with that short cut which can be run now; null when there is none.
    TMenuItem* FindShortCut(int shortCut);

    std::function<void(TComponent*)> OnClick;
    // Called after an item was added to or removed from this one.
    std::function<void()> OnItemsChanged;

  protected:
    ~TMenuItem() override;

  private:
    void ShowText();
    void Triggered();
    void Changed();

    std::unique_ptr<QMenu> FSubMenu;
    std::unique_ptr<QAction> FAction;
    TMenuItem* FParent = nullptr;
    std::vector<TMenuItem*> FItems;
    UnicodeString FCaption;
    int FShortCut = 0;
    bool FChecked = false;
    bool FRadio = false;
};

// The common part of the menus: a root item whose items are the menu.
class TMenu : public TComponent {
  public:
    explicit TMenu(TComponent* owner);
    TMenuItem* Items() const { return FItems; }

  protected:
    ~TMenu() override = default;

  private:
    TMenuItem* FItems;
};

// The menu of a form, shown as a bar in one place at a time.
class TMainMenu : public TMenu, public TShortCutSource {
  public:
    explicit TMainMenu(TComponent* owner);

    // The bar that draws the menu, moved into `host`; the host places it. A hidden top item takes no room.
    QMenuBar* ShowIn(QWidget* host);
    // Takes the bar off the screen; short cuts keep working.
    void HideBar();
    QMenuBar* Bar() const { return FBar; }

    // What the key hub asks.
    bool RunShortCut(int key, TShiftState shift) override;
    bool RunMnemonic(QChar letter) override;
    bool OpenMenu() override;

  protected:
    ~TMainMenu() override;

  private:
    void FillBar();
    QPointer<QMenuBar> FBar;
};

// A menu that opens where it is told to.
class TPopupMenu : public TMenu {
  public:
    explicit TPopupMenu(TComponent* owner) : TMenu(owner) {}

    // Opens the menu with its top left corner at (x, y) of the screen. OnPopup runs first.
    void Popup(int x, int y);

    std::function<void(TComponent*)> OnPopup;

  protected:
    ~TPopupMenu() override = default;
};
