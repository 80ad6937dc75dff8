#include "platform/data/firebird/TextEncoding.h"

#include <QStringList>
#include "platform/rtl/CodePage.h"

namespace fichario {

TextEncoding EncodingOfName(QStringView characterSet) {
    return characterSet.compare(u"UTF8", Qt::CaseInsensitive) == 0 ? TextEncoding::Utf8
                                                                   : TextEncoding::Windows1252;
}

std::optional<QByteArray> EncodeText(TextEncoding encoding, QStringView text) {
    if (encoding == TextEncoding::Windows1252) return ToAnsiExact(text);
    if (!text.isValidUtf16()) return std::nullopt;
    return text.toUtf8();
}

UnicodeString DecodeText(TextEncoding encoding, QByteArrayView bytes) {
    return encoding == TextEncoding::Utf8 ? UnicodeString::fromUtf8(bytes) : FromAnsi(bytes);
}

UnicodeString FirstForeign(TextEncoding encoding, QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const bool held =
            encoding == TextEncoding::Utf8 ? pair || !text[i].isSurrogate() : InCodePage(text[i].unicode());
        if (!held) return text.mid(i, pair ? 2 : 1).toString();
        if (pair) ++i;
    }
    return {};
}

}  // namespace fichario
