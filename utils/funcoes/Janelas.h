// Window helpers: suspending a window's redrawing while several things change at once.
//
//     TDrawLock lock(this);        // one repaint at the end of the scope
//     PnPesquisa->SetWidth(125);
//     …
#pragma once

class TControl;

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
