// The standard controls: labels, panels, edits, combo and check boxes, buttons, memos and images.
//
//     auto* edit = NewControl<TEdit>(form, panel, u"EdtNome"_s, QRect(8, 26, 200, kEditHeight));
//     edit->OnChange = [this](TComponent*) { Search(); };
#pragma once
#include <QCheckBox>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include "platform/data/DataTypes.h"
#include "platform/rtl/EditMask.h"
#include "platform/rtl/Strings.h"
#include "platform/ui/Control.h"

// The usual height of edits, combo boxes and buttons.
constexpr int kEditHeight = 25;

// A text that is not edited. "&" marks a mnemonic, which focuses FocusControl.
class TLabel : public TWidget<QLabel> {
  public:
    explicit TLabel(TComponent* owner);

    void SetCaption(const UnicodeString& caption) override;
    void SetFont(const QFont& font) override;
    // Grows and shrinks with its caption (at the beginning yes); right-justified it keeps its right side.
    void SetAutoSize(bool autoSize);
    void SetAlignment(TAlignment alignment);
    void SetWordWrap(bool wrap);
    void SetFocusControl(TControl* control);
    bool RunMnemonic(QChar letter) override;

  protected:
    ~TLabel() override = default;

  private:
    void Fit();
    TControl* FFocusControl = nullptr;
    TFreeNotice FFocusNotice;
    bool FAutoSize = true;
};

// An area that holds other controls; without a colour it shows its parent's.
class TPanel : public TWidget<QWidget> {
  public:
    explicit TPanel(TComponent* owner);

    // A hairline around it.
    void SetBorder(bool border);
    void SetCaption(const UnicodeString& caption) override;

  protected:
    ~TPanel() override = default;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool FBorder = false;
};

// A line of text.
class TEdit : public TWidget<QLineEdit> {
  public:
    explicit TEdit(TComponent* owner);

    UnicodeString Text() const { return DoText(); }
    // Fires OnChange when the text differs.
    void SetText(const UnicodeString& text) { DoSetText(text); }
    bool ReadOnly() const { return isReadOnly(); }
    void SetReadOnly(bool readOnly);
    // Characters; 0 is no limit.
    int MaxLength() const { return FMaxLength; }
    void SetMaxLength(int length);
    void SetAlignment(TAlignment alignment);
    void SetBorder(bool border) { setFrame(border); }
    // A grey text shown while the edit is empty.
    void SetTextHint(const UnicodeString& hint) { setPlaceholderText(hint); }
    void SetPasswordChar(bool password) { setEchoMode(password ? Password : Normal); }
    void SelectAll() { selectAll(); }
    void CaretToEnd() { end(false); }

    // The text changed, by the user or by SetText.
    std::function<void(TComponent* sender)> OnChange;

  protected:
    ~TEdit() override = default;
    virtual UnicodeString DoText() const { return text(); }
    virtual void DoSetText(const UnicodeString& text);
    virtual void Change();

  private:
    int FMaxLength = 0;
};

// A line of text with an edit mask (see EditMask.h); without one a TEdit. Text is the value to store,
// EditText what is seen.
class TMaskEdit : public TEdit {
  public:
    explicit TMaskEdit(TComponent* owner);

    const UnicodeString& EditMask() const { return FMask.Mask(); }
    // The text is laid out anew for the mask.
    void SetEditMask(const UnicodeString& mask);
    UnicodeString EditText() const { return text(); }
    // Every place that must be filled is filled.
    bool IsComplete() const { return FMask.IsEmpty() || FMask.IsComplete(text()); }

  protected:
    ~TMaskEdit() override = default;
    UnicodeString DoText() const override;
    void DoSetText(const UnicodeString& text) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

  private:
    void TypeAt(const UnicodeString& letters);
    void EraseAt(int from, int to, int caret);
    bool EraseKey(const QKeyEvent& event);
    void Paste();
    int NextPlace(int position) const;

    TEditMask FMask;
};

// A list from which one text is chosen; an editable one also takes any text.
class TComboBox : public TWidget<QComboBox> {
  public:
    explicit TComboBox(TComponent* owner);

    // Changing the list keeps the chosen index while there is one.
    TStrings* Items() const;
    // -1 when none is chosen. Setting it by code fires no event.
    int ItemIndex() const { return currentIndex(); }
    void SetItemIndex(int index);
    UnicodeString Text() const { return currentText(); }
    // Chooses the item of that text; an editable box takes any.
    void SetText(const UnicodeString& text);
    bool Editable() const { return isEditable(); }
    void SetEditable(bool editable);
    bool DroppedDown() const;
    void SetDroppedDown(bool dropped);

    // The user chose an item or typed a text.
    std::function<void(TComponent* sender)> OnChange;

  protected:
    ~TComboBox() override;
    virtual void Change();

  private:
    void ShowItems();
    std::unique_ptr<TStringList> FItems;  // kept here, so that reading it does not ask the widget
};

// The third state, greyed, is set by code only: the user's click on it checks the box.
enum TCheckBoxState { cbUnchecked, cbChecked, cbGrayed };

class TCheckBox : public TWidget<QCheckBox> {
  public:
    explicit TCheckBox(TComponent* owner);
    void SetCaption(const UnicodeString& caption) override;
    bool Checked() const { return State() == cbChecked; }
    TCheckBoxState State() const;
    // Neither fires an event; OnClick is the user's.
    void SetChecked(bool checked) { SetState(checked ? cbChecked : cbUnchecked); }
    void SetState(TCheckBoxState state);
    bool RunMnemonic(QChar letter) override;

  protected:
    ~TCheckBox() override = default;
    void nextCheckState() override;
};

class TButton : public TWidget<QPushButton> {
  public:
    explicit TButton(TComponent* owner);
    void SetCaption(const UnicodeString& caption) override;
    // Clicked by Enter anywhere on the form where no control wants it, and drawn as the default; by Escape.
    void SetDefault(bool isDefault);
    void SetCancel(bool cancel) { FCancel = cancel; }
    // What a click sets as the form's modal result; 0 sets none.
    int ModalResult() const { return FModalResult; }
    void SetModalResult(int result) { FModalResult = result; }
    void Click() { click(); }

    bool WantsEnter() const override { return true; }
    bool DialogKey(int key) override;
    bool RunMnemonic(QChar letter) override;

  protected:
    ~TButton() override = default;
    void DoClick() override;

  private:
    int FModalResult = 0;
    bool FCancel = false;
};

// Several lines of text. Lines end with CR LF in Text.
class TMemo : public TWidget<QPlainTextEdit> {
  public:
    explicit TMemo(TComponent* owner);

    UnicodeString Text() const;
    // Fires OnChange when the text differs.
    void SetText(const UnicodeString& text);
    bool ReadOnly() const { return isReadOnly(); }
    void SetReadOnly(bool readOnly) { setReadOnly(readOnly); }
    // Enter makes a new line (at the beginning yes); otherwise it is left to the form.
    bool WantReturns() const { return FWantReturns; }
    void SetWantReturns(bool want) { FWantReturns = want; }
    void SetWordWrap(bool wrap);
    void SelectAll() { selectAll(); }

    std::function<void(TComponent* sender)> OnChange;

    bool WantsEnter() const override { return FWantReturns; }

  protected:
    ~TMemo() override = default;
    virtual void Change();
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool FWantReturns = true;
};

// A picture, drawn in the middle, sharp at any scale.
class TImage : public TWidget<QWidget> {
  public:
    explicit TImage(TComponent* owner);

    // Shows the icon `name` of a resource folder; an empty folder shows nothing. Throws EResNotFound.
    void SetResource(const UnicodeString& folder, const UnicodeString& name);
    void SetIcon(const QIcon& icon);
    const QIcon& Icon() const { return FIcon; }

  protected:
    ~TImage() override = default;
    void paintEvent(QPaintEvent* event) override;

  private:
    QIcon FIcon;
};
