#include "platform/rtl/Rtf.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/rtl/CodePage.h"

namespace {

constexpr QStringView kLineBreak = u"\r\n";
constexpr int kMaxParameter = 100'000'000;

struct TWordText {
    QByteArrayView Word;
    QStringView Text;
};

// Control words that stand for text.
const TWordText kTexts[] = {{"par", kLineBreak},  {"line", kLineBreak},   {"row", kLineBreak},
                            {"sect", kLineBreak}, {"page", kLineBreak},   {"nestrow", kLineBreak},
                            {"tab", u"\t"},       {"cell", u"\t"},        {"nestcell", u"\t"},
                            {"emdash", u"—"},     {"endash", u"–"},       {"bullet", u"•"},
                            {"lquote", u"‘"},     {"rquote", u"’"},       {"ldblquote", u"“"},
                            {"rdblquote", u"”"},  {"emspace", u"\u2003"}, {"enspace", u"\u2002"}};

// Groups whose content is no text of the document.
const QByteArrayView kHidden[] = {"fonttbl", "colortbl", "stylesheet", "info",    "pict",      "filetbl",
                                  "header",  "headerl",  "headerr",    "headerf", "footer",    "footerl",
                                  "footerr", "footerf",  "footnote",   "object",  "fldinst",   "listtext",
                                  "pntext",  "xe",       "tc",         "rxe",     "bkmkstart", "bkmkend"};

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
    int Fallback = 1;  // characters that follow a \u for readers without Unicode
};

class TReader {
  public:
    explicit TReader(QByteArrayView bytes) : FBytes(bytes) {}

    UnicodeString Read() {
        while (FAt < FBytes.size() && !FEnded) ReadPiece();
        return FText;
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
            case '\n': Append(kLineBreak); break;
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
        if (std::find(std::begin(kHidden), std::end(kHidden), word) != std::end(kHidden))
            Group().Hidden = true;
        const auto text = std::find_if(std::begin(kTexts), std::end(kTexts),
                                       [&](const TWordText& entry) { return entry.Word == word; });
        if (text != std::end(kTexts)) Append(text->Text);
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

    void AppendUnicode(int code) {
        FSkip = 0;
        const QChar unit(char16_t(code & 0xFFFF));
        Append(QStringView(&unit, 1));
        FSkip = Group().Fallback;
    }

    void AppendBytes(QByteArrayView bytes) {
        const qsizetype skipped = std::min<qsizetype>(FSkip, bytes.size());
        FSkip -= int(skipped);
        if (!Group().Hidden) FText += FromAnsi(bytes.sliced(skipped));
    }

    void Append(QStringView text) {
        if (FSkip > 0) {
            --FSkip;
        } else if (!Group().Hidden) {
            FText += text;
        }
    }

    const QByteArrayView FBytes;
    qsizetype FAt = 0;
    std::vector<TGroup> FGroups = std::vector<TGroup>(1);
    int FSkip = 0;  // fallback characters of the last \u still to come
    bool FEnded = false;
    UnicodeString FText;
};

}  // namespace

bool IsRtf(QByteArrayView bytes) {
    return bytes.startsWith("{\\rtf");
}

UnicodeString RtfToPlainText(QByteArrayView rtf) {
    return TReader(rtf).Read();
}
