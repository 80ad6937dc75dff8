#include "platform/ui/GridTitleDrag.h"

#include <QApplication>

bool TGridTitleDrag::Press(QPoint at) {
    const TGridGeometry where = FGrid.Geometry();
    if (!where.InTitles(at)) return false;
    const bool canSize = FGrid.Options() & dgColumnResize;
    const int edge = canSize ? where.EdgeAt(at.x()) : -1;
    FColumn = edge >= 0 ? edge : where.ColumnAt(at.x());
    FStart = at;
    FState = edge >= 0 ? kSizing : FColumn >= 0 ? kPressed : kIdle;
    if (FState == kSizing) FStartWidth = FGrid.Columns()[FColumn]->Width();
    return true;
}

void TGridTitleDrag::Move(QPoint at) {
    if (FState == kSizing) return Resize(at.x());
    const TGridGeometry where = FGrid.Geometry();
    const bool far = (at - FStart).manhattanLength() >= QApplication::startDragDistance();
    if (FState == kPressed && far && (FGrid.Options() & dgColumnResize)) FState = kDragging;
    if (FState == kDragging) {
        FDrop = where.DropColumn(at.x());
        FGrid.viewport()->update();
    }
    const bool canPull =
        (FGrid.Options() & dgColumnResize) && where.InTitles(at) && where.EdgeAt(at.x()) >= 0;
    FGrid.viewport()->setCursor(canPull && FState == kIdle ? Qt::SplitHCursor : Qt::ArrowCursor);
}

void TGridTitleDrag::Resize(int x) {
    FGrid.Columns()[FColumn]->SetWidth(FStartWidth + x - FStart.x());
}

void TGridTitleDrag::Release(QPoint at) {
    const TState state = std::exchange(FState, kIdle);
    if (state == kDragging) return Drop();
    if (state != kPressed) return;
    const TGridGeometry where = FGrid.Geometry();
    const bool same = where.InTitles(at) && where.ColumnAt(at.x()) == FColumn;
    if (same && FGrid.OnTitleClick) FGrid.OnTitleClick(FGrid.Columns()[FColumn]);
}

void TGridTitleDrag::Drop() {
    FGrid.viewport()->update();
    const int from = FColumn;
    const int to = FDrop;
    if (to < 0 || from == to) return;
    FGrid.Columns().Move(from, to);
    if (FGrid.OnColumnMoved) FGrid.OnColumnMoved(from, to);
}
