#include "forms/base/HeaderStrip.h"

#include <algorithm>

#include <QPaintDevice>
#include <QPainter>

#include "platform/ui/Resources.h"

void THeaderStrip::Load(const UnicodeString& folder) {
    FFolder = folder;
    Measure(FButtonsBar, u"BMP_BUTTONS_BAR");
    Measure(FEfectBar, FSide == ButtonsLeft ? u"BMP_EFECT_BAR" : u"BMP_EFECT_BAR_R");
    Measure(FBlueBar, u"BMP_BLUE_BAR");
    Measure(FEndEfect, u"BMP_EFECT_BAR_END");
}

TStripLayout THeaderStrip::Lay(int top, int width, int buttonsLeft, int buttonsWidth) const {
    const int buttonsRight = buttonsLeft + buttonsWidth;
    const bool left = FSide == ButtonsLeft;
    const int efect = left ? buttonsRight : buttonsLeft - EfectWidth();
    const int blue = left ? efect + EfectWidth() : 0;
    const int blueEnd = left ? width - EndWidth() : efect;
    TStripLayout layout;
    layout.ButtonsBar = QRect(buttonsLeft, top, buttonsWidth, kHeight);
    layout.Efect = QRect(efect, top, EfectWidth(), kHeight);
    layout.BlueBar = QRect(blue, top, std::max(blueEnd - blue, 0), kHeight);
    if (left || buttonsRight <= width - EndWidth())
        layout.EndEfect = QRect(width - EndWidth(), top, EndWidth(), kHeight);
    return layout;
}

void THeaderStrip::Paint(QPainter& painter, const TStripLayout& layout) {
    Draw(painter, FButtonsBar, layout.ButtonsBar);
    Draw(painter, FBlueBar, layout.BlueBar);
    Draw(painter, FEndEfect, layout.EndEfect);
    Draw(painter, FEfectBar, layout.Efect);
}

void THeaderStrip::Measure(TPicture& picture, const char16_t* name) {
    picture = {};
    picture.Name = QString::fromUtf16(name);
    picture.Width = ResourceSize(FFolder, picture.Name).width();
}

// A picture is rendered once for each size it is drawn at, for the pixels of the screen it is drawn on.
void THeaderStrip::Draw(QPainter& painter, TPicture& picture, const QRect& place) {
    if (place.isEmpty() || picture.Name.isEmpty()) return;
    const qreal ratio = painter.device()->devicePixelRatioF();
    if (picture.DrawnSize != place.size() || picture.DrawnRatio != ratio) {
        picture.Drawn = LoadBitmapResource(FFolder, picture.Name, place.size(), ratio);
        picture.DrawnSize = place.size();
        picture.DrawnRatio = ratio;
    }
    painter.drawPixmap(place, picture.Drawn);
}
