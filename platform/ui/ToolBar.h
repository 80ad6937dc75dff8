// Tool bars: a strip of buttons, or a main menu shown as buttons.
//
//     auto* bar = new TToolBar(form);
//     bar->SetParent(form);
//     bar->SetImages(images);
//     auto* button = new TToolButton(form);
//     button->SetCaption(u"Novo"_s);
//     button->SetImageIndex(0);
//     button->SetParent(bar);            // ordered by Left among the bar's buttons
//
// Neither the bar nor its buttons ever take the focus.
#pragma once
#include <QColor>
#include <QToolButton>
#include <vector>
#include "platform/ui/Control.h"

class TImageList;
class TMainMenu;
class TToolButton;

class TToolBar : public TWidget<QWidget> {
  public:
    explicit TToolBar(TComponent* owner);

    // The buttons from left to right, invisible ones included. A button that is being freed is already gone.
    int ButtonCount() const { return int(FButtons.size()); }
    TToolButton* Buttons(int index) const { return FButtons.at(size_t(index)); }

    // Where the buttons' images come from; not owned, null shows captions alone. Without images the captions
    // are flat.
    TImageList* Images() const { return FImages; }
    void SetImages(TImageList* images);

    // Shows the top items of `menu` as flat buttons in place of tool buttons; null takes them away.
    TMainMenu* Menu() const { return FMenu; }
    void SetMenu(TMainMenu* menu);

    // The least size of a button in pixels. Buttons grow to hold icon above caption, all of them to one size;
    // then ButtonWidth and ButtonHeight tell the size that they have.
    int ButtonWidth() const;
    int ButtonHeight() const;
    void SetButtonWidth(int width);
    void SetButtonHeight(int height);

    bool ShowCaptions() const { return FShowCaptions; }
    void SetShowCaptions(bool show);

    // The background, shaded from top to bottom; an invalid colour (the beginning) paints none.
    void SetGradient(const QColor& top, const QColor& bottom);

    // The size that holds all visible buttons.
    QSize sizeHint() const override;

    // Puts the buttons side by side in their order and sizes them. Called by itself after every change.
    void LayButtons();

  protected:
    ~TToolBar() override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    friend class TToolButton;
    void Enlist(TToolButton* button);
    void Delist(TToolButton* button);
    QSize ButtonSize() const;

    std::vector<TToolButton*> FButtons;
    TImageList* FImages = nullptr;
    TFreeNotice FImagesNotice;
    TMainMenu* FMenu = nullptr;
    TFreeNotice FMenuNotice;
    QSize FLeast{23, 22};
    QColor FTop, FBottom;
    bool FShowCaptions = true;
};

enum TToolButtonStyle { tbsButton, tbsCheck, tbsSeparator };

class TToolButton : public TWidget<QToolButton> {
  public:
    explicit TToolButton(TComponent* owner);

    // Index in the bar's image list; -1 (the beginning) or one that the list lacks shows no image.
    int ImageIndex() const { return FImageIndex; }
    void SetImageIndex(int index);

    TToolButtonStyle Style() const { return FStyle; }
    void SetStyle(TToolButtonStyle style);

    // Pressed in, for tbsCheck. Setting it by code fires no event.
    bool Down() const { return isChecked(); }
    void SetDown(bool down) { setChecked(down); }

    // Runs OnClick as a click of the mouse does, when the button is enabled.
    void Click();

    // The bar it stands in; null outside of one.
    TToolBar* Bar() const { return FBar; }

    // Inside a bar, another `left` (SetLeft too) gives the button its place among the others, before a button
    // with that Left, and the bar lays all of them out again. A button that was never placed comes last.
    void SetBounds(int left, int top, int width, int height) override;
    void SetParent(TControl* parent) override;
    void SetCaption(const UnicodeString& caption) override;
    void SetVisible(bool visible) override;

    QSize sizeHint() const override;
    bool RunMnemonic(QChar letter) override;

  protected:
    ~TToolButton() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    friend class TToolBar;
    void ShowImage();
    void PaintBack(QPainter& painter) const;

    TToolBar* FBar = nullptr;
    int FImageIndex = -1;
    TToolButtonStyle FStyle = tbsButton;
    bool FPlaced = false;
};
