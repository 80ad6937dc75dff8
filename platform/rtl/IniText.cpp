#include "platform/rtl/IniText.h"

#include <algorithm>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Trim.h"

namespace fichario {

namespace {

constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

bool InQuotes(QStringView text) {
    return text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"');
}

// The value as it stands behind "=", in quotes when it would not be read back otherwise.
UnicodeString Written(const UnicodeString& value) {
    const bool plain = Trim(value).size() == value.size() && !InQuotes(value);
    return plain ? value : u'"' + value + u'"';
}

UnicodeString Unquoted(QStringView text) {
    return (InQuotes(text) ? text.sliced(1, text.size() - 2) : text).toString();
}

}  // namespace

TIniText TIniText::FromBytes(const QByteArray& bytes) {
    TIniText text;
    text.FUtf8 = bytes.startsWith(kUtf8Mark);
    for (qsizetype begin = text.FUtf8 ? 3 : 0; begin < bytes.size();) {
        const qsizetype newline = bytes.indexOf('\n', begin);
        const qsizetype end = newline < 0 ? bytes.size() : newline + 1;
        text.FLines.push_back(text.Parse(bytes.mid(begin, end - begin)));
        begin = end;
    }
    if (!text.FLines.empty() && !text.FLines.front().Raw.endsWith("\r\n")) text.FLineEnd = "\n";
    return text;
}

QByteArray TIniText::ToBytes() const {
    QByteArray bytes = FUtf8 ? kUtf8Mark : "";
    for (const TLine& line : FLines) bytes += line.Raw;
    return bytes;
}

std::optional<UnicodeString> TIniText::Value(QStringView section, QStringView key) const {
    const auto found = Find(section, key);
    return found ? std::optional(FLines[*found].Value) : std::nullopt;
}

bool TIniText::HasSection(QStringView section) const {
    return std::any_of(FLines.begin(), FLines.end(), [section](const TLine& line) {
        return line.Kind == ikSection && SameText(line.Name, section);
    });
}

TStringArray TIniText::Keys(QStringView section) const {
    TStringArray keys;
    for (const TRange& range : Ranges(section)) {
        for (size_t i = range.Begin; i < range.End; ++i) {
            if (FLines[i].Kind == ikSetting) keys.push_back(FLines[i].Name);
        }
    }
    return keys;
}

TStringArray TIniText::Sections() const {
    TStringArray sections;
    for (const TLine& line : FLines) {
        if (line.Kind == ikSection) sections.push_back(line.Name);
    }
    return sections;
}

bool TIniText::SetValue(const UnicodeString& section, const UnicodeString& key, const UnicodeString& value) {
    if (const auto found = Find(section, key)) {
        TLine& line = FLines[*found];
        if (line.Value == value) return false;
        line = Make(line.Name + u'=' + Written(value));
        return true;
    }
    if (Ranges(section).empty()) AddSection(section);
    const TRange range = Ranges(section).front();
    size_t end = range.End;
    while (end > range.Begin && FLines[end - 1].Raw.trimmed().isEmpty()) --end;
    InsertLine(end, key + u'=' + Written(value));
    return true;
}

bool TIniText::DeleteKey(QStringView section, QStringView key) {
    const auto found = Find(section, key);
    if (found) FLines.erase(FLines.begin() + *found);
    return found.has_value();
}

bool TIniText::EraseSection(QStringView section) {
    std::vector<TRange> ranges = Ranges(section);
    std::reverse(ranges.begin(), ranges.end());
    for (const TRange& range : ranges) {
        const size_t heading = section.isEmpty() ? range.Begin : range.Begin - 1;
        FLines.erase(FLines.begin() + heading, FLines.begin() + range.End);
    }
    return !ranges.empty();
}

TIniText::TLine TIniText::Parse(const QByteArray& raw) const {
    TLine line{raw, ikOther, {}, {}};
    const UnicodeString decoded = Decode(raw);
    const QStringView text = Trim(decoded);
    const qsizetype bracket = text.indexOf(u']'), sign = text.indexOf(u'=');
    if (text.startsWith(u'[')) {
        if (bracket < 0) return line;
        line.Kind = ikSection;
        line.Name = Trim(text.sliced(1, bracket - 1)).toString();
    } else if (!text.startsWith(u';') && sign > 0) {
        line.Kind = ikSetting;
        line.Name = Trim(text.left(sign)).toString();
        line.Value = Unquoted(Trim(text.sliced(sign + 1)));
    }
    return line;
}

// A text that the code page cannot hold moves the whole file to UTF-8, so that no character is lost.
TIniText::TLine TIniText::Make(const UnicodeString& text) {
    if (!FUtf8 && !ToAnsiExact(text)) {
        for (TLine& line : FLines) line.Raw = Decode(line.Raw).toUtf8();
        FUtf8 = true;
    }
    return Parse((FUtf8 ? text.toUtf8() : ToAnsi(text)) + FLineEnd);
}

UnicodeString TIniText::Decode(const QByteArray& raw) const {
    return FUtf8 ? UnicodeString::fromUtf8(raw) : FromAnsi(raw);
}

std::vector<TIniText::TRange> TIniText::Ranges(QStringView section) const {
    std::vector<TRange> ranges;
    bool inside = section.isEmpty();
    if (inside) ranges.push_back({0, 0});
    for (size_t i = 0; i < FLines.size(); ++i) {
        if (FLines[i].Kind == ikSection) {
            inside = !section.isEmpty() && SameText(FLines[i].Name, section);
            if (inside) ranges.push_back({i + 1, i + 1});
        } else if (inside) {
            ranges.back().End = i + 1;
        }
    }
    return ranges;
}

std::optional<size_t> TIniText::Find(QStringView section, QStringView key) const {
    for (const TRange& range : Ranges(section)) {
        for (size_t i = range.Begin; i < range.End; ++i) {
            if (FLines[i].Kind == ikSetting && SameText(FLines[i].Name, key)) return i;
        }
    }
    return std::nullopt;
}

void TIniText::AddSection(const UnicodeString& section) {
    const bool apart = !FLines.empty() && !FLines.back().Raw.trimmed().isEmpty();
    if (apart) InsertLine(FLines.size(), {});
    InsertLine(FLines.size(), u'[' + section + u']');
}

void TIniText::InsertLine(size_t index, const UnicodeString& text) {
    if (index > 0 && !FLines[index - 1].Raw.endsWith('\n')) FLines[index - 1].Raw += FLineEnd;
    FLines.insert(FLines.begin() + index, Make(text));
}

}  // namespace fichario
