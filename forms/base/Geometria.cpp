// The emulated maximising of the base form, and the system commands and messages that lead to it.
#include <QCursor>

#include "forms/base/UFrmBase.h"
#include "platform/ui/Application.h"
#include "platform/ui/ToolBar.h"
#include "utils/funcoes/Janelas.h"

namespace {

constexpr int kCommandMask = 0xFFF0;
constexpr int kSizeMinimized = 1;
constexpr int kBarsHeight = 100;
constexpr int kBarsHeightWhenRestoring = 99;  // not kBarsHeight: see the header
constexpr int kFramesWidth = 4;

}  // namespace

int TFrmBase::GetMainFormHeight() const {
    return Application->MainForm()->ClientHeight() - kBarsHeight;
}

int TFrmBase::GetMainFormWidth() const {
    return Application->MainForm()->ClientWidth() - kFramesWidth;
}

int TFrmBase::GetButtonsSize() const {
    if (BorderStyle() == bsToolWindow) return SmallCaptionButtonWidth() + 2;
    if (BorderIcons() & (biMinimize | biMaximize)) return 3 * CaptionButtonWidth() + 5;
    if (BorderIcons() & biSystemMenu) return CaptionButtonWidth() + 2;
    return 0;
}

void TFrmBase::SetSize(int AHeigth, int AWidth) {
    TDrawLock lock(Application->MainForm() ? Application->MainForm()->ClientArea() : nullptr);
    SetHeight(AHeigth);
    SetWidth(AWidth);
}

void TFrmBase::RememberGeometry() {
    FOrgLeft = Left();
    FOrgTop = Top();
    FOrgHeight = Height();
    FOrgWidth = Width();
}

void TFrmBase::RestoreGeometry() {
    SetBounds(FOrgLeft, FOrgTop, FOrgWidth, FOrgHeight);
    FMaximized = false;
}

void TFrmBase::Maximize() {
    SetBounds(0, 0, GetMainFormWidth(), GetMainFormHeight());
    FMaximized = true;
}

bool TFrmBase::CountsAsMaximized() const {
    const TForm* main = Application->MainForm();
    return Left() == 0 && Top() == 0 && Height() == main->ClientHeight() - kBarsHeightWhenRestoring &&
           Width() == main->ClientWidth() - kFramesWidth;
}

void TFrmBase::WndProc(TMessage& Message) {
    switch (Message.Msg) {
        case WM_SYSCOMMAND: WMSysCommand(Message); return;
        case WM_SIZE: WMSize(Message); return;
        case WM_ENTERSIZEMOVE: WMEnterSizeMove(Message); return;
        case MSG_ATIVA: Ativa(); return;
        case MSG_DOWN_BTN:
            if (FBtn) FBtn->SetDown(Message.WParam != 0);
            return;
        default: TForm::WndProc(Message);
    }
}

void TFrmBase::WMSysCommand(TMessage& Message) {
    const int command = int(Message.WParam);
    if ((command & kCommandMask) == SC_SIZE) FMaximized = false;
    if ((command & kCommandMask) == SC_MOVE) LeaveMaximizedByMove();
    if (command != SC_MAXIMIZE && command != SC_MAXIMIZE_BY_CAPTION) {
        TForm::WndProc(Message);
        return;
    }
    Message.Result = 0;
    if (WindowState() == wsMinimized) SetWindowState(wsNormal);
    if (CountsAsMaximized()) {
        RestoreGeometry();
    } else {
        RememberGeometry();
        Maximize();
    }
}

void TFrmBase::LeaveMaximizedByMove() {
    if (FMaximized) {
        SetHeight(FOrgHeight);
        SetWidth(FOrgWidth);
        const int x = Client()->Widget()->mapFromGlobal(QCursor::pos()).x();
        if (x > Width() - GetButtonsSize()) SetLeft(x - Width() / 2);
    }
    FMaximized = false;
}

void TFrmBase::WMSize(TMessage& Message) {
    if (Message.WParam != kSizeMinimized) {
        TForm::WndProc(Message);
        return;
    }
    Hide();
    Message.Result = 0;
}

void TFrmBase::WMEnterSizeMove(TMessage&) {
    if (!FMaximized) return;
    SetHeight(FOrgHeight);
    SetWidth(FOrgWidth);
    FMaximized = false;
}
