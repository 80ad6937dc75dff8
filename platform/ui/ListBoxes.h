// Lists of texts: one to choose from, and one whose items also carry check marks.
//
//     auto* fields = NewControl<TCheckListBox>(form, form, u"LstCampos"_s, QRect(8, 8, 200, 300));
//     fields->Items()->Add(u"Nome"_s);
//     fields->SetChecked(0, true);
//     fields->OnClickCheck = [this](TComponent*) { ShowColumns(); };
#pragma once
#include <memory>
#include <QListWidget>
#include "platform/rtl/Strings.h"
#include "platform/ui/Control.h"

class TListBox : public TWidget<QListWidget> {
  public:
    explicit TListBox(TComponent* owner);

    // Changing the list keeps the chosen index while there is one.
    TStrings* Items() const { return FItems.get(); }
    // -1 when none is chosen; one that only has the focus is not. Setting it fires no event.
    int ItemIndex() const { return selectedItems().isEmpty() ? -1 : currentRow(); }
    void SetItemIndex(int index);

    // OnClick (of TControl) also comes when the user chooses another item by keyboard.

  protected:
    ~TListBox() override;
    void keyPressEvent(QKeyEvent* event) override;
    // One item is about to be shown.
    virtual void Prepare(QListWidgetItem&) {}

  private:
    void ShowItems();
    std::unique_ptr<TStringList> FItems;
};

// The box before an item is clicked, or Space pressed on it, to check or clear it.
class TCheckListBox : public TListBox {
  public:
    explicit TCheckListBox(TComponent* owner);

    // `index` from 0 to Items()->Count() - 1; another one reads as not checked and changes nothing.
    bool Checked(int index) const;
    // Fires no event. New items are not checked.
    void SetChecked(int index, bool checked);

    // The user checked or cleared an item, which is the chosen one then.
    std::function<void(TComponent* sender)> OnClickCheck;

  protected:
    ~TCheckListBox() override = default;
    void Prepare(QListWidgetItem& item) override;

  private:
    void UserChecked(QListWidgetItem& item);
};
