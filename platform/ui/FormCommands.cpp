// Messages and system commands of a form, and its emulated states.
#include "platform/ui/CaptionBar.h"
#include "platform/ui/Form.h"
#include "platform/ui/FormDrag.h"

namespace {

constexpr int kCommandMask = 0xFFF0;
constexpr int kCollapsedWidth = 200;

}  // namespace

intptr_t TForm::Perform(int msg, intptr_t wParam, intptr_t lParam) {
    TMessage message{msg, wParam, lParam, 0};
    WndProc(message);
    return message.Result;
}

void TForm::WndProc(TMessage& message) {
    DefaultHandler(message);
}

void TForm::DefaultHandler(TMessage& message) {
    if (message.Msg == WM_SYSCOMMAND) SystemCommand(int(message.WParam));
    if (message.Msg == WM_SIZE && message.WParam == SIZE_MINIMIZED && FEmbedded) Collapse();
}

void TForm::SystemCommand(int command) {
    switch (command & kCommandMask) {
        case SC_SIZE:
        case SC_MOVE: FDrag->Begin(); break;
        case SC_MINIMIZE: SetWindowState(wsMinimized); break;
        case SC_MAXIMIZE: SetWindowState(wsMaximized); break;
        case SC_RESTORE: SetWindowState(wsNormal); break;
        case SC_CLOSE: Close(); break;
        default: break;
    }
}

void TForm::SetWindowState(TWindowState state) {
    if (state == FWindowState) return;
    const TWindowState former = std::exchange(FWindowState, state);
    if (FEmbedded) {
        ShowState(former);
    } else {
        const Qt::WindowStates keep = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
        setWindowState(keep | (state == wsMinimized   ? Qt::WindowMinimized
                               : state == wsMaximized ? Qt::WindowMaximized
                                                      : Qt::WindowNoState));
    }
    constexpr int kSizes[] = {SIZE_RESTORED, SIZE_MINIMIZED, SIZE_MAXIMIZED};
    Perform(WM_SIZE, kSizes[state]);
}

void TForm::ShowState(TWindowState former) {
    if (former == wsNormal) FRestored = Bounds();
    ApplyLimits();
    if (FWindowState == wsNormal)
        SetBounds(FRestored.x(), FRestored.y(), FRestored.width(), FRestored.height());
    if (FWindowState == wsMaximized) SetBounds(0, 0, parentWidget()->width(), parentWidget()->height());
    if (FCaptionBar) FCaptionBar->update();
}

// Only the caption is left, at the lower edge, beside the other ones that lie there.
void TForm::Collapse() {
    const int height = CaptionHeight() + 1;
    const int top = std::max(0, parentWidget()->height() - height);
    int left = 0;
    for (QObject* other : parentWidget()->children()) {
        const auto* form = dynamic_cast<TForm*>(other);
        if (form && form != this && form->isVisible() && form->WindowState() == wsMinimized)
            left += kCollapsedWidth;
    }
    SetBounds(left, top, kCollapsedWidth, height);
}

// The window manager changes windows of their own.
void TForm::changeEvent(QEvent* event) {
    TWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || FEmbedded) return;
    const TWindowState state = isMinimized() ? wsMinimized : isMaximized() ? wsMaximized : wsNormal;
    if (std::exchange(FWindowState, state) == state) return;
    constexpr int kSizes[] = {SIZE_RESTORED, SIZE_MINIMIZED, SIZE_MAXIMIZED};
    CalledByQt(this, [&] { Perform(WM_SIZE, kSizes[state]); });
}
