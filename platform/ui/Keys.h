// Key codes and shift states as key handlers get them.
//
//     OnKeyDown = [](TComponent*, int& key, TShiftState shift) {
//         if (key == VK_F3 && shift == 0) key = 0;       // 0 swallows the key
//     };
#pragma once
#include <QKeyEvent>

// A sum of the ss bits.
using TShiftState = int;
enum { ssShift = 1, ssAlt = 2, ssCtrl = 4 };

// Virtual key codes. Letters and digits are their upper-case characters ('A', '0').
enum {
    VK_BACK = 8,
    VK_TAB = 9,
    VK_RETURN = 13,
    VK_SHIFT = 16,
    VK_CONTROL = 17,
    VK_MENU = 18,
    VK_ESCAPE = 27,
    VK_SPACE = 32,
    VK_PRIOR = 33,
    VK_NEXT = 34,
    VK_END = 35,
    VK_HOME = 36,
    VK_LEFT = 37,
    VK_UP = 38,
    VK_RIGHT = 39,
    VK_DOWN = 40,
    VK_INSERT = 45,
    VK_DELETE = 46,
    VK_APPS = 93,
    VK_MULTIPLY = 106,
    VK_ADD = 107,
    VK_SUBTRACT = 109,
    VK_DIVIDE = 111,
    VK_F1 = 112,
    VK_F2,
    VK_F3,
    VK_F4,
    VK_F5,
    VK_F6,
    VK_F7,
    VK_F8,
    VK_F9,
    VK_F10,
    VK_F11,
    VK_F12
};

// The virtual key of a stroke, 0 when it has none. Enter of both keyboards is VK_RETURN, Shift+Tab is VK_TAB.
int VirtualKeyOf(const QKeyEvent& stroke);

// The toolkit's key of a virtual key, Qt::Key_unknown when there is none.
Qt::Key QtKeyOf(int virtualKey);

TShiftState ShiftStateOf(Qt::KeyboardModifiers modifiers);
Qt::KeyboardModifiers ModifiersOf(TShiftState shift);

// The character of a stroke, 0 when it is none: printable characters, Backspace (8), Enter (13) and Escape
// (27) are characters; Delete, Tab and combinations with Ctrl or Alt alone are not.
char16_t CharacterOf(const QKeyEvent& stroke);
