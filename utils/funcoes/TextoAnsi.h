// Texts of one byte a character, in the system code page (platform/rtl/CodePage.h).
//
//     AnsiTrim(" Ana ")            // "Ana"
//     AnsiPos("na", "Ana")         // 2
#pragma once
#include "platform/rtl/Types.h"

// `text` with every `oldByte` replaced by `newByte`.
AnsiString AnsiTrocaPorParams(const AnsiString& text, char oldByte, char newByte);

// Without the blanks and control characters at both ends.
AnsiString AnsiTrim(const AnsiString& text);

// a to z as A to Z; accented letters stay.
AnsiString AnsiUpperCase(const AnsiString& text);

// 1-based position of `needle` in `haystack`; 0 when it is absent or empty.
int AnsiPos(const AnsiString& needle, const AnsiString& haystack);
