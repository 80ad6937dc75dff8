#include "platform/ui/GridGeometry.h"

#include <algorithm>
#include "platform/ui/DBGridColumns.h"

namespace {
constexpr int kEdgeReach = 4;
}

TGridGeometry::TGridGeometry(const TDBGridColumns& columns, const TGridMetrics& metrics) : FMetrics(metrics) {
    int left = metrics.IndicatorWidth - metrics.ScrollX;
    FLefts.push_back(left);
    for (int i = 0; i < columns.Count(); ++i) {
        if (columns[i]->Visible()) left += columns[i]->Width();
        FLefts.push_back(left);
    }
}

int TGridGeometry::FullRows() const {
    return std::max(1, (FMetrics.View.height() - FMetrics.TitleHeight) / FMetrics.RowHeight);
}

int TGridGeometry::EndRow() const {
    const int height = FMetrics.View.height() - FMetrics.TitleHeight;
    return std::min(FMetrics.RowCount,
                    FMetrics.TopRow + (height + FMetrics.RowHeight - 1) / FMetrics.RowHeight);
}

QRect TGridGeometry::Cell(int row, int column) const {
    return {FLefts[column], FMetrics.TitleHeight + (row - FMetrics.TopRow) * FMetrics.RowHeight,
            Width(column), FMetrics.RowHeight};
}

QRect TGridGeometry::Title(int column) const {
    return {FLefts[column], 0, Width(column), FMetrics.TitleHeight};
}

QRect TGridGeometry::Row(int row) const {
    return {0, FMetrics.TitleHeight + (row - FMetrics.TopRow) * FMetrics.RowHeight,
            std::max(0, FLefts.back()), FMetrics.RowHeight};
}

int TGridGeometry::ColumnAt(int x) const {
    if (x < FMetrics.IndicatorWidth) return -1;
    for (int i = 0; i < ColumnCount(); ++i) {
        if (x >= FLefts[i] && x < FLefts[i + 1]) return i;
    }
    return -1;
}

int TGridGeometry::RowAt(int y) const {
    if (y < FMetrics.TitleHeight) return -1;
    const int row = FMetrics.TopRow + (y - FMetrics.TitleHeight) / FMetrics.RowHeight;
    return row < FMetrics.RowCount ? row : -1;
}

int TGridGeometry::EdgeAt(int x) const {
    for (int i = ColumnCount() - 1; i >= 0; --i) {
        if (Width(i) > 0 && std::abs(x - FLefts[i + 1]) <= kEdgeReach) return i;
    }
    return -1;
}

int TGridGeometry::DropColumn(int x) const {
    int last = -1;
    for (int i = 0; i < ColumnCount(); ++i) {
        if (Width(i) == 0) continue;
        last = i;
        if (x < FLefts[i + 1]) break;
    }
    return last;
}
