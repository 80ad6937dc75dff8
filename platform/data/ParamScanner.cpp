#include "platform/data/ParamScanner.h"

#include "platform/data/SqlLexer.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

bool Defines(const SqlToken& first) {
    for (const char16_t* word :
         {u"CREATE", u"ALTER", u"RECREATE", u"DROP", u"COMMENT", u"GRANT", u"REVOKE"}) {
        if (first.Is(word)) return true;
    }
    return false;
}

// Knows where in a statement parameters can stand: nowhere in a definition, before the body in a block.
class ParamZone {
  public:
    bool Holds(const SqlToken& token) {
        ++FSeen;
        if (FSeen == 1) {
            FOpen = !Defines(token);
            FExecute = token.Is(u"EXECUTE");
        } else if (FSeen == 2) {
            FBlock = FExecute && token.Is(u"BLOCK");
        } else if (FBlock && token.Is(u"AS")) {
            FOpen = false;
        }
        return FOpen;
    }

  private:
    int FSeen = 0;
    bool FOpen = true, FExecute = false, FBlock = false;
};

UnicodeString NameAsWritten(const SqlToken& token, size_t number) {
    if (token.Kind == SqlTokenKind::Positional) return UnicodeString::number(number);
    return token.Text[1] == u'"' ? NameOf(token) : token.Text.mid(1).toString();
}

int PlaceOf(TStringArray& names, const UnicodeString& name) {
    for (size_t i = 0; i < names.size(); ++i) {
        if (names[i].compare(name, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    }
    names.push_back(name);
    return static_cast<int>(names.size()) - 1;
}

// The statement with what `written` gives in place of each parameter.
template <class Written>
UnicodeString Rewritten(QStringView sql, Written written) {
    UnicodeString result;
    SqlLexer lexer(sql);
    ParamZone zone;
    qsizetype copied = 0;
    for (SqlToken token = lexer.Next(); token.Kind != SqlTokenKind::End; token = lexer.Next()) {
        const bool parameter =
            token.Kind == SqlTokenKind::Parameter || token.Kind == SqlTokenKind::Positional;
        if (!zone.Holds(token) || !parameter) continue;
        result += sql.mid(copied, token.Start - copied);
        result += written(token);
        copied = token.End();
    }
    result += sql.mid(copied);
    return result;
}

}  // namespace

ScannedSql ScanParams(QStringView sql) {
    ScannedSql result;
    result.Text = Rewritten(sql, [&](const SqlToken& token) {
        result.Places.push_back(PlaceOf(result.Names, NameAsWritten(token, result.Places.size() + 1)));
        return u"?"_s;
    });
    return result;
}

// FIRST and SKIP take an expression in parentheses only.
UnicodeString WithCasts(QStringView sql, const std::vector<ParamCast>& casts) {
    size_t place = 0;
    auto next = casts.begin();
    return Rewritten(sql, [&](const SqlToken&) {
        if (next == casts.end() || next->Place != place++) return u"?"_s;
        return u"(CAST(? AS %1))"_s.arg((next++)->Type);
    });
}

}  // namespace fichario
