#include "platform/data/SqlLexer.h"

namespace fichario {

namespace {

bool StartsWord(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'$';
}

char16_t ClosingOf(QChar opening) {
    switch (opening.unicode()) {
        case u'{': return u'}';
        case u'(': return u')';
        case u'[': return u']';
        case u'<': return u'>';
        default: return opening.unicode();
    }
}

}  // namespace

bool SqlToken::Is(QStringView keyword) const {
    return Kind == SqlTokenKind::Word && Text.compare(keyword, Qt::CaseInsensitive) == 0;
}

bool SqlToken::IsSymbol(char16_t character) const {
    return Kind == SqlTokenKind::Symbol && Text[0] == character;
}

bool SqlLexer::At(qsizetype position, char16_t character) const {
    return position < FText.size() && FText[position] == character;
}

void SqlLexer::SkipBlanks() {
    do {
        while (FPosition < FText.size() && FText[FPosition].isSpace()) ++FPosition;
    } while (SkipComment());
}

bool SqlLexer::SkipComment() {
    if (At(FPosition, u'-') && At(FPosition + 1, u'-')) {
        while (FPosition < FText.size() && FText[FPosition] != u'\n' && FText[FPosition] != u'\r')
            ++FPosition;
        return true;
    }
    if (At(FPosition, u'/') && At(FPosition + 1, u'*')) {
        const qsizetype end = FText.indexOf(u"*/", FPosition + 2);
        FPosition = end < 0 ? FText.size() : end + 2;
        return true;
    }
    return false;
}

// Behind the closing quote of the quoted text that opens at `start`; the text's end when it is never closed.
qsizetype SqlLexer::EndOfQuoted(qsizetype start) const {
    const QChar quote = FText[start];
    for (qsizetype i = start + 1; i < FText.size(); ++i) {
        if (FText[i] != quote) continue;
        if (!At(i + 1, quote.unicode())) return i + 1;
        ++i;
    }
    return FText.size();
}

// The same for q'{…}', whose letter stands at `start`; -1 when that is not what stands there.
qsizetype SqlLexer::EndOfAlternative(qsizetype start) const {
    const bool letter = At(start, u'q') || At(start, u'Q');
    if (!letter || !At(start + 1, u'\'') || start + 2 >= FText.size()) return -1;
    const char16_t closing[] = {ClosingOf(FText[start + 2]), u'\''};
    const qsizetype end = FText.indexOf(QStringView(closing, 2), start + 3);
    return end < 0 ? FText.size() : end + 2;
}

qsizetype SqlLexer::EndOfWord(qsizetype start) const {
    while (start < FText.size() && StartsWord(FText[start])) ++start;
    return start;
}

SqlToken SqlLexer::Cut(SqlTokenKind kind, qsizetype end) {
    const SqlToken token{kind, FPosition, FText.mid(FPosition, end - FPosition)};
    FPosition = end;
    return token;
}

SqlToken SqlLexer::Next() {
    SkipBlanks();
    if (FPosition >= FText.size()) return {SqlTokenKind::End, FText.size(), {}};
    const QChar c = FText[FPosition];
    if (const qsizetype end = EndOfAlternative(FPosition); end >= 0) return Cut(SqlTokenKind::Literal, end);
    if (StartsWord(c)) return Cut(SqlTokenKind::Word, EndOfWord(FPosition));
    if (c == u'\'') return Cut(SqlTokenKind::Literal, EndOfQuoted(FPosition));
    if (c == u'"') return Cut(SqlTokenKind::QuotedName, EndOfQuoted(FPosition));
    if (c == u'?') return Cut(SqlTokenKind::Positional, FPosition + 1);
    if (c != u':' || FPosition + 1 >= FText.size()) return Cut(SqlTokenKind::Symbol, FPosition + 1);

    const QChar next = FText[FPosition + 1];
    if (next == u'"') return Cut(SqlTokenKind::Parameter, EndOfQuoted(FPosition + 1));
    if (StartsWord(next) && !next.isDigit()) return Cut(SqlTokenKind::Parameter, EndOfWord(FPosition + 1));
    return Cut(SqlTokenKind::Symbol, FPosition + 1);
}

QString NameOf(const SqlToken& token) {
    QStringView text = token.Text;
    if (token.Kind == SqlTokenKind::Parameter) text = text.mid(1);
    if (!text.startsWith(u'"')) return text.toString().toUpper();
    return text.mid(1, text.size() - 2).toString().replace(QStringLiteral("\"\""), QStringLiteral("\""));
}

}  // namespace fichario
