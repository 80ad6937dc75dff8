// The places of an SQL text where a keyword can begin, one after the other in a single pass (see Varredura.h
// for the lexical rules). Internal to the toolkit.
//
//     TWordScanner words(sql);
//     while (words.Next())
//         if (words.Depth() == 0 && words.Is(u"FROM")) …words.Place()…
#pragma once
#include <QStringView>

class TWordScanner {
  public:
    // Starts at the 0-based index `from`. `countsDepth` false makes parentheses plain places.
    explicit TWordScanner(QStringView text, qsizetype from = 0, bool countsDepth = true);

    // Moves to the next place; false at the end of the text.
    bool Next();

    qsizetype Place() const { return FPlace; }  // 0-based index of the place
    QStringView Word() const {
        return FText.sliced(FPlace, FAt - FPlace);
    }                                     // what stands there, up to its end
    int Depth() const { return FDepth; }  // of parentheses; negative after a stray )
    bool IsWordStart() const;             // a word or literal, not a lone delimiter

    // Whether `keyword` (ASCII) stands at the place, followed by a delimiter or the end.
    bool Is(QStringView keyword) const;
    // Whether a delimiter or the end of the text follows the word at the place.
    bool EndsAtDelimiter() const;
    // Continues behind the `length` characters at the place.
    void Skip(qsizetype length) { FAt = FPlace + length; }

  private:
    bool CanBegin() const;
    bool StepMark();
    bool StepParenthesis(char16_t c);
    void StepWord();
    bool StepHidden();

    const QStringView FText;
    qsizetype FAt;
    qsizetype FPlace = 0;
    int FDepth = 0;
    const bool FCountsDepth;
};

// The 0-based index behind the literal, quoted identifier or comment that begins at `at`: the text's end when
// it is not closed, `at` itself when none begins there.
qsizetype BehindHidden(QStringView text, qsizetype at);
// The delimiters of the scanner: codes below 33, ( ) and ;.
bool IsScannerDelimiter(char16_t c);
// Equal without regard to the case of ASCII letters.
bool SameKeyword(QStringView text, QStringView keyword);
