// Filters for key-press handlers.
//
//     edit->OnKeyPress = [](TComponent*, WideChar& key) { OnlyNumbers(key, true); };
//
// A filter rejects a key by the silent abort (EAbort): the key is discarded and nothing is shown.
#pragma once
#include "platform/rtl/Types.h"

// Lets Backspace and the digits pass; aborts for anything else.
void OnlyInteger(WideChar key);

// Lets Backspace and the digits pass. With `allowDecimal` a "," or "." becomes the decimal separator in
// force. Aborts for anything else.
void OnlyNumbers(WideChar& key, bool allowDecimal);

// Turns "," or "." into the decimal separator in force; leaves anything else alone.
void GetDecSeparator(WideChar& key);

// The key in upper case: a to z and the codes 224 to 252 (à to ü) lose 32; anything else stays. The sign ÷
// (247) lies in that range and becomes ×.
WideChar UpeCase(WideChar key);

// Whether the key is a character of codes 32 to 255.
bool IsKeyCharacter(WideChar key);
