#include "platform/ui/Keys.h"

#include <iterator>
#include <utility>

namespace {

constexpr std::pair<Qt::Key, int> kKeys[] = {{Qt::Key_Backspace, VK_BACK},  {Qt::Key_Tab, VK_TAB},
                                             {Qt::Key_Backtab, VK_TAB},     {Qt::Key_Return, VK_RETURN},
                                             {Qt::Key_Enter, VK_RETURN},    {Qt::Key_Shift, VK_SHIFT},
                                             {Qt::Key_Control, VK_CONTROL}, {Qt::Key_Alt, VK_MENU},
                                             {Qt::Key_Escape, VK_ESCAPE},   {Qt::Key_Space, VK_SPACE},
                                             {Qt::Key_PageUp, VK_PRIOR},    {Qt::Key_PageDown, VK_NEXT},
                                             {Qt::Key_End, VK_END},         {Qt::Key_Home, VK_HOME},
                                             {Qt::Key_Left, VK_LEFT},       {Qt::Key_Up, VK_UP},
                                             {Qt::Key_Right, VK_RIGHT},     {Qt::Key_Down, VK_DOWN},
                                             {Qt::Key_Insert, VK_INSERT},   {Qt::Key_Delete, VK_DELETE},
                                             {Qt::Key_Menu, VK_APPS},       {Qt::Key_Asterisk, VK_MULTIPLY},
                                             {Qt::Key_Plus, VK_ADD},        {Qt::Key_Minus, VK_SUBTRACT},
                                             {Qt::Key_Slash, VK_DIVIDE}};

bool IsLetterOrDigit(int key) {
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

bool IsOperator(int virtualKey) {
    return virtualKey >= VK_MULTIPLY && virtualKey <= VK_DIVIDE;
}

}  // namespace

int VirtualKeyOf(const QKeyEvent& stroke) {
    const int key = stroke.key();
    if (IsLetterOrDigit(key)) return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return VK_F1 + key - Qt::Key_F1;
    for (const auto& [code, virtualKey] : kKeys) {
        if (code != key) continue;
        return IsOperator(virtualKey) && !(stroke.modifiers() & Qt::KeypadModifier) ? 0 : virtualKey;
    }
    return 0;
}

Qt::Key QtKeyOf(int virtualKey) {
    if (IsLetterOrDigit(virtualKey)) return Qt::Key(virtualKey);
    if (virtualKey >= VK_F1 && virtualKey <= VK_F12) return Qt::Key(Qt::Key_F1 + virtualKey - VK_F1);
    for (const auto& [code, known] : kKeys) {
        if (known == virtualKey) return code;
    }
    return Qt::Key_unknown;
}

TShiftState ShiftStateOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? ssShift : 0) | (modifiers & Qt::AltModifier ? ssAlt : 0) |
           (modifiers & Qt::ControlModifier ? ssCtrl : 0);
}

Qt::KeyboardModifiers ModifiersOf(TShiftState shift) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, shift & ssShift);
    modifiers.setFlag(Qt::AltModifier, shift & ssAlt);
    modifiers.setFlag(Qt::ControlModifier, shift & ssCtrl);
    return modifiers;
}

char16_t CharacterOf(const QKeyEvent& stroke) {
    const TShiftState shift = ShiftStateOf(stroke.modifiers()) & (ssAlt | ssCtrl);
    if (shift == ssAlt || shift == ssCtrl) return 0;
    switch (VirtualKeyOf(stroke)) {
        case VK_BACK: return VK_BACK;
        case VK_RETURN: return VK_RETURN;
        case VK_ESCAPE: return VK_ESCAPE;
        default: break;
    }
    const QString text = stroke.text();
    return !text.isEmpty() && text[0].isPrint() && stroke.key() != Qt::Key_Delete ? text[0].unicode() : u'\0';
}
