#include "platform/rtl/EditMask.h"

#include <algorithm>
#include "platform/rtl/FormatSettings.h"

namespace {

constexpr QStringView kSymbols = u"09#LlAaCc";

bool IsRequired(WideChar symbol) {
    return QStringView(u"0LAC").contains(symbol);
}

bool Takes(WideChar symbol, QChar c) {
    switch (symbol) {
        case u'0':
        case u'9': return c >= u'0' && c <= u'9';
        case u'#': return (c >= u'0' && c <= u'9') || c == u'+' || c == u'-';
        case u'L':
        case u'l': return c.isLetter();
        case u'A':
        case u'a': return c.isLetterOrNumber();
        default: return true;
    }
}

// Where the pattern ends: the first ";" that no backslash makes a literal.
qsizetype PatternLength(QStringView mask) {
    qsizetype i = 0;
    while (i < mask.size() && mask[i] != u';') i += mask[i] == u'\\' ? 2 : 1;
    return std::min(i, mask.size());
}

WideChar LiteralOf(QChar c) {
    if (c == u'/') return FormatSettings.DateSeparator;
    if (c == u':') return FormatSettings.TimeSeparator;
    return c == u'_' ? u' ' : c.unicode();
}

}  // namespace

TEditMask::TEditMask(QStringView mask) : FMask(mask.toString()) {
    const qsizetype length = PatternLength(mask);
    const QStringView options = mask.sliced(length);  // ";0;_"
    if (options.size() > 1) FSavesLiterals = options[1] != u'0';
    if (options.size() > 3) FBlank = options[3].unicode();
    ParsePattern(mask.left(length));
}

void TEditMask::ParsePattern(QStringView pattern) {
    char letterCase = 0;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'!') {
            FFromRight = true;
        } else if (c == u'>' || c == u'<') {
            const bool ends = letterCase == '<' && c == u'>' && i > 0 && pattern[i - 1] == u'<';
            letterCase = ends ? 0 : static_cast<char>(c.unicode());
        } else if (c == u'\\' && i + 1 < pattern.size()) {
            FSlots.push_back({0, pattern[++i].unicode(), 0});
        } else if (kSymbols.contains(c)) {
            FSlots.push_back({c.unicode(), 0, letterCase});
        } else {
            FSlots.push_back({0, LiteralOf(c), 0});
        }
    }
}

bool TEditMask::IsLiteral(int position) const {
    return FSlots.at(position - 1).Symbol == 0;
}

std::optional<WideChar> TEditMask::Accept(int position, WideChar character) const {
    const TSlot& slot = FSlots.at(position - 1);
    if (slot.Symbol == 0) return std::nullopt;
    if ((character == u' ' || character == FBlank) && !IsRequired(slot.Symbol)) return FBlank;
    if (!Takes(slot.Symbol, character)) return std::nullopt;
    if (slot.Case == '>') return QChar::toUpper(character);
    return slot.Case == '<' ? QChar::toLower(character) : character;
}

UnicodeString TEditMask::Frame(WideChar blank) const {
    UnicodeString text;
    for (const TSlot& slot : FSlots) text += QChar(slot.Symbol == 0 ? slot.Literal : blank);
    return text;
}

bool TEditMask::MatchesLiterals(QStringView value) const {
    if (value.size() != Length()) return false;
    for (int i = 0; i < Length(); ++i) {
        if (FSlots[i].Symbol == 0 && value[i] != FSlots[i].Literal) return false;
    }
    return true;
}

void TEditMask::Put(UnicodeString& text, int index, QChar c) const {
    const auto taken = c == u' ' ? std::nullopt : Accept(index + 1, c.unicode());
    if (taken && *taken != FBlank) text[index] = QChar(*taken);
}

UnicodeString TEditMask::Fill(QStringView value, WideChar blank) const {
    UnicodeString text = Frame(blank);
    if (FSavesLiterals && MatchesLiterals(value)) {
        for (int i = 0; i < Length(); ++i) Put(text, i, value[i]);
        return text;
    }
    const int step = FFromRight ? -1 : 1;
    int at = FFromRight ? Length() - 1 : 0;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = FFromRight ? value[value.size() - 1 - i] : value[i];
        while (at >= 0 && at < Length() && FSlots[at].Symbol == 0) at += step;
        if (at < 0 || at >= Length()) break;
        Put(text, at, c);
        if (c == u' ' || Accept(at + 1, c.unicode())) at += step;
    }
    return text;
}

UnicodeString TEditMask::Apply(QStringView value) const {
    return IsEmpty() ? value.toString() : Fill(value, FBlank);
}

UnicodeString TEditMask::FormatText(QStringView value) const {
    return IsEmpty() ? value.toString() : Fill(value, u' ');
}

UnicodeString TEditMask::Value(QStringView editText) const {
    if (IsEmpty()) return editText.toString();
    UnicodeString value;
    bool filled = false;
    for (int i = 0; i < Length() && i < editText.size(); ++i) {
        const bool literal = FSlots[i].Symbol == 0, blank = !literal && editText[i] == FBlank;
        if (!literal && !blank && editText[i] != u' ') filled = true;
        if (!literal || FSavesLiterals) value += blank ? QChar(u' ') : editText[i];
    }
    if (!filled) return {};
    while (!FSavesLiterals && !FFromRight && value.endsWith(u' ')) value.chop(1);
    while (!FSavesLiterals && FFromRight && value.startsWith(u' ')) value.remove(0, 1);
    return value;
}

bool TEditMask::IsComplete(QStringView editText) const {
    if (IsEmpty()) return true;
    if (!MatchesLiterals(editText)) return false;
    for (int i = 0; i < Length(); ++i) {
        if (FSlots[i].Symbol != 0 && !Accept(i + 1, editText[i].unicode())) return false;
        if (IsRequired(FSlots[i].Symbol) && editText[i] == FBlank) return false;
    }
    return true;
}
