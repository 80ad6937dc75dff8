#include "platform/rtl/RtfReader.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/rtl/CodePage.h"

namespace {

constexpr int kMaxParameter = 100'000'000;
constexpr size_t kMostColors = 4096;

struct TWordText {
    QByteArrayView Word;
    QStringView Text;
};

// Control words that stand for text.
const TWordText kTexts[] = {{"line", u"\u2028"},   {"tab", u"\t"},      {"cell", u"\t"},
                            {"nestcell", u"\t"},   {"emdash", u"—"},    {"endash", u"–"},
                            {"bullet", u"•"},      {"lquote", u"‘"},    {"rquote", u"’"},
                            {"ldblquote", u"“"},   {"rdblquote", u"”"}, {"emspace", u"\u2003"},
                            {"enspace", u"\u2002"}};

// Control words that end a paragraph.
const QByteArrayView kEnds[] = {"par", "row", "sect", "page", "nestrow"};

// Groups whose content is no text of the document.
const QByteArrayView kHidden[] = {"fonttbl", "colortbl", "stylesheet", "info",    "pict",      "filetbl",
                                  "header",  "headerl",  "headerr",    "headerf", "footer",    "footerl",
                                  "footerr", "footerf",  "footnote",   "object",  "fldinst",   "listtext",
                                  "pntext",  "xe",       "tc",         "rxe",     "bkmkstart", "bkmkend"};

// The written mark of a list's item: its paragraph has a bullet.
const QByteArrayView kMarks[] = {"listtext", "pntext"};

template <size_t N>
bool OneOf(const QByteArrayView (&words)[N], QByteArrayView word) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::optional<int> HexDigit(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return std::nullopt;
}

// What a group inherits from the one around it.
struct TGroup {
    bool Hidden = false;
    bool Colors = false;  // the colour table
    int Fallback = 1;     // characters that follow a \u for readers without Unicode
    TRtfLetters Letters;
    TRtfAlign Align = TRtfAlign::Left;
};

class TReader {
  public:
    TReader(QByteArrayView bytes, TRtfSink& sink) : FBytes(bytes), FSink(sink) {}

    void Read() {
        while (FAt < FBytes.size() && !FEnded) ReadPiece();
        FSink.LastParagraph({FLastAlign, FBullet});
    }

  private:
    TGroup& Group() { return FGroups.back(); }
    bool Has(qsizetype at) const { return at < FBytes.size(); }

    void ReadPiece() {
        switch (FBytes[FAt]) {
            case '{': OpenGroup(); break;
            case '}': CloseGroup(); break;
            case '\\': ReadControl(); break;
            default: ReadRun();
        }
    }

    void OpenGroup() {
        ++FAt;
        FSkip = 0;
        FGroups.push_back(Group());
    }

    void CloseGroup() {
        ++FAt;
        FSkip = 0;
        FGroups.pop_back();
        FEnded = FGroups.size() < 2;
        if (FGroups.empty()) FGroups.emplace_back();
    }

    void ReadControl() {
        ++FAt;
        if (!Has(FAt)) return;
        if (IsLetter(FBytes[FAt])) {
            ReadWord();
        } else {
            ReadSymbol(FBytes[FAt++]);
        }
    }

    void ReadSymbol(char symbol) {
        switch (symbol) {
            case '\'': ReadHexByte(); break;
            case '*': Group().Hidden = true; break;
            case '~': Append(u"\u00A0"); break;
            case '_': Append(u"\u2011"); break;
            case '\\':
            case '{':
            case '}': AppendBytes(QByteArrayView(&symbol, 1)); break;
            case '\r':
            case '\n': EndParagraph(); break;
            default: break;
        }
    }

    void ReadHexByte() {
        if (!Has(FAt + 1)) return;
        const auto high = HexDigit(FBytes[FAt]), low = HexDigit(FBytes[FAt + 1]);
        if (!high || !low) return;
        FAt += 2;
        const char byte = char(*high * 16 + *low);
        AppendBytes(QByteArrayView(&byte, 1));
    }

    void ReadWord() {
        const qsizetype begin = FAt;
        while (Has(FAt) && IsLetter(FBytes[FAt])) ++FAt;
        const QByteArrayView word = FBytes.sliced(begin, FAt - begin);
        const std::optional<int> parameter = ReadParameter();
        if (Has(FAt) && FBytes[FAt] == ' ') ++FAt;
        Obey(word, parameter);
    }

    std::optional<int> ReadParameter() {
        qsizetype at = FAt;
        const bool negative = Has(at) && FBytes[at] == '-';
        if (negative) ++at;
        if (!Has(at) || !IsDigit(FBytes[at])) return std::nullopt;
        int value = 0;
        for (; Has(at) && IsDigit(FBytes[at]); ++at)
            value = std::min(value * 10 + (FBytes[at] - '0'), kMaxParameter);
        FAt = at;
        return negative ? -value : value;
    }

    void Obey(QByteArrayView word, std::optional<int> parameter) {
        if (word == "u") return AppendUnicode(parameter.value_or(0));
        if (word == "uc") return void(Group().Fallback = std::clamp(parameter.value_or(1), 0, kMaxParameter));
        if (word == "bin") return SkipBytes(parameter.value_or(0));
        if (OneOf(kEnds, word)) return EndParagraph();
        if (OneOf(kMarks, word)) FBullet = true;
        if (OneOf(kHidden, word)) Group().Hidden = true;
        if (Group().Colors || word == "colortbl") return ObeyInColors(word, parameter.value_or(0));
        if (ObeyFormat(word, parameter)) return;
        const auto text = std::find_if(std::begin(kTexts), std::end(kTexts),
                                       [&](const TWordText& entry) { return entry.Word == word; });
        if (text != std::end(kTexts)) Append(text->Text);
    }

    void ObeyInColors(QByteArrayView word, int parameter) {
        Group().Colors = true;
        const int level = std::clamp(parameter, 0, 255);
        if (word == "red") FColor = (std::max(FColor, 0) & 0x00FFFF) | (level << 16);
        if (word == "green") FColor = (std::max(FColor, 0) & 0xFF00FF) | (level << 8);
        if (word == "blue") FColor = (std::max(FColor, 0) & 0xFFFF00) | level;
    }

    bool ObeyFormat(QByteArrayView word, std::optional<int> parameter) {
        const bool on = parameter.value_or(1) != 0;
        TRtfLetters& letters = Group().Letters;
        if (word == "b") return letters.Bold = on, true;
        if (word == "i") return letters.Italic = on, true;
        if (word == "ul") return letters.Underline = on, true;
        if (word == "ulnone") return letters.Underline = false, true;
        if (word == "plain") return letters = {}, true;
        if (word == "cf") return letters.Color = ColorOf(parameter.value_or(0)), true;
        return ObeyParagraph(word);
    }

    bool ObeyParagraph(QByteArrayView word) {
        if (word == "pard") {
            FBullet = false;
            return Group().Align = TRtfAlign::Left, true;
        }
        if (word == "ql" || word == "qj") return Group().Align = TRtfAlign::Left, true;
        if (word == "qr") return Group().Align = TRtfAlign::Right, true;
        if (word == "qc") return Group().Align = TRtfAlign::Center, true;
        return false;
    }

    int ColorOf(int index) const {
        return index >= 0 && size_t(index) < FColors.size() ? FColors[size_t(index)] : -1;
    }

    void SkipBytes(int count) { FAt = std::min(FAt + std::max(count, 0), FBytes.size()); }

    void ReadRun() {
        const qsizetype begin = FAt;
        while (Has(FAt) && !QByteArrayView("{}\\\r\n\0", 6).contains(FBytes[FAt])) ++FAt;
        if (FAt == begin) {
            ++FAt;  // line ends and zero bytes between the pieces mean nothing
        } else {
            AppendBytes(FBytes.sliced(begin, FAt - begin));
        }
    }

    // A ";" ends each entry; one without colours is the reader's own.
    void EndColors(QByteArrayView bytes) {
        for (const char c : bytes) {
            if (c == ';' && FColors.size() < kMostColors) FColors.push_back(std::exchange(FColor, -1));
        }
    }

    void AppendUnicode(int code) {
        FSkip = 0;
        const QChar unit(char16_t(code & 0xFFFF));
        Append(QStringView(&unit, 1));
        FSkip = Group().Fallback;
    }

    void AppendBytes(QByteArrayView bytes) {
        if (Group().Colors) return EndColors(bytes);
        const qsizetype skipped = std::min<qsizetype>(FSkip, bytes.size());
        FSkip -= int(skipped);
        if (skipped < bytes.size()) Show(FromAnsi(bytes.sliced(skipped)));
    }

    void Append(QStringView text) {
        if (FSkip > 0) {
            --FSkip;
        } else {
            Show(text);
        }
    }

    void Show(QStringView text) {
        if (Group().Hidden) return;
        FLastAlign = Group().Align;
        FSink.Text(text, Group().Letters);
    }

    void EndParagraph() {
        if (FSkip > 0) return void(--FSkip);
        if (Group().Hidden) return;
        FSink.EndParagraph({Group().Align, std::exchange(FBullet, false)});
        FLastAlign = Group().Align;
    }

    const QByteArrayView FBytes;
    TRtfSink& FSink;
    qsizetype FAt = 0;
    std::vector<TGroup> FGroups = std::vector<TGroup>(1);
    std::vector<int> FColors;
    int FColor = -1;  // the colour table's entry being read
    bool FBullet = false;
    TRtfAlign FLastAlign = TRtfAlign::Left;
    int FSkip = 0;  // fallback characters of the last \u still to come
    bool FEnded = false;
};

}  // namespace

void ReadRtf(QByteArrayView rtf, TRtfSink& sink) {
    TReader(rtf, sink).Read();
}
