#include "platform/data/firebird/CharacterSets.h"

#include <algorithm>
#include "platform/rtl/CodePage.h"

namespace fichario {

namespace {

struct NamedSet {
    QStringView Name;
    unsigned Number;
};
constexpr NamedSet kSets[] = {{u"ISO8859_1", kLatin1Set}, {u"ISO88591", kLatin1Set},  {u"LATIN1", kLatin1Set},
                              {u"ANSI", kLatin1Set},      {u"UTF8", kUtf8Set},        {u"UTF-8", kUtf8Set},
                              {u"WIN1252", kWin1252Set},  {u"WIN_1252", kWin1252Set}, {u"NONE", kNoSet}};

bool IsControl(char32_t c) {
    return c >= 0x80 && c < 0xA0;
}

bool IsWin1252(char32_t c) {
    return c <= 0xFFFF && !IsControl(c) && InCodePage(static_cast<WideChar>(c));
}

// Signs that Windows-1252 keeps in the bytes 80 to 9F, and the controls those bytes are elsewhere.
bool IsInUpperControls(char32_t c) {
    return IsControl(c) || (c > 0xFF && IsWin1252(c));
}

bool ColumnTakes(unsigned column, char32_t c) {
    switch (column) {
        case kAsciiSet: return c < 0x80;
        case kLatin1Set: return c <= 0xFF;
        case kWin1252Set: return IsWin1252(c);
        default: return true;
    }
}

bool Passes(unsigned connection, unsigned column, char32_t c) {
    if (c < 0x80) return true;
    if (connection == kLatin1Set && IsInUpperControls(c)) return column != kWin1252Set && column != kAsciiSet;
    if (connection == kWin1252Set && IsControl(c)) return false;
    return ColumnTakes(column, c);
}

bool Untouched(unsigned set) {
    return set == kNoSet || set == kOctetsSet;
}

// Characters that every set has.
bool IsPlain(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

std::optional<unsigned> CharacterSetNumber(QStringView name) {
    for (const NamedSet& set : kSets) {
        if (name.compare(set.Name, Qt::CaseInsensitive) == 0) return set.Number;
    }
    return std::nullopt;
}

TextEncoding EncodingOf(unsigned set) {
    return BytesOfCharacter(set) > 1 ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

unsigned BytesOfCharacter(unsigned set) {
    switch (set) {
        case kUtf8Set: return 4;
        case kUnicodeFssSet: return 3;
        default: return 1;
    }
}

UnicodeString FirstLost(unsigned connection, unsigned column, QStringView text) {
    const bool asItIs = connection == column || Untouched(connection);
    const bool everyByte = column != kAsciiSet && column != kWin1252Set;
    if (Untouched(column) || (asItIs && everyByte) || IsPlain(text)) return {};
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t c = pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        if (!Passes(connection, column, c)) return text.mid(i, pair ? 2 : 1).toString();
        if (pair) ++i;
    }
    return {};
}

UnicodeString FirstDoubtful(unsigned connection, QStringView text) {
    const UnicodeString lost = FirstLost(connection, kLatin1Set, text);
    return lost.isEmpty() ? FirstLost(connection, kWin1252Set, text) : lost;
}

}  // namespace fichario
