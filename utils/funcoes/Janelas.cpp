#include "utils/funcoes/Janelas.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QPainter>
#include <QPointer>
#include <QThread>

#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/KeyHub.h"

namespace {

constexpr int kPatience = 200, kStep = 5;  // milliseconds

bool InForeground(const TForm* form, const QWidget* window) {
    return QApplication::activeWindow() == window && form->Active();
}

// A window system takes the kind of a window over when the window appears.
void ChangeMainWindow(Qt::WindowType wanted) {
    TForm* main = Application->MainForm();
    if (!main) return;
    QWidget* window = main->Widget()->window();
    const bool visible = window->isVisible();
    window->setWindowFlags((window->windowFlags() & ~Qt::WindowType_Mask) | wanted);
    window->setVisible(visible);
}

void DrawTriangle(QPainter& canvas, const QColor& color, QPoint a, QPoint b, QPoint c) {
    const QPoint corners[] = {a, b, c};
    canvas.setPen(color);
    canvas.setBrush(Qt::NoBrush);
    canvas.drawPolygon(corners, 3);
}

}  // namespace

bool ForceForegroundWindow(TForm* window) {
    const QPointer<QWidget> form = window->Widget(), top = form->window();
    if (window->WindowState() == wsMinimized) {
        window->SetWindowState(wsNormal);
        window->Show();  // a form may hide itself while it is minimised
    }
    top->setWindowState(top->windowState() & ~Qt::WindowMinimized);
    if (InForeground(window, top)) return true;
    window->BringToFront();
    top->raise();
    top->activateWindow();
    const QDeadlineTimer patience(kPatience);
    for (;;) {
        Application->ProcessMessages();
        if (!form || !top) return false;
        if (InForeground(window, top) || patience.hasExpired()) return InForeground(window, top);
        QThread::msleep(kStep);
    }
}

void HideofTask() {
    ChangeMainWindow(Qt::Tool);
}

void ShowOnTask(const UnicodeString& title) {
    ChangeMainWindow(Qt::Window);
    if (TForm* main = Application->MainForm()) main->SetCaption(title);
}

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

void EmptyKeyQueue() {
    DropInjectedKeys();
    int rounds = 0;
    Application->WaitFor([&rounds](int) { return rounds++ > 0; });
}

void DesenharSetaDown(QPainter& canvas, int size, const QColor& color, QPoint at) {
    const int top = at.y() - size / 2;
    DrawTriangle(canvas, color, {at.x(), top}, {at.x() + size, top + size}, {at.x() + 2 * size, top});
}

void DesenharSetaUp(QPainter& canvas, int size, const QColor& color, QPoint at) {
    const int right = at.x() + 2 * size, base = at.y() + size / 2;
    DrawTriangle(canvas, color, {right, base}, {right - size, base - size}, {right - 2 * size, base});
}
