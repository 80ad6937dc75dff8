#include <QPainter>
#include "platform/ui/Form.h"
#include "platform/ui/FormParts.h"
#include "platform/ui/Palette.h"

namespace {

constexpr int kGrip = 80;  // pixels of a caption that stay in sight

}  // namespace

TClientArea::TClientArea(TComponent* owner) : TWidget(owner) {}

QPoint TClientArea::Reachable(const QRect& place, QSize area) {
    const int rightmost = std::max(0, area.width() - kGrip);
    const int lowest = std::max(0, area.height() - TForm::CaptionHeight());
    return {std::clamp(place.left(), std::min(kGrip - place.width(), rightmost), rightmost),
            std::clamp(place.top(), 0, lowest)};
}

void TClientArea::DoResize() {
    TWidget::DoResize();
    const QList<QWidget*> inside = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* widget : inside) {
        auto* form = dynamic_cast<TForm*>(widget);
        if (!form) continue;
        if (form->WindowState() == wsMaximized) {
            form->SetBounds(0, 0, width(), height());
        } else if (isVisible()) {
            const QPoint place = Reachable(form->Bounds(), size());
            if (place != form->pos()) form->SetBounds(place.x(), place.y(), form->Width(), form->Height());
        }
    }
}

void TClientArea::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), Cores::FundoJanela);
}
