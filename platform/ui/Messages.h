// Messages to forms: numbers with two values, sent at once (TForm::Perform) or queued (PostMessage).
//
//     constexpr int MSG_PRONTO = WM_USER + 1;
//     PostMessage(form, MSG_PRONTO, 7);             // reaches TForm::WndProc from the event loop
#pragma once
#include <cstdint>

class TForm;

struct TMessage {
    int Msg = 0;
    intptr_t WParam = 0;
    intptr_t LParam = 0;
    intptr_t Result = 0;
};

// A form's size changed; WParam is 0 restored, 1 minimised, 2 maximised.
constexpr int WM_SIZE = 0x0005;
// A command of the caption bar; WParam is one of the SC_ numbers, of which the low four bits tell the
// variant.
constexpr int WM_SYSCOMMAND = 0x0112;
// The mouse wheel turned over a form; the upper half of WParam's 32 bits is the signed turn (120 a notch,
// away from the user is positive).
constexpr int WM_MOUSEWHEEL = 0x020A;
// The user begins, or has ended, moving a form or dragging its border.
constexpr int WM_ENTERSIZEMOVE = 0x0231;
constexpr int WM_EXITSIZEMOVE = 0x0232;
// The first number free for programs.
constexpr int WM_USER = 0x0400;

constexpr int SC_SIZE = 0xF000;
constexpr int SC_MOVE = 0xF010;
constexpr int SC_MINIMIZE = 0xF020;
constexpr int SC_MAXIMIZE = 0xF030;
constexpr int SC_MAXIMIZE_BY_CAPTION = 0xF032;  // a double click on the caption
constexpr int SC_CLOSE = 0xF060;
constexpr int SC_RESTORE = 0xF120;

constexpr int SIZE_RESTORED = 0;
constexpr int SIZE_MINIMIZED = 1;
constexpr int SIZE_MAXIMIZED = 2;

// Queues a message for the form's WndProc. Dropped when `form` is null or dies first; held back during the
// closed wait of a server call.
void PostMessage(TForm* form, int msg, intptr_t wParam = 0, intptr_t lParam = 0);
