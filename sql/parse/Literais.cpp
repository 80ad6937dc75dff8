#include "sql/parse/Literais.h"

#include <algorithm>
#include <QStringBuilder>

#include "platform/rtl/Trim.h"

namespace {

bool IsBetween(QStringView text, char16_t quote) {
    return text.front() == quote && text.back() == quote;
}

// Steps through a text and tells which characters stand outside double quotes.
class TQuoteWatch {
  public:
    bool IsOutside(QChar c) {
        FInside ^= c == u'"';
        return !FInside;
    }

  private:
    bool FInside = false;
};

UnicodeString Escaped(char16_t code) {
    constexpr QStringView kMarked = u"\\=,#;";
    if (code < 32) return u'\\' % QChar(code + 65);
    if (kMarked.contains(QChar(code))) return u'\\' % QChar(code);
    if (code >= 129 && code <= 255) return u'#' % UnicodeString::number(code);
    return QChar(code);
}

}  // namespace

bool isLitCriteria(const UnicodeString& text, WideChar quote) {
    const QStringView trimmed = Trim(text);
    if (trimmed.size() < 2) return false;
    if (quote == u'"' || quote == u'\'') return IsBetween(trimmed, quote);
    return IsBetween(trimmed, u'\'') || IsBetween(trimmed, u'"');
}

UnicodeString cvLitCriteria(const UnicodeString& text, WideChar quote) {
    UnicodeString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        result += c;
        if (c == quote) result += c;
    }
    return result;
}

UnicodeString mkLitCriteria(const UnicodeString& text, WideChar quote) {
    if (isLitCriteria(text, quote)) return text;
    return QChar(quote) % cvLitCriteria(text, quote) % QChar(quote);
}

UnicodeString stLitCriteria(const UnicodeString& text) {
    if (!isLitCriteria(text, u' ')) return text;
    const QChar quote = text.front();
    const QStringView content = QStringView(text).sliced(1).chopped(1);
    UnicodeString result;
    for (qsizetype i = 0; i < content.size(); ++i) {
        result += content[i];
        const bool doubled = content[i] == quote && i + 1 < content.size() && content[i + 1] == quote;
        if (doubled) ++i;
    }
    return result;
}

int getLitSafePos(WideChar c, const UnicodeString& text, int from) {
    TQuoteWatch watch;
    for (int i = std::max(from, 1); i <= text.size(); ++i) {
        if (watch.IsOutside(text[i - 1]) && text[i - 1] == c) return i;
    }
    return 0;
}

int getLitSafeStrPos(const UnicodeString& sub, const UnicodeString& text, int from) {
    if (sub.isEmpty()) return 0;
    TQuoteWatch watch;
    for (qsizetype i = std::max(from, 1); i <= text.size() - sub.size() + 1; ++i) {
        if (watch.IsOutside(text[i - 1]) && QStringView(text).sliced(i - 1).startsWith(sub)) return int(i);
    }
    return 0;
}

bool CharIsDelimiter(WideChar c) {
    constexpr QStringView kDelimiters = u"!()*,/:;<=>?";
    return c < 33 || kDelimiters.contains(QChar(c));
}

UnicodeString SetCharValues(const UnicodeString& text) {
    UnicodeString result;
    for (const QChar c : text) result += Escaped(c.unicode());
    return result;
}
