// Moving and sizing a form inside the client area with the mouse.
//
// Nothing happens on the press. When the drag begins the form gets the system command (move, or size with the
// edge), and only what answers the command begins the drag: so a form that changes its size on that command
// is dragged as it then is.
#pragma once
#include <QPoint>
#include <QRect>

class TForm;

class TFormDrag {
  public:
    explicit TFormDrag(TForm& form) : FForm(form) {}

    // The edges of the frame at `at` (in frame pixels) that the mouse can drag; none for a form of fixed
    // size.
    Qt::Edges EdgesAt(QPoint at) const;
    static Qt::CursorShape CursorFor(Qt::Edges edges);

    // The mouse, in screen pixels. Without edges the whole form is moved.
    void Press(QPoint at, Qt::Edges edges);
    void Move(QPoint at);
    void Release();

    // The form's answer to the command: the drag that was asked for goes on.
    void Begin();
    bool Dragging() const { return FPhase == Running; }

  private:
    enum TPhase { Idle, Waiting, Asking, Running };

    void Ask();
    QRect Moved(QPoint by) const;
    QRect Sized(QPoint by) const;

    TForm& FForm;
    TPhase FPhase = Idle;
    Qt::Edges FEdges;
    QPoint FPressedAt;
    QPoint FNow;
    QPoint FBegunAt;
    QRect FBegun;
};
