// The keyword search that every reader of SQL text here stands on.
//
//     TSQLRegion from = ParseStr(u"SELECT A FROM T WHERE X = 1", {.Opening = u"FROM", .Endings =
//     {u"WHERE"}});
//     // from.Start == 10, from.End == 17
//
// Keywords are looked for in plain text only:
//   - '…' is a literal and "…" a quoted identifier; // runs to the next CR or LF, /* to the next */;
//   - ( and ) raise and lower a depth, and keywords count at depth 0 only, so sub-selects and arguments are
//   skipped
//     (unless a keyword of the search itself holds a parenthesis: then the depth is not counted);
//   - a keyword begins at position 1 or behind a delimiter: a character below code 33, ( ) or ; — so the ; of
//   "T;"
//     is part of the word, and that of "T ;" is not;
//   - it matches without regard to case when a delimiter or the end of the text follows; a keyword that is
//   itself
//     one delimiter needs none.
// An unterminated quote or comment hides the rest of the text. Nothing here throws; the cost is linear.
#pragma once
#include <vector>
#include "platform/rtl/Types.h"

// A piece of a text: 1-based position of its first character, and of the first character behind it.
struct TSQLRegion {
    int Start = 0;  // 0: absent
    int End = 0;
    bool Found() const { return Start > 0; }
    int Length() const { return End - Start; }
};

// What `ParseStr` looks for.
struct TSQLSearch {
    QStringView Opening = {};               // the keyword that opens the region, ASCII
    std::vector<QStringView> Endings = {};  // keywords that end it; none: it runs to the end of the text
    bool FirstWord = false;  // the opening keyword must be the first word (blanks and comments may precede)
    int From = 1;            // position where the search starts, in plain text at depth 0
    int Limit = 0;           // last position that is read; 0: the whole text
};

// The region from the first opening keyword up to the first ending keyword behind it, or up to the end of the
// text
// (`End` is then the last position read plus one). Absent when the opening keyword does not occur.
TSQLRegion ParseStr(QStringView text, const TSQLSearch& search);
