// The letter that a caption marks with "&": "&Fechar" is found by Alt+F. "&&" is an ampersand and marks
// nothing.
//
//     if (HasMnemonic(Caption(), letter)) Click();
#pragma once
#include <QKeySequence>
#include "platform/rtl/Types.h"

// Whether `letter`, upper or lower case, is the caption's mnemonic.
inline bool HasMnemonic(const UnicodeString& caption, QChar letter) {
    return QKeySequence::mnemonic(caption) == QKeySequence(Qt::ALT | Qt::Key(letter.toUpper().unicode()));
}
