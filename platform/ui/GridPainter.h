// Paints a data grid: titles, rows and the marks of selection. Rows are read from the dataset while they are
// painted, the visible ones only.
//
//     QPainter painter(viewport());
//     TGridPainter(*this, painter).Paint(event->rect());
#pragma once
#include <array>
#include <QPainter>
#include "platform/ui/DBGrid.h"

// Text widths for one font from a table of letter widths, without the shaping that the toolkit does for each
// text.
class TLetterWidths {
  public:
    explicit TLetterWidths(const QFont& font) : FMeasure(font) { FWidths.fill(-1); }
    const QFontMetricsF& Font() const { return FMeasure; }
    // Pixels; letters beyond the western ones are measured by the toolkit.
    qreal Of(const UnicodeString& text);

  private:
    QFontMetricsF FMeasure;
    std::array<qreal, 0x180> FWidths;
};

class TGridPainter {
  public:
    TGridPainter(TDBGrid& grid, QPainter& painter);

    // Paints what lies in `area` of the viewport.
    void Paint(QRect area);
    // Marks the place that a dragged column would take.
    void PaintDropMark(int column);

    // The text of a cell, empty without a field. A row other than the current one must be inside a
    // TRowReading.
    static UnicodeString TextOf(const TField* field);
    // The part of a cell or title that its text may fill.
    static QRect TextRoom(QRect cell);

  private:
    void PaintTitles(QRect area);
    void PaintRow(int row, QRect area);
    void PaintCell(int row, int column, bool selectedRow);
    void PaintText(QRect cell, TAlignment alignment, const UnicodeString& text);
    void PaintLines(int row, QRect area);
    void PaintIndicator(int row);
    bool ShowsSelection() const;

    TDBGrid& FGrid;
    QPainter& FPainter;
    TGridGeometry FWhere;
    TLetterWidths FWidths;
};
