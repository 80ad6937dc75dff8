// Quoted literals, characters outside quotes, and texts stored on one line.
//
//     mkLitCriteria(u"O'Brien"_s, u'\'')         // u"'O''Brien'"
//     stLitCriteria(u"'O''Brien'"_s)             // u"O'Brien"
//     getLitSafePos(u',', u"\"a,b\",c"_s, 1)     // 6
//     SetCharValues(u"a\r\né"_s)                 // u"a\\N\\K#233"
//
// Positions are 1-based; 0 means not found. Nothing here throws.
#pragma once
#include "platform/rtl/Types.h"

// Whether the trimmed text, of two characters at least, begins and ends with `quote`. Any `quote` but ' and "
// (callers pass a blank) accepts either of the two.
bool isLitCriteria(const UnicodeString& text, WideChar quote);

// The text with every `quote` doubled.
UnicodeString cvLitCriteria(const UnicodeString& text, WideChar quote);

// The text as a literal: unchanged when isLitCriteria holds, else doubled inside and put between two
// `quote`s.
UnicodeString mkLitCriteria(const UnicodeString& text, WideChar quote);

// The content of a literal, doubled quotes undone; any other text unchanged. A literal behind a leading blank
// is cut at the blank, which is then taken for the quote: " 'a'" gives "'a".
UnicodeString stLitCriteria(const UnicodeString& text);

// The first position of `c` outside double quotes, from position `from` (below 1 counts as 1; whatever stands
// before it is not looked at). Single quotes do not matter. A closing double quote is itself outside.
int getLitSafePos(WideChar c, const UnicodeString& text, int from);

// The same for a text, compared case by case; only its first character must stand outside. Empty `sub` gives
// 0.
int getLitSafeStrPos(const UnicodeString& sub, const UnicodeString& text, int from);

// A code below 33 or one of ! ( ) * , / : ; < = > ?
bool CharIsDelimiter(WideChar c);

// The text for storage on one line: a control character becomes \ and the character 65 codes higher (CR gives
// \N), \ = , # ; get a \ in front, codes 129 to 255 become # and the decimal code, anything else stays.
UnicodeString SetCharValues(const UnicodeString& text);
