#include "platform/ui/ToolBar.h"

#include <QLinearGradient>
#include <QPainter>
#include <QStyle>
#include "platform/ui/Guard.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Mnemonic.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 3;          // around the content of a button
constexpr int kCaptionPadding = 6;  // left and right of a caption
constexpr int kIconGap = 1;         // between icon and caption
constexpr int kSeparatorWidth = 8;

}  // namespace

TToolBar::TToolBar(TComponent* owner) : TWidget(owner) {
    setFocusPolicy(Qt::NoFocus);
    setAccessibleName(u"Barra de botões"_s);
}

TToolBar::~TToolBar() {
    if (FMenu) FMenu->HideBar();
    for (TToolButton* button : FButtons) button->FBar = nullptr;
}

void TToolBar::SetImages(TImageList* images) {
    FImages = images;
    FImagesNotice = images ? images->AddFreeNotification([this] { SetImages(nullptr); }) : TFreeNotice();
    for (TToolButton* button : FButtons) button->ShowImage();
    LayButtons();
}

void TToolBar::SetMenu(TMainMenu* menu) {
    if (FMenu && FMenu != menu) FMenu->HideBar();
    FMenu = menu;
    FMenuNotice = menu ? menu->AddFreeNotification([this] { FMenu = nullptr; }) : TFreeNotice();
    LayButtons();
}

int TToolBar::ButtonWidth() const {
    return ButtonSize().width();
}

int TToolBar::ButtonHeight() const {
    return ButtonSize().height();
}

void TToolBar::SetButtonWidth(int width) {
    FLeast.setWidth(width);
    LayButtons();
}

void TToolBar::SetButtonHeight(int height) {
    FLeast.setHeight(height);
    LayButtons();
}

void TToolBar::SetShowCaptions(bool show) {
    FShowCaptions = show;
    LayButtons();
}

void TToolBar::SetGradient(const QColor& top, const QColor& bottom) {
    FTop = top;
    FBottom = bottom;
    update();
}

QSize TToolBar::ButtonSize() const {
    QSize size = FLeast;
    for (const TToolButton* button : FButtons) {
        if (button->Style() != tbsSeparator) size = size.expandedTo(button->sizeHint());
    }
    return size;
}

QSize TToolBar::sizeHint() const {
    if (FMenu && FMenu->Bar()) return FMenu->Bar()->sizeHint();
    const QSize each = ButtonSize();
    int width = 0;
    for (const TToolButton* button : FButtons) {
        if (button->Visible()) width += button->Style() == tbsSeparator ? kSeparatorWidth : each.width();
    }
    return {width, each.height()};
}

void TToolBar::LayButtons() {
    if (FMenu) FMenu->ShowIn(this)->setGeometry(0, 0, width(), height());
    const QSize each = ButtonSize();
    const int top = std::max(0, (height() - each.height()) / 2);
    int left = 0;
    for (TToolButton* button : FButtons) {
        if (!button->Visible()) continue;
        const int width = button->Style() == tbsSeparator ? kSeparatorWidth : each.width();
        button->TControl::SetBounds(left, top, width, each.height());
        left += width;
    }
    update();
}

void TToolBar::Enlist(TToolButton* button) {
    std::erase(FButtons, button);
    const auto place = std::find_if(FButtons.begin(), FButtons.end(), [&](const TToolButton* other) {
        return button->FPlaced && other->Left() >= button->Left();
    });
    FButtons.insert(place, button);
    LayButtons();
}

void TToolBar::Delist(TToolButton* button) {
    if (std::erase(FButtons, button)) LayButtons();
}

void TToolBar::paintEvent(QPaintEvent*) {
    if (!FTop.isValid()) return;
    QLinearGradient shade(0, 0, 0, height());
    shade.setColorAt(0, FTop);
    shade.setColorAt(1, FBottom);
    QPainter(this).fillRect(rect(), shade);
}

void TToolBar::resizeEvent(QResizeEvent* event) {
    TWidget::resizeEvent(event);
    LayButtons();
}

TToolButton::TToolButton(TComponent* owner) : TWidget(owner) {
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
    setAttribute(Qt::WA_Hover);
}

TToolButton::~TToolButton() {
    if (FBar) FBar->Delist(this);
}

void TToolButton::SetImageIndex(int index) {
    FImageIndex = index;
    ShowImage();
    if (FBar) FBar->LayButtons();
}

void TToolButton::ShowImage() {
    const TImageList* images = FBar ? FBar->Images() : nullptr;
    const bool has = images && FImageIndex >= 0 && FImageIndex < images->Count();
    setIcon(has ? images->Icon(FImageIndex) : QIcon());
    if (has) setIconSize(QSize(images->Width(), images->Height()));
}

void TToolButton::SetStyle(TToolButtonStyle style) {
    FStyle = style;
    setCheckable(style == tbsCheck);
    SetEnabled(style != tbsSeparator);
    if (FBar) FBar->LayButtons();
}

void TToolButton::Click() {
    click();
}

void TToolButton::SetBounds(int left, int top, int width, int height) {
    FPlaced = true;
    const bool moved = left != Left();
    TWidget::SetBounds(left, top, width, height);
    if (!FBar) return;
    if (moved) {
        FBar->Enlist(this);
    } else {
        FBar->LayButtons();
    }
}

void TToolButton::SetParent(TControl* parent) {
    TWidget::SetParent(parent);
    if (FBar) FBar->Delist(this);
    FBar = dynamic_cast<TToolBar*>(parent);
    ShowImage();
    if (FBar) FBar->Enlist(this);
}

void TToolButton::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    setText(caption);
    if (FBar) FBar->LayButtons();
}

void TToolButton::SetVisible(bool visible) {
    TWidget::SetVisible(visible);
    if (FBar) FBar->LayButtons();
}

bool TToolButton::RunMnemonic(QChar letter) {
    if (!isVisible() || !isEnabled() || !HasMnemonic(Caption(), letter)) return false;
    Click();
    return true;
}

QSize TToolButton::sizeHint() const {
    const bool captions = !FBar || FBar->ShowCaptions();
    const QSize caption = captions && !text().isEmpty()
                              ? fontMetrics().size(Qt::TextShowMnemonic | Qt::TextSingleLine, text())
                              : QSize();
    const QSize image = icon().isNull() ? QSize() : iconSize();
    const int gap = image.isValid() && caption.isValid() ? kIconGap : 0;
    return {std::max(caption.width() + 2 * kCaptionPadding, image.width() + 2 * kMargin),
            std::max(0, image.height()) + gap + std::max(0, caption.height()) + 2 * kMargin};
}

void TToolButton::PaintBack(QPainter& painter) const {
    const bool pressed = isDown() || isChecked();
    if (!isEnabled() || !(pressed || underMouse())) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pressed ? Cores::Destaque : Cores::Fio);
    painter.setBrush(pressed ? Cores::Selecao : Cores::Trabalho);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
}

void TToolButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (FStyle == tbsSeparator) {
        painter.setPen(Cores::Fio);
        painter.drawLine(width() / 2, kMargin, width() / 2, height() - kMargin);
        return;
    }
    PaintBack(painter);
    QRect room = rect().adjusted(0, kMargin, 0, -kMargin);
    if (!icon().isNull()) {
        const QRect image(QPoint((width() - iconSize().width()) / 2, room.top()), iconSize());
        icon().paint(&painter, image, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
        room.setTop(image.bottom() + 1 + kIconGap);
    }
    if (FBar && !FBar->ShowCaptions()) return;
    painter.setPen(isEnabled() ? Cores::Texto : Cores::Dica.lighter(150));
    painter.drawText(room, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, text());
}
