// The header strip that the masters wear: a bar behind the buttons, an effect beside it, a blue bar over the
// remaining width and a closing edge flush with the right side.
//
//     THeaderStrip FHeader{THeaderStrip::ButtonsLeft};
//     FHeader.Load(Module->ModuleResources());
//     FHeader.Paint(painter, FHeader.Lay(top, ClientWidth(), 0, barWidth));      // in OnPaint
//
//     ButtonsLeft (view master)                 ButtonsRight (registration and entry master)
//     | buttons | effect |  blue bar  | end |   |  blue bar  | effect | buttons | end |
//
// The pictures are "BMP_BUTTONS_BAR", "BMP_EFECT_BAR" (with buttons on the right "BMP_EFECT_BAR_R"),
// "BMP_BLUE_BAR" and "BMP_EFECT_BAR_END". All sizes are logical pixels; the pictures are drawn for the
// screen's own pixels, so they stay sharp at any scale.
#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

#include "platform/rtl/Types.h"

class QPainter;

// Where the parts of a strip stand, in the form's client pixels.
struct TStripLayout {
    QRect ButtonsBar;
    QRect Efect;
    QRect BlueBar;
    QRect EndEfect;
};

class THeaderStrip {
  public:
    enum TSide { ButtonsLeft, ButtonsRight };

    // Height of the effect, the blue bar and the closing edge, which is the strip's.
    static constexpr int kHeight = 55;
    // Height of the picture behind the buttons: what it shows below them.
    static constexpr int kButtonsBarHeight = 3;
    // Height left for the buttons above that and a hairline.
    static constexpr int kButtonsHeight = kHeight - kButtonsBarHeight - 1;

    explicit THeaderStrip(TSide side) : FSide(side) {}

    // Takes the four pictures from the resource folder. Raises EResNotFound for the first that is missing.
    void Load(const UnicodeString& folder);

    // Widths of the effect and of the closing edge; 0 before Load.
    int EfectWidth() const { return FEfectBar.Width; }
    int EndWidth() const { return FEndEfect.Width; }

    // Places the parts in a strip whose upper edge is `top`, in a client area of `width`; the buttons begin
    // at `buttonsLeft` and are `buttonsWidth` wide. Parts without room are empty, the closing edge also where
    // the buttons stand in its place.
    TStripLayout Lay(int top, int width, int buttonsLeft, int buttonsWidth) const;

    void Paint(QPainter& painter, const TStripLayout& layout);

  private:
    struct TPicture {
        UnicodeString Name;
        int Width = 0;
        QPixmap Drawn;    // as drawn last
        QSize DrawnSize;  // logical
        qreal DrawnRatio = 0;
    };

    void Measure(TPicture& picture, const char16_t* name);
    void Draw(QPainter& painter, TPicture& picture, const QRect& place);

    TSide FSide;
    UnicodeString FFolder;
    TPicture FButtonsBar, FEfectBar, FBlueBar, FEndEfect;
};
