// Edit masks: which characters a masked text takes at which place.
//
//     TEditMask mask(u"999.999.999-99;0; ");
//     mask.FormatText(u"12345678909")      // "123.456.789-09"
//
// A mask is "pattern;literals;blank". In the pattern
//     0 9 #   a digit; a digit or blank; a digit, sign or blank
//     L l     a letter; a letter or blank
//     A a     a letter or digit; or blank
//     C c     any character; or blank
//     > <     the letters that follow become upper or lower case; <> ends that
//     !       fill from the right: missing characters leave the blanks in front
//     \x      x itself
//     / :     the date and time separators of FormatSettings
// and every other character stands for itself. The second part tells whether the stored value holds the
// literal characters (1, also when missing) or not (0); the third is the character shown in a place not
// filled yet ("_" when missing). An empty mask is none.
#pragma once
#include <optional>
#include <QStringView>
#include <vector>
#include "platform/rtl/Types.h"

class TEditMask {
  public:
    TEditMask() = default;
    explicit TEditMask(QStringView mask);

    bool IsEmpty() const { return FSlots.empty(); }
    const UnicodeString& Mask() const { return FMask; }

    // Characters of the edited text, literals included.
    int Length() const { return static_cast<int>(FSlots.size()); }
    WideChar Blank() const { return FBlank; }
    bool SavesLiterals() const { return FSavesLiterals; }

    // Whether place `position` (1 to Length) holds a literal.
    bool IsLiteral(int position) const;

    // What a typed character becomes at place `position` (1 to Length), or nothing when it is not taken
    // there.
    std::optional<WideChar> Accept(int position, WideChar character) const;

    // The text to edit for a stored value: literals in place, the blank where a character is missing.
    // Characters that a place does not take are left out.
    UnicodeString Apply(QStringView value) const;

    // The value to store for an edited text: blanks become spaces, and literals go when the mask does not
    // save them; then trailing (with "!": leading) spaces go too. A text without any place filled stores
    // nothing.
    UnicodeString Value(QStringView editText) const;

    // Whether the edited text fills every place that must be filled.
    bool IsComplete(QStringView editText) const;

    // The value laid out for display: as Apply, with spaces for missing characters. With no mask the value
    // itself.
    UnicodeString FormatText(QStringView value) const;

  private:
    struct TSlot {
        WideChar Symbol = 0;  // 0 for a literal
        WideChar Literal = 0;
        char Case = 0;  // '>', '<' or 0
    };

    void ParsePattern(QStringView pattern);
    bool MatchesLiterals(QStringView value) const;
    UnicodeString Fill(QStringView value, WideChar blank) const;
    void Put(UnicodeString& text, int index, QChar c) const;
    UnicodeString Frame(WideChar blank) const;

    UnicodeString FMask;
    std::vector<TSlot> FSlots;
    bool FSavesLiterals = true;
    bool FFromRight = false;
    WideChar FBlank = u'_';
};
