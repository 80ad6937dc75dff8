// The mouse on a grid's titles: a click, the dragging of a column to another place, the sizing of a column.
//
//     if (FDrag.Press(at)) return;       // the press belongs to the titles
//     FDrag.Move(at);
//     FDrag.Release(at);                 // fires OnTitleClick or OnColumnMoved
#pragma once
#include <QPoint>
#include "platform/ui/DBGrid.h"

class TGridTitleDrag {
  public:
    explicit TGridTitleDrag(TDBGrid& grid) : FGrid(grid) {}

    // Begins a click, a drag or a sizing; false when `at` (viewport pixels) is not on the titles.
    bool Press(QPoint at);
    // Follows the mouse, and shows beforehand that an edge can be pulled.
    void Move(QPoint at);
    // Ends what Press began.
    void Release(QPoint at);

    // Something began that has not ended.
    bool Busy() const { return FState != kIdle; }
    // The column whose place the dragged one would take; -1 while none is dragged.
    int DropColumn() const { return FState == kDragging ? FDrop : -1; }

  private:
    enum TState { kIdle, kPressed, kDragging, kSizing };
    void Resize(int x);
    void Drop();

    TDBGrid& FGrid;
    TState FState = kIdle;
    int FColumn = -1;
    int FDrop = -1;
    QPoint FStart;
    int FStartWidth = 0;
};
