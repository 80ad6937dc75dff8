#include "sql/parse/Palavras.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

enum class Kind : uint8_t { Word, Blank, Semicolon, Parenthesis, Quote, Slash };

constexpr std::array<Kind, 128> MakeKinds() {
    std::array<Kind, 128> kinds{};
    for (size_t code = 0; code <= ' '; ++code) kinds[code] = Kind::Blank;
    kinds[';'] = Kind::Semicolon;
    kinds['('] = kinds[')'] = Kind::Parenthesis;
    kinds['\''] = kinds['"'] = Kind::Quote;
    kinds['/'] = Kind::Slash;
    return kinds;
}
constexpr std::array<Kind, 128> kKinds = MakeKinds();

inline Kind KindOf(char16_t c) {
    return c < kKinds.size() ? kKinds[c] : Kind::Word;
}
inline bool IsDelimiterKind(Kind kind) {
    return kind == Kind::Blank || kind == Kind::Semicolon || kind == Kind::Parenthesis;
}
inline char16_t UpperAscii(char16_t c) {
    return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c;
}

qsizetype Behind(QStringView text, qsizetype from, QStringView closing) {
    const qsizetype close = text.indexOf(closing, from);
    return close < 0 ? text.size() : close + closing.size();
}

qsizetype BehindLine(QStringView text, qsizetype at) {
    while (at < text.size() && text[at] != u'\r' && text[at] != u'\n') ++at;
    return at;
}

}  // namespace

qsizetype BehindHidden(QStringView text, qsizetype at) {
    const QStringView rest = text.sliced(at);
    if (rest.startsWith(u'\'') || rest.startsWith(u'"')) return Behind(text, at + 1, rest.first(1));
    if (rest.startsWith(u"//")) return BehindLine(text, at);
    if (rest.startsWith(u"/*")) return Behind(text, at + 2, u"*/");
    return at;
}

bool IsScannerDelimiter(char16_t c) {
    return IsDelimiterKind(KindOf(c));
}

bool SameKeyword(QStringView text, QStringView keyword) {
    if (text.size() != keyword.size()) return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (UpperAscii(text[i].unicode()) != UpperAscii(keyword[i].unicode())) return false;
    }
    return true;
}

TWordScanner::TWordScanner(QStringView text, qsizetype from, bool countsDepth)
    : FText(text), FAt(from), FCountsDepth(countsDepth) {}

bool TWordScanner::Next() {
    while (FAt < FText.size()) {
        FPlace = FAt;
        const Kind kind = KindOf(FText.utf16()[FAt]);
        if (kind == Kind::Blank) {
            ++FAt;
        } else if (kind == Kind::Word) {
            StepWord();
            if (CanBegin()) return true;
        } else if (StepMark() && CanBegin()) {
            return true;
        }
    }
    return false;
}

bool TWordScanner::IsWordStart() const {
    return !IsScannerDelimiter(FText[FPlace].unicode());
}

bool TWordScanner::Is(QStringView keyword) const {
    if (keyword.isEmpty() || FText.size() - FPlace < keyword.size()) return false;
    if (!SameKeyword(FText.sliced(FPlace, keyword.size()), keyword)) return false;
    if (keyword.size() == 1 && IsScannerDelimiter(keyword.front().unicode())) return true;
    const qsizetype behind = FPlace + keyword.size();
    return behind == FText.size() || IsScannerDelimiter(FText[behind].unicode());
}

bool TWordScanner::EndsAtDelimiter() const {
    return FAt == FText.size() || IsScannerDelimiter(FText[FAt].unicode());
}

bool TWordScanner::CanBegin() const {
    return FPlace == 0 || IsScannerDelimiter(FText.utf16()[FPlace - 1]);
}

// Moves behind a ; ( ) quote or slash and what it opens; true when a keyword could stand there.
bool TWordScanner::StepMark() {
    const char16_t c = FText[FAt].unicode();
    const Kind kind = KindOf(c);
    if (kind == Kind::Parenthesis) return StepParenthesis(c);
    if (kind != Kind::Semicolon) return StepHidden();
    ++FAt;
    return true;
}

void TWordScanner::StepWord() {
    const char16_t* const begin = FText.utf16();
    const char16_t* at = begin + FAt;
    const char16_t* const end = begin + FText.size();
    while (at < end && KindOf(*at) == Kind::Word) ++at;
    FAt = at - begin;
}

bool TWordScanner::StepParenthesis(char16_t c) {
    ++FAt;
    if (FCountsDepth) FDepth += c == u'(' ? 1 : -1;
    return !FCountsDepth;
}

// A literal begins a word as any other does; a comment does not.
bool TWordScanner::StepHidden() {
    const qsizetype behind = BehindHidden(FText, FAt);
    const bool comment = behind > FAt && FText[FAt] == u'/';
    FAt = std::max(behind, FAt + 1);
    return !comment;
}
