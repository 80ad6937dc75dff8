// Places the controls of one container: aligned ones fill its sides, the others keep the distances they are
// anchored by.
//
//     TLayout(*panel).Run();
#pragma once
#include <QRect>
#include "platform/ui/Control.h"

class TLayout {
  public:
    explicit TLayout(TControl& container) : FContainer(container) {}

    void Run();

    // Where a control stands that was at `place` when its parent measured `then` and now measures `now`.
    static QRect Anchored(const QRect& place, QSize then, QSize now, TAnchors anchors);

  private:
    void Fill(TControl& control);
    void Place(TControl& control, const QRect& place);

    TControl& FContainer;
    QRect FRoom;  // what no aligned control has taken yet
};
