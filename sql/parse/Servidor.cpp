#include "sql/parse/Servidor.h"

#include <algorithm>

#include "platform/rtl/Strings.h"
#include "sql/parse/Clausulas.h"
#include "sql/parse/Palavras.h"
#include "sql/parse/Varredura.h"

namespace {

bool IsNameStart(QChar c) {
    return c == u'_' || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}
bool IsNameRest(QChar c) {
    return IsNameStart(c) || c == u'$' || (c >= u'0' && c <= u'9');
}

// Index behind the parameter at `at`; `at` itself when none begins there.
qsizetype BehindParameter(QStringView text, qsizetype at) {
    if (text[at] != u':' || at + 1 == text.size() || !IsNameStart(text[at + 1])) return at;
    qsizetype end = at + 1;
    while (end < text.size() && IsNameRest(text[end])) ++end;
    return end;
}

UnicodeString WithoutBlanksOutsideQuotes(QStringView text) {
    UnicodeString result;
    bool quoted = false;
    for (const QChar c : text) {
        quoted ^= c == u'"';
        if (quoted || c != u' ') result += c;
    }
    return result;
}

// What stands behind FOR UPDATE OF; the search for OF starts inside the word UPDATE, at its last letter.
UnicodeString ColumnList(const UnicodeString& forUpdate) {
    const TSQLRegion opening = ParseStr(forUpdate, {.Opening = u"FOR", .Endings = {u"UPDATE"}});
    if (!opening.Found()) return {};
    const TSQLRegion of = ParseStr(forUpdate, {.Opening = u"OF", .From = opening.End + 5});
    if (!of.Found()) return {};
    return WithoutBlanksOutsideQuotes(QStringView(forUpdate).mid(of.Start + 2));
}

}  // namespace

UnicodeString MakeServerSQL(const UnicodeString& statement) {
    if (GetIsTriggerOrProcedureDDL(statement)) return statement;
    UnicodeString result;
    result.reserve(statement.size());
    for (qsizetype at = 0; at < statement.size();) {
        const qsizetype hidden = BehindHidden(statement, at);
        const qsizetype parameter = hidden == at ? BehindParameter(statement, at) : at;
        const qsizetype next = std::max({hidden, parameter, at + 1});
        if (parameter > at) {
            result += u'?';
        } else {
            result += QStringView(statement).sliced(at, next - at);
        }
        at = next;
    }
    return result;
}

void GetSQLForUpdateColumns(const UnicodeString& statement, TStrings* columns) {
    if (!columns) return;
    UnicodeString clause;
    GetSQLForUpdate(MakeServerSQL(statement), clause);
    const TStringsUpdate update(*columns);
    columns->Clear();
    const UnicodeString list = ColumnList(clause);
    if (!list.isEmpty()) columns->SetCommaText(list);
}
