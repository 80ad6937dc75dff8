// The words of an SQL text, cut as the server cuts them.
//
//     SqlLexer lexer(sql);
//     for (SqlToken token = lexer.Next(); token.Kind != SqlTokenKind::End; token = lexer.Next()) …
//
// Blanks, -- and /* */ comments are skipped. Literals are '…' with doubled quotes and q'{…}' with any
// delimiter. One pass, linear in the text.
#pragma once
#include <QString>
#include <QStringView>

namespace fichario {

enum class SqlTokenKind {
    End,
    Word,        // keyword, plain name or number
    QuotedName,  // "…"
    Literal,     // '…' or q'{…}'
    Parameter,   // :name or :"name"
    Positional,  // ?
    Symbol       // any other single character
};

struct SqlToken {
    SqlTokenKind Kind = SqlTokenKind::End;
    qsizetype Start = 0;  // from 0, in the lexer's text
    QStringView Text;     // as written, quotes included

    qsizetype End() const { return Start + Text.size(); }
    // Whether it is this keyword (given in capitals) in any case.
    bool Is(QStringView keyword) const;
    bool IsSymbol(char16_t character) const;
};

class SqlLexer {
  public:
    explicit SqlLexer(QStringView text) : FText(text) {}

    // The next token; Kind End behind the last one.
    SqlToken Next();

  private:
    void SkipBlanks();
    bool SkipComment();
    bool At(qsizetype position, char16_t character) const;
    qsizetype EndOfQuoted(qsizetype start) const;
    qsizetype EndOfAlternative(qsizetype start) const;
    qsizetype EndOfWord(qsizetype start) const;
    SqlToken Cut(SqlTokenKind kind, qsizetype end);

    QStringView FText;
    qsizetype FPosition = 0;
};

// The name that a token means to the server: quoted ones without their quotes, plain ones in capitals.
QString NameOf(const SqlToken& token);

}  // namespace fichario
