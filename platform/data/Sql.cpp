#include "platform/data/Sql.h"

namespace {

UnicodeString Quoted(QStringView text, QChar quote) {
    return quote + text.toString().replace(quote, UnicodeString(2, quote)) + quote;
}

}  // namespace

UnicodeString QuoteIdentifier(QStringView name) {
    return Quoted(name, u'"');
}

UnicodeString QuoteLiteral(QStringView text) {
    return Quoted(text, u'\'');
}

UnicodeString Joined(const TStringArray& texts, const UnicodeString& separator) {
    UnicodeString result;
    for (const UnicodeString& text : texts) result += result.isEmpty() ? text : separator + text;
    return result;
}
