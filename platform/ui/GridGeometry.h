// Where the cells and titles of a grid are on its viewport, for painting and for the mouse.
//
//     const TGridGeometry where = grid->Geometry();
//     QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, where.Cell(0, 2).center());
//
// A snapshot: it does not follow later changes of the grid. Pixels; rows and columns count from 0; columns
// are the grid's, hidden ones (no width) included.
#pragma once
#include <QRect>
#include <vector>

class TDBGridColumns;

struct TGridMetrics {
    int RowHeight = 20;
    int TitleHeight = 0;     // 0 without titles
    int IndicatorWidth = 0;  // 0 without indicator
    QSize View;
    int TopRow = 0;
    int ScrollX = 0;  // pixels by which the columns are scrolled to the left
    int RowCount = 0;
};

class TGridGeometry {
  public:
    TGridGeometry(const TDBGridColumns& columns, const TGridMetrics& metrics);

    const TGridMetrics& Metrics() const { return FMetrics; }
    int ColumnCount() const { return static_cast<int>(FLefts.size()) - 1; }
    // Sum of the visible columns' widths.
    int ColumnsWidth() const { return FLefts.back() - FLefts.front(); }
    // Rows that fit whole below the titles, at least 1.
    int FullRows() const;
    // One after the last row that shows, whole or in part.
    int EndRow() const;

    QRect Cell(int row, int column) const;
    QRect Title(int column) const;
    // From the indicator to the last column.
    QRect Row(int row) const;

    bool InTitles(QPoint at) const { return at.y() >= 0 && at.y() < FMetrics.TitleHeight; }
    // -1 where there is no column or row.
    int ColumnAt(int x) const;
    int RowAt(int y) const;
    // The visible column whose right edge is within 4 pixels of x, -1 for none.
    int EdgeAt(int x) const;
    // The column whose place a column dropped at x takes: the nearest visible one.
    int DropColumn(int x) const;

  private:
    int Width(int column) const { return FLefts[column + 1] - FLefts[column]; }

    TGridMetrics FMetrics;
    std::vector<int> FLefts;  // left edges, and the last one's right edge
};
