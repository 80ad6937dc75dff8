#include "platform/rtl/CodePage.h"

#include <algorithm>
#include <array>

namespace {

// The characters of the bytes 80 to 9F; all others equal their code.
constexpr std::array<WideChar, 32> kHigh = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Their capitals are outside the code page, that of ÿ outside ISO 8859-1, the usual set of connections.
constexpr QStringView kWithoutCapital = u"µÿƒ";

std::optional<char> ByteOf(WideChar character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
    const auto found = std::find(kHigh.begin(), kHigh.end(), character);
    if (found == kHigh.end()) return std::nullopt;
    return static_cast<char>(0x80 + (found - kHigh.begin()));
}

}  // namespace

AnsiString ToAnsi(QStringView text) {
    AnsiString bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](QChar c) { return ByteOf(c.unicode()).value_or('?'); });
    return bytes;
}

std::optional<AnsiString> ToAnsiExact(QStringView text) {
    AnsiString bytes(text.size(), Qt::Uninitialized);
    return PutAnsiExact(text, bytes.data()) ? std::optional(bytes) : std::nullopt;
}

bool PutAnsiExact(QStringView text, char* bytes) {
    // Most texts hold only characters that equal their byte; this loop the compiler makes a vector's.
    bool others = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const WideChar c = text.utf16()[i];
        others |= c > 0xFF || (c & 0xE0) == 0x80;
        bytes[i] = static_cast<char>(c);
    }
    if (!others) return true;
    for (const QChar c : text) {
        const std::optional<char> byte = ByteOf(c.unicode());
        if (!byte) return false;
        *bytes++ = *byte;
    }
    return true;
}

UnicodeString FromAnsi(QByteArrayView bytes) {
    UnicodeString text = UnicodeString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0) c = QChar(kHigh[c.unicode() - 0x80]);
    }
    return text;
}

bool InCodePage(WideChar character) {
    return ByteOf(character).has_value();
}

UnicodeString UpperText(QStringView text) {
    UnicodeString upper = text.toString();
    for (QChar& c : upper) {
        if (!kWithoutCapital.contains(c)) c = c.toUpper();
    }
    return upper;
}

UnicodeString LowerText(QStringView text) {
    UnicodeString lower = text.toString();
    for (QChar& c : lower) c = c.toLower();
    return lower;
}

bool SameText(QStringView a, QStringView b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](QChar x, QChar y) { return x.toUpper() == y.toUpper(); });
}
