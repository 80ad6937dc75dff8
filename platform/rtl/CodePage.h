// The system code page, Windows-1252, and the case rules of texts. Nothing here depends on the machine's
// language.
//
//     AnsiString bytes = ToAnsi(u"Ação €");      // 41 E7 E3 6F 20 80
//     UnicodeString text = FromAnsi(bytes);
//
// Every byte has exactly one character and back: the five bytes the code page leaves undefined (81, 8D, 8F,
// 90, 9D) stand for the control character of the same number. Table: Unicode Consortium, CP1252.TXT.
#pragma once
#include <optional>
#include <QByteArrayView>
#include <QStringView>
#include "platform/rtl/Types.h"

// The text's bytes; a character that the code page lacks becomes '?', one for each UTF-16 unit.
AnsiString ToAnsi(QStringView text);

// The text's bytes, or nothing when the code page lacks one of its characters.
std::optional<AnsiString> ToAnsiExact(QStringView text);

// The same into `bytes`, which has room for text.size() of them. False when the code page lacks a character;
// what was written is then of no use.
bool PutAnsiExact(QStringView text, char* bytes);

// The text of bytes in the code page; never fails.
UnicodeString FromAnsi(QByteArrayView bytes);

// Whether the code page has the character.
bool InCodePage(WideChar character);

// Upper and lower case, character by character: the length never changes, so "ß" stays "ß". In upper case µ,
// ÿ and ƒ stay too, so that a text that a database could take remains one.
UnicodeString UpperText(QStringView text);
UnicodeString LowerText(QStringView text);

// Whether two texts are the same but for case; accents count.
bool SameText(QStringView a, QStringView b);
