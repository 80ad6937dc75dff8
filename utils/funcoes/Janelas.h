// Window helpers: to the front, taskbar, redrawing suspended while several things change at once, keys that
// nobody shall hear, and the small arrows of sorted columns.
//
//     TDrawLock lock(this);        // one repaint at the end of the scope
//     PnPesquisa->SetWidth(125);
//     …
//
// All of them belong to the thread of the screen.
#pragma once

#include "platform/rtl/Types.h"

class QColor;
class QPainter;
class QPoint;
class TControl;
class TForm;

// ---- windows ----

// Restores the form when it is minimised and brings it, and the window it lives in, in front of all other
// ones. Waits at most 200 ms for the system, handling what comes meanwhile. Whether it is the foreground
// window now: a system may refuse it to a program that the user does not work with.
bool ForceForegroundWindow(TForm* window);

// Takes the main window out of the taskbar; it stays on the screen.
void HideofTask();
// Puts it (back) into the taskbar under that title, which its caption shows too.
void ShowOnTask(const UnicodeString& title);

// ---- redrawing ----

// The window stops repainting. Locks are not counted: one unlock ends any number of locks.
void LockWindowDraw(TControl* window);

// The window repaints again, all of it.
void UnlockWindowDraw(TControl* window);

// Locks for a scope, whatever leaves it. A null window is allowed and does nothing.
class TDrawLock {
  public:
    explicit TDrawLock(TControl* window);
    ~TDrawLock();
    TDrawLock(const TDrawLock&) = delete;
    TDrawLock& operator=(const TDrawLock&) = delete;

  private:
    TControl* FWindow;
};

// ---- keys ----

// Drops the strokes that wait to be handled, those of InjectKey too; clicks in the same queue go with them.
// Nothing else runs meanwhile: timers and posted messages come afterwards.
void EmptyKeyQueue();

// ---- arrows ----

// The outline of a triangle of `size` pixels in height and twice that in width, half of its height above and
// below `at`, which gives its left edge for the one that points down. The canvas keeps pen and brush.
void DesenharSetaDown(QPainter& canvas, int size, const QColor& color, QPoint at);
// The one that points up: its base lies at the lower side and its right end 2 · size right of `at`.
void DesenharSetaUp(QPainter& canvas, int size, const QColor& color, QPoint at);
