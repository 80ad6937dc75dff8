#include "platform/data/firebird/TextEncoding.h"

#include <algorithm>
#include "platform/rtl/CodePage.h"

namespace fichario {

std::optional<QByteArray> EncodeText(TextEncoding encoding, QStringView text) {
    if (encoding == TextEncoding::Windows1252) return ToAnsiExact(text);
    if (!text.isValidUtf16()) return std::nullopt;
    return text.toUtf8();
}

namespace {

bool IsControl(QChar c) {
    return c.unicode() >= 0x80 && c.unicode() < 0xA0;
}

UnicodeString WithSigns(UnicodeString text) {
    if (std::none_of(text.cbegin(), text.cend(), IsControl)) return text;
    for (QChar& c : text) {
        const char byte = static_cast<char>(c.unicode());
        if (IsControl(c)) c = FromAnsi(QByteArrayView(&byte, 1)).at(0);
    }
    return text;
}

}  // namespace

UnicodeString DecodeText(TextEncoding encoding, QByteArrayView bytes) {
    switch (encoding) {
        case TextEncoding::Utf8: return UnicodeString::fromUtf8(bytes);
        case TextEncoding::Utf8Signs: return WithSigns(UnicodeString::fromUtf8(bytes));
        default: return FromAnsi(bytes);
    }
}

UnicodeString DecodeName(QByteArrayView bytes) {
    return bytes.isValidUtf8() ? UnicodeString::fromUtf8(bytes) : FromAnsi(bytes);
}

// Only a text in which the replacement character appears needs a second look: it may be a stored one.
std::optional<UnicodeString> DecodeExact(TextEncoding encoding, QByteArrayView bytes) {
    UnicodeString text = DecodeText(encoding, bytes);
    const bool doubtful =
        encoding != TextEncoding::Windows1252 && text.contains(QChar(QChar::ReplacementCharacter));
    if (doubtful && !bytes.isValidUtf8()) return std::nullopt;
    return text;
}

UnicodeString FirstForeign(TextEncoding encoding, QStringView text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const bool held = encoding == TextEncoding::Windows1252 ? InCodePage(text[i].unicode())
                                                                : pair || !text[i].isSurrogate();
        if (!held) return text.mid(i, pair ? 2 : 1).toString();
        if (pair) ++i;
    }
    return {};
}

}  // namespace fichario
