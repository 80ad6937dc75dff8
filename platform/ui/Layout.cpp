#include "platform/ui/Layout.h"

namespace {

// One direction: where a stretch begins, and how long it is.
struct TStretch {
    int Begin;
    int Length;
};

TStretch AnchoredStretch(TStretch stretch, int growth, bool toBegin, bool toEnd) {
    if (toBegin && toEnd) return {stretch.Begin, std::max(0, stretch.Length + growth)};
    if (toEnd) return {stretch.Begin + growth, stretch.Length};
    if (toBegin) return stretch;
    return {stretch.Begin + growth / 2, stretch.Length};
}

}  // namespace

QRect TLayout::Anchored(const QRect& place, QSize then, QSize now, TAnchors anchors) {
    const TStretch across = AnchoredStretch({place.left(), place.width()}, now.width() - then.width(),
                                            anchors & akLeft, anchors & akRight);
    const TStretch down = AnchoredStretch({place.top(), place.height()}, now.height() - then.height(),
                                          anchors & akTop, anchors & akBottom);
    return {across.Begin, down.Begin, across.Length, down.Length};
}

void TLayout::Run() {
    const QSize size = FContainer.Container()->size();
    FRoom = QRect(QPoint(), size);
    const std::vector<TControl*> controls = FContainer.FControls;
    for (const TAlign align : {alTop, alBottom, alLeft, alRight, alClient}) {
        for (TControl* control : controls) {
            if (control->FAlign == align && control->FVisible) Fill(*control);
        }
    }
    for (TControl* control : controls) {
        if (control->FAlign != alNone || !control->FParentSize.isValid()) continue;
        Place(*control, Anchored(control->FPlace, control->FParentSize, size, control->FAnchors));
    }
}

void TLayout::Fill(TControl& control) {
    QRect place = FRoom;
    switch (control.FAlign) {
        case alTop:
            place.setHeight(control.Height());
            FRoom.setTop(place.bottom() + 1);
            break;
        case alBottom:
            place.setTop(FRoom.bottom() - control.Height() + 1);
            FRoom.setBottom(place.top() - 1);
            break;
        case alLeft:
            place.setWidth(control.Width());
            FRoom.setLeft(place.right() + 1);
            break;
        case alRight:
            place.setLeft(FRoom.right() - control.Width() + 1);
            FRoom.setRight(place.left() - 1);
            break;
        default: break;
    }
    Place(control, place);
}

void TLayout::Place(TControl& control, const QRect& place) {
    if (place != control.Bounds()) control.FWidget->setGeometry(place);
    control.SizeChanged();
}
