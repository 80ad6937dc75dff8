#include "platform/data/Searchable.h"

#include "platform/data/SqlLexer.h"

namespace fichario {

namespace {

constexpr char16_t kSubstitute = 0x1A;

UnicodeString WithoutForeign(QStringView literal, const TForeignOf& foreignOf) {
    UnicodeString text = literal.toString();
    for (UnicodeString foreign = foreignOf(text); !foreign.isEmpty(); foreign = foreignOf(text)) {
        text.replace(foreign, QChar(kSubstitute));
    }
    return text;
}

}  // namespace

UnicodeString Searchable(QStringView sql, const TForeignOf& foreignOf) {
    if (foreignOf(sql).isEmpty()) return sql.toString();
    SqlLexer lexer(sql);
    SqlToken token = lexer.Next();
    if (!token.Is(u"SELECT") && !token.Is(u"WITH")) return sql.toString();
    UnicodeString result;
    qsizetype copied = 0;
    for (; token.Kind != SqlTokenKind::End; token = lexer.Next()) {
        if (token.Kind != SqlTokenKind::Literal) continue;
        result += sql.mid(copied, token.Start - copied);
        result += WithoutForeign(token.Text, foreignOf);
        copied = token.End();
    }
    result += sql.mid(copied);
    return result;
}

}  // namespace fichario
