#include "platform/ui/CaptionBar.h"

#include <QMouseEvent>
#include <QPainter>
#include "platform/ui/Form.h"
#include "platform/ui/FormDrag.h"
#include "platform/ui/Palette.h"

namespace {

constexpr int kMargin = 8;
constexpr int kIconSize = 16;
constexpr double kSign = 10;  // side of the drawing on a button

}  // namespace

TCaptionBar::TCaptionBar(TForm& form, TFormDrag& drag) : QWidget(form.Widget()), FForm(form), FDrag(drag) {
    setMouseTracking(true);
    setCursor(Qt::ArrowCursor);
}

std::vector<TCaptionBar::TButton> TCaptionBar::Buttons() const {
    const bool small = FForm.BorderStyle() == bsToolWindow;
    const bool dialog = small || FForm.BorderStyle() == bsDialog;
    const int width = small ? TForm::SmallCaptionButtonWidth() : TForm::CaptionButtonWidth();
    std::vector<TButton> buttons;
    int right = this->width();
    const auto add = [&](int command) {
        buttons.insert(buttons.begin(), {command, QRect(right - width, 0, width, height())});
        right -= width;
    };
    if (FForm.BorderIcons() & biSystemMenu) add(SC_CLOSE);
    if (!dialog && FForm.BorderIcons() & biMaximize) add(SC_MAXIMIZE);
    if (!dialog && FForm.BorderIcons() & biMinimize) add(SC_MINIMIZE);
    return buttons;
}

QRect TCaptionBar::ButtonRect(int command) const {
    for (const TButton& button : Buttons()) {
        if (button.Command == command) return button.Place;
    }
    return {};
}

int TCaptionBar::CommandAt(QPoint at) const {
    for (const TButton& button : Buttons()) {
        if (button.Place.contains(at)) return button.Command;
    }
    return 0;
}

void TCaptionBar::Send(int command) {
    if (command == SC_MAXIMIZE && FForm.WindowState() == wsMaximized) command = SC_RESTORE;
    if (command == SC_MINIMIZE && FForm.WindowState() == wsMinimized) command = SC_RESTORE;
    CalledByQt(&FForm, [&] { FForm.Perform(WM_SYSCOMMAND, command); });
}

void TCaptionBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    FPressed = CommandAt(at);
    if (!FPressed) FDrag.Press(event->globalPosition().toPoint(), FDrag.EdgesAt(mapToParent(at)));
    update();
}

void TCaptionBar::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (std::exchange(FHovered, CommandAt(at)) != FHovered) update();
    if (event->buttons() & Qt::LeftButton) {
        const QPoint global = event->globalPosition().toPoint();
        if (!FPressed) CalledByQt(&FForm, [&] { FDrag.Move(global); });
    } else {
        setCursor(TFormDrag::CursorFor(FHovered ? Qt::Edges() : FDrag.EdgesAt(mapToParent(at))));
    }
}

void TCaptionBar::mouseReleaseEvent(QMouseEvent* event) {
    const int pressed = std::exchange(FPressed, 0);
    update();
    CalledByQt(&FForm, [&] { FDrag.Release(); });
    if (pressed && pressed == CommandAt(event->position().toPoint())) Send(pressed);
}

void TCaptionBar::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (event->button() != Qt::LeftButton) return;
    FPressed = CommandAt(at);
    if (FPressed || !ButtonRect(SC_MAXIMIZE).isValid()) return;
    const bool restores = FForm.WindowState() != wsNormal;
    CalledByQt(&FForm,
               [&] { FForm.Perform(WM_SYSCOMMAND, restores ? SC_RESTORE + 2 : SC_MAXIMIZE_BY_CAPTION); });
}

void TCaptionBar::leaveEvent(QEvent*) {
    FHovered = 0;
    update();
}

void TCaptionBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), FForm.Active() ? Cores::BarraAtiva : Cores::Superficie);
    PaintTitle(painter);
    for (const TButton& button : Buttons()) PaintButton(painter, button);
}

void TCaptionBar::PaintTitle(QPainter& painter) const {
    int left = kMargin;
    if (!FForm.Icon().isNull()) {
        FForm.Icon().paint(&painter, left, (height() - kIconSize) / 2, kIconSize, kIconSize);
        left += kIconSize + kMargin - 2;
    }
    const std::vector<TButton> buttons = Buttons();
    const int right = buttons.empty() ? width() : buttons.front().Place.left();
    const QRect room(left, 0, std::max(0, right - left - kMargin), height());
    painter.setPen(FForm.Active() ? Cores::Texto : Cores::Dica);
    const QString title = fontMetrics().elidedText(FForm.Caption(), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, title);
}

void TCaptionBar::PaintButton(QPainter& painter, const TButton& button) const {
    const bool hovered = FHovered == button.Command;
    const bool closes = button.Command == SC_CLOSE;
    if (hovered) {
        const QColor shade = closes ? Cores::Erro : FForm.Active() ? Cores::Selecao : Cores::SuperficieEscura;
        painter.fillRect(button.Place, FPressed == button.Command ? shade.darker(110) : shade);
    }
    const QColor ink = hovered && closes ? Cores::Trabalho : FForm.Active() ? Cores::Texto : Cores::Dica;
    painter.setPen(QPen(ink, 1));
    QRectF sign(0, 0, kSign, kSign);
    sign.moveCenter(QRectF(button.Place).center());
    sign.moveTopLeft(QPointF(std::floor(sign.left()), std::floor(sign.top())) + QPointF(0.5, 0.5));
    PaintSign(painter, button.Command, sign);
}

void TCaptionBar::PaintSign(QPainter& painter, int command, const QRectF& place) const {
    if (command == SC_CLOSE) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawLine(place.topLeft(), place.bottomRight());
        painter.drawLine(place.bottomLeft(), place.topRight());
        painter.setRenderHint(QPainter::Antialiasing, false);
    } else if (command == SC_MINIMIZE && FForm.WindowState() != wsMinimized) {
        const double middle = place.top() + kSign / 2;
        painter.drawLine(QPointF(place.left(), middle), QPointF(place.right(), middle));
    } else if (FForm.LooksMaximized() || command == SC_MINIMIZE) {
        const QRectF front = place.adjusted(0, 2, -2, 0);
        painter.drawRect(front);
        painter.drawPolyline(QPolygonF{front.topLeft() + QPointF(2, 0), front.topLeft() + QPointF(2, -2),
                                       front.topRight() + QPointF(2, -2),
                                       front.bottomRight() + QPointF(2, -2),
                                       front.bottomRight() + QPointF(0, -2)});
    } else {
        painter.drawRect(place);
    }
}
