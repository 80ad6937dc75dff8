// A form's frame: where its parts lie, its limits, its looks, and the mouse on its border.
#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/CaptionBar.h"
#include "platform/ui/Form.h"
#include "platform/ui/FormDrag.h"
#include "platform/ui/FormParts.h"
#include "platform/ui/Menus.h"
#include "platform/ui/Palette.h"

TFormClient::TFormClient(TForm& form) : TWidget(nullptr), FForm(form) {
    setCursor(Qt::ArrowCursor);
}

TControl* TFormClient::ChildHost() {
    return &FForm;
}

void TFormClient::paintEvent(QPaintEvent*) {
    CalledByPaint([this] {
        QPainter painter(this);
        painter.fillRect(rect(), palette().window());
        if (FForm.OnPaint) FForm.OnPaint(painter);
    });
}

TFormShield::TFormShield(TForm& form) : QWidget(form.Widget()), FForm(form) {
    setCursor(Qt::ArrowCursor);
}

void TFormShield::mousePressEvent(QMouseEvent* event) {
    event->accept();
    CalledByQt(&FForm, [this] { FForm.ShieldClick(); });
}

void TFormShield::wheelEvent(QWheelEvent* event) {
    event->accept();
}

int TForm::VerticalScrollBarWidth() {
    return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void TForm::SetFormStyle(TFormStyle style) {
    FFormStyle = style;
    if (style != fsNormal) SetVisible(true);
    TActiveForms& forms = TActiveForms::Instance();
    if (style == fsMDIForm && !FClientArea) {
        auto* area = new TClientArea(nullptr);
        area->SetName(QStringLiteral("ClientArea"));
        area->SetParent(this);
        area->SetAlign(alClient);
        FClientArea = area;
        if (!forms.MainForm()) forms.SetMainForm(this);
    }
    ApplyFrame();
}

void TForm::SetBorderStyle(TBorderStyle style) {
    FBorderStyle = style;
    ApplyFrame();
}

void TForm::SetBorderIcons(TBorderIcons icons) {
    FBorderIcons = icons;
    ApplyFrame();
}

// Another frame keeps the client area's size.
void TForm::ApplyFrame() {
    const QSize client = FClient->size();
    const TForm* main = TActiveForms::Instance().MainForm();
    FEmbedded = FFormStyle == fsMDIChild && main && main != this && main->FClientArea;
    if (FEmbedded) {
        QWidget* area = main->FClientArea->Widget();
        if (parentWidget() != area) setParent(area, Qt::SubWindow);
    } else {
        ApplyWindowFlags();
    }
    SetSizeLimits();
    const bool bar = FEmbedded && FBorderStyle != bsNone;
    if (!bar) delete std::exchange(FCaptionBar, nullptr);
    if (bar && !FCaptionBar) FCaptionBar = new TCaptionBar(*this, *FDrag);
    if (bar) FCaptionBar->setVisible(true);
    SetClientWidth(client.width());
    SetClientHeight(client.height());
    LayFrame();
}

void TForm::ApplyWindowFlags() {
    const bool dialog = FBorderStyle == bsDialog || FBorderStyle == bsToolWindow;
    Qt::WindowFlags flags =
        dialog ? Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint : Qt::WindowFlags(Qt::Window);
    flags |= Qt::CustomizeWindowHint;
    if (FBorderStyle == bsNone) {
        flags |= Qt::FramelessWindowHint;
    } else {
        flags |= Qt::WindowTitleHint;
        if (FBorderIcons & biSystemMenu) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
        if (!dialog && FBorderIcons & biMinimize) flags |= Qt::WindowMinimizeButtonHint;
        if (!dialog && FBorderIcons & biMaximize) flags |= Qt::WindowMaximizeButtonHint;
    }
    if (flags == windowFlags() && !parentWidget()) return;
    const bool shown = isVisible();
    setParent(nullptr, flags);
    if (shown) CallQt([this] { Widget()->show(); });
}

QMargins TForm::FrameMargins() const {
    const int menu = FMenuBar ? FMenuBar->sizeHint().height() : 0;
    if (!FCaptionBar) return {0, menu, 0, 0};
    return {FrameWidth(), CaptionHeight() + menu, FrameWidth(), FrameWidth()};
}

void TForm::LayFrame() {
    const QMargins margins = FrameMargins();
    if (FCaptionBar) FCaptionBar->setGeometry(1, 1, width() - 2, CaptionHeight() - 1);
    if (FMenuBar) {
        const int height = FMenuBar->sizeHint().height();
        FMenuBar->setGeometry(margins.left(), margins.top() - height, width() - 2 * margins.left(), height);
    }
    FClient->setGeometry(rect().marginsRemoved(margins));
    if (!FShield) return;
    FShield->setGeometry(rect());
    FShield->raise();
}

void TForm::SetBounds(int left, int top, int width, int height) {
    CallQt([&] {
        if (HasOneSize()) SetSizeLimits();
        Widget()->setGeometry(left, top, std::max(0, width), std::max(0, height));
        HoldSize();
    });
    LayFrame();
    SizeChanged();
}

void TForm::resizeEvent(QResizeEvent* event) {
    LayFrame();
    TWidget::resizeEvent(event);
}

void TForm::SetClientWidth(int width) {
    const QMargins margins = FrameMargins();
    SetWidth(width + margins.left() + margins.right());
}

void TForm::SetClientHeight(int height) {
    const QMargins margins = FrameMargins();
    SetHeight(height + margins.top() + margins.bottom());
}

void TForm::SetMinWidth(int width) {
    FLeast.setWidth(width);
    ApplyLimits();
}

void TForm::SetMinHeight(int height) {
    FLeast.setHeight(height);
    ApplyLimits();
}

void TForm::SetMaxWidth(int width) {
    FMost.setWidth(width);
    ApplyLimits();
}

void TForm::SetMaxHeight(int height) {
    FMost.setHeight(height);
    ApplyLimits();
}

void TForm::SetSizeLimits() {
    const auto limit = [](int length) { return length > 0 ? length : QWIDGETSIZE_MAX; };
    const bool small = FEmbedded && FWindowState == wsMinimized;
    setMaximumSize(limit(FMost.width()), limit(FMost.height()));
    setMinimumSize(small ? QSize(0, 0) : FLeast.expandedTo(QSize(0, 0)));
}

// Window managers offer sizing and maximising even for a dialog's border unless the limits leave one size.
bool TForm::HasOneSize() const {
    return !FEmbedded && (FBorderStyle == bsDialog || FBorderStyle == bsToolWindow);
}

void TForm::HoldSize() {
    if (HasOneSize()) setFixedSize(size());
}

void TForm::ApplyLimits() {
    SetSizeLimits();
    HoldSize();
    LayFrame();
    SizeChanged();
}

void TForm::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    setWindowTitle(caption);
    if (FCaptionBar) FCaptionBar->update();
}

void TForm::SetIcon(const QIcon& icon) {
    FIcon = icon;
    setWindowIcon(icon);
    if (FCaptionBar) FCaptionBar->update();
}

void TForm::SetMenu(TMainMenu* menu) {
    if (FMenu && FMenu != menu) FMenu->HideBar();
    const int client = ClientHeight();
    FMenu = menu;
    FMenuBar = menu ? menu->ShowIn(this) : nullptr;
    FMenuNotice = menu ? menu->AddFreeNotification([this] { SetMenu(nullptr); }) : TFreeNotice();
    SetClientHeight(client);
    LayFrame();
}

namespace {

constexpr int kTitleRoom = 40;  // what a window manager's title bar takes at most

QRect ScreenRoom() {
    return QGuiApplication::primaryScreen()->availableGeometry().adjusted(0, kTitleRoom, 0, 0);
}

}  // namespace

bool TForm::Sizeable() const {
    return FEmbedded && FBorderStyle == bsSizeable && FWindowState == wsNormal;
}

// The rectangle over which the form is centred, in the coordinates of its own place; null for none.
QRect TForm::PlaceOver() const {
    const TForm* over = nullptr;
    if (FPosition == poOwnerFormCenter) over = dynamic_cast<TForm*>(Owner());
    if (FPosition == poMainFormCenter) over = TActiveForms::Instance().MainForm();
    if (FEmbedded) {
        if (over && over->FEmbedded) return over->Bounds();
        return FPosition == poDesigned ? QRect() : parentWidget()->rect();
    }
    if (over) return {over->mapToGlobal(QPoint()), over->size()};
    return FPosition == poDesigned ? QRect() : ScreenRoom();
}

// On the screen a form is no larger than what there is, so that its caption stays within reach.
void TForm::PlaceForm() {
    const QRect over = PlaceOver();
    if (over.isNull()) return;
    if (!FEmbedded && FPosition == poScreenCenter) {
        const QSize fitting = size().boundedTo(over.size());
        SetBounds(Left(), Top(), fitting.width(), fitting.height());
    }
    SetBounds(over.left() + over.width() / 2 - Width() / 2, over.top() + over.height() / 2 - Height() / 2,
              Width(), Height());
}

void TForm::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Cores::Superficie);
    if (!FCaptionBar) return;
    painter.setPen(Active() ? Cores::FioAtivo : Cores::Fio.darker(110));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TForm::mousePressEvent(QMouseEvent* event) {
    TWidget::mousePressEvent(event);
    if (event->button() != Qt::LeftButton) return;
    const Qt::Edges edges = FDrag->EdgesAt(event->position().toPoint());
    if (edges) FDrag->Press(event->globalPosition().toPoint(), edges);
    if (edges) event->accept();
}

void TForm::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) {
        const QPoint at = event->globalPosition().toPoint();
        CalledByQt(this, [&] { FDrag->Move(at); });
    } else {
        setCursor(TFormDrag::CursorFor(FDrag->EdgesAt(event->position().toPoint())));
    }
}

void TForm::mouseReleaseEvent(QMouseEvent* event) {
    TWidget::mouseReleaseEvent(event);
    CalledByQt(this, [this] { FDrag->Release(); });
}
