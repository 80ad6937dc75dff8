#include "forms/base/HeaderStrip.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(HeaderStrip, CoversTheWidthWithoutGapsOrOverlaps) {
    THeaderStrip left(THeaderStrip::ButtonsLeft), right(THeaderStrip::ButtonsRight);
    left.Load(u":/fichario"_s);
    right.Load(u":/fichario"_s);
    const TStripLayout l = left.Lay(25, 600, 0, 180);
    EXPECT_EQ(l.ButtonsBar.right() + 1, l.Efect.left());
    EXPECT_EQ(l.Efect.right() + 1, l.BlueBar.left());
    EXPECT_EQ(l.BlueBar.right() + 1, l.EndEfect.left());
    EXPECT_EQ(l.EndEfect.right() + 1, 600);
    const TStripLayout r = right.Lay(0, 600, 416, 180);
    EXPECT_EQ(r.BlueBar.left(), 0);
    EXPECT_EQ(r.BlueBar.right() + 1, r.Efect.left());
    EXPECT_EQ(r.Efect.right() + 1, r.ButtonsBar.left());
    EXPECT_EQ(r.ButtonsBar.right() + 1, r.EndEfect.left());
    for (const QRect& part : {l.ButtonsBar, l.Efect, l.BlueBar, l.EndEfect}) {
        EXPECT_EQ(part.top(), 25);
        EXPECT_EQ(part.height(), THeaderStrip::kHeight);
    }
    EXPECT_TRUE(left.Lay(25, 190, 0, 180).BlueBar.isEmpty());
    EXPECT_TRUE(right.Lay(0, 600, 420, 180).EndEfect.isEmpty());
}

// At twice the pixels the strip is drawn anew, not enlarged: its edge has steps that no doubled pixel has.
TEST(HeaderStrip, IsSharpAtDoubleScale) {
    THeaderStrip strip(THeaderStrip::ButtonsLeft);
    strip.Load(u":/fichario"_s);
    QImage image(120, 110, QImage::Format_ARGB32);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    QPainter painter(&image);
    strip.Paint(painter, strip.Lay(0, 60, 0, 10));
    painter.end();
    int differing = 0;
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) differing += image.pixel(x, y) != image.pixel(x + 1, y);
    }
    EXPECT_GT(differing, 20);
}

}  // namespace
