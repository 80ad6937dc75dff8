#include "utils/funcoes/Janelas.h"

#include <QWidget>

#include "platform/ui/Control.h"

void LockWindowDraw(TControl* window) {
    window->Widget()->setUpdatesEnabled(false);
}

void UnlockWindowDraw(TControl* window) {
    window->Widget()->setUpdatesEnabled(true);
}

TDrawLock::TDrawLock(TControl* window) : FWindow(window) {
    if (FWindow) LockWindowDraw(FWindow);
}

TDrawLock::~TDrawLock() {
    if (FWindow) UnlockWindowDraw(FWindow);
}
