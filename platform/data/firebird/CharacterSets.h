// The server's character sets: which characters pass from the connection's set to a column's. The server
// refuses some without naming them, and stores others as another character without a word.
//
//     FirstLost(kUtf8Set, kLatin1Set, u"10 €");     // "€"
#pragma once
#include "platform/data/firebird/TextEncoding.h"

namespace fichario {

// Numbers as in RDB$CHARACTER_SETS.
constexpr unsigned kNoSet = 0, kOctetsSet = 1, kAsciiSet = 2, kUnicodeFssSet = 3, kUtf8Set = 4,
                   kLatin1Set = 21, kWin1252Set = 53;

// The number of a set that a connection may have, by its name or one of the server's aliases, any case;
// nothing for others: what they would lose, nobody here could tell.
std::optional<unsigned> CharacterSetNumber(QStringView name);

// How texts that come in the set are to be read. Those without a set come as their bytes are.
TextEncoding EncodingOf(unsigned set);
// The most that a character takes.
unsigned BytesOfCharacter(unsigned set);

// The first character of `text` that a column of the set `column` does not take from a connection of the set
// `connection`, whole even outside the basic plane; empty when it takes all. Over ISO8859_1 the bytes 80 to
// 9F travel as Windows-1252 and come back the same from every set but WIN1252, which has no place for the
// controls that the server sees in them. Sets other than those above take all here: the server checks them.
UnicodeString FirstLost(unsigned connection, unsigned column, QStringView text);

// The first character that a column of ISO8859_1 or of WIN1252 does not take; empty when both take all.
UnicodeString FirstDoubtful(unsigned connection, QStringView text);

}  // namespace fichario
