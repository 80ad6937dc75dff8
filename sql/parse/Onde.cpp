#include "sql/parse/Onde.h"

#include <QStringBuilder>

#include "platform/rtl/Trim.h"

namespace {

constexpr qsizetype kKeywordLength = 6;  // "WHERE "
constexpr QStringView kAnd = u"\r\n  AND ";

bool IsMixed(QStringView text) {
    return text.contains(u"//") || text.contains(u"OR", Qt::CaseInsensitive);
}

// Deals with an empty condition or clause, and trims both; true when a joining is still to be done.
bool NeedsJoining(UnicodeString& where, QStringView condition) {
    where = Trim(where).toString();
    if (condition.isEmpty()) return false;
    if (!where.isEmpty()) return true;
    where = u"WHERE " % condition;
    return false;
}

}  // namespace

void AddWhereClause(UnicodeString& where, const UnicodeString& condition) {
    const UnicodeString added = Trim(condition).toString();
    if (!NeedsJoining(where, added)) return;
    const UnicodeString existing = where.mid(kKeywordLength);
    if (IsMixed(existing) || IsMixed(added)) {
        where = u" WHERE (" % existing % u')' % kAnd % added;
    } else {
        where += kAnd % added;
    }
}

void AddWhereClauseHigh(UnicodeString& where, const UnicodeString& condition) {
    const UnicodeString added = Trim(condition).toString();
    if (!NeedsJoining(where, added)) return;
    const UnicodeString existing = Trim(QStringView(where).mid(kKeywordLength)).toString();
    if (IsMixed(existing) || IsMixed(added)) {
        where = u"WHERE ( " % added % u" ) " % kAnd % u" ( " % existing % u"\r\n)";
    } else {
        where = u"WHERE " % added % kAnd % existing;
    }
}
