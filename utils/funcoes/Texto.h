// Texts: splitting, padding, digits, accents, flags.
//
//     PrimeiroNome(u"Ana Maria"_s)          // "Ana"
//     GetNumbers(u"12.345-6"_s)             // "123456"
//     RemoveAcentos(u"Ação & Cia"_s)        // "Acao e Cia"
//     GetBoolText(u"S"_s)                   // "SIM"
//
// Every function returns a new text. Comparisons are exact.
#pragma once
#include "platform/rtl/Types.h"

// The parts of `text` between separators. One separator at the very start is dropped, and the last part is
// left out when it is empty: "a;b;" gives a and b, "a;;b" gives a, "" and b, ";;a" gives "" and a. Empty
// text: no parts.
TStringArray ExplodeStr(const UnicodeString& text, WideChar separator);

// `text` with every `oldChar` replaced by `newChar`.
UnicodeString TrocaPorParams(const UnicodeString& text, WideChar oldChar, WideChar newChar);

// What stands before the first blank; the whole text without one.
UnicodeString PrimeiroNome(const UnicodeString& text);

// `path` with a backslash at its end, one only; an empty path gives the backslash alone.
UnicodeString FixDir(const UnicodeString& path);

// `text` followed (R) or preceded (L) by width − length copies of `fill`; unchanged when it is that wide
// already. A `fill` of several characters is copied whole each time and overshoots `width` (in characters).
UnicodeString FillCharR(const UnicodeString& text, int width, const UnicodeString& fill);
UnicodeString FillCharL(const UnicodeString& text, int width, const UnicodeString& fill);

// Only the digits 0 to 9, in order.
UnicodeString GetNumbers(const UnicodeString& text);

// Whether the text is not empty and holds digits 0 to 9 only.
bool Inteiros(const UnicodeString& text);

// Whether the first character is a digit 0 to 9.
bool FirstIsNumber(const UnicodeString& text);

// The value of the digits the text begins with, 0 without any. Throws EConvertError above 2147483647.
int CopyNumbersUntilChar(const UnicodeString& text);

// The Portuguese accented letters without their accents, and "&" as "e"; anything else stays.
UnicodeString RemoveAcentos(const UnicodeString& text);

// The text without the characters . , - * / ( ) [ ] { } ! @ # $ % ¨ & = _ < > ; : \ and |.
UnicodeString RemoveCaracters(const UnicodeString& text);

// `length` letters A to Z and digits 0 to 8 drawn at random; the digit 9 never comes. Empty for 0 and below.
// Not for secrets: the generator is seeded from the clock at each call.
UnicodeString RandomStr(int length);

// The plain text of a rich text (RTF), trimmed; a text that is no RTF is returned trimmed. Needs no screen.
UnicodeString RichtToStr(const UnicodeString& richText);

// A flag as it is stored for the one shown: SIM gives S, NÃO gives N; anything else unchanged.
UnicodeString GetBoolValue(const UnicodeString& text);

// The flag as it is shown: S gives SIM, N gives NÃO; anything else unchanged.
UnicodeString GetBoolText(const UnicodeString& text);
