#include "utils/funcoes/Texto.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <random>
#include <string_view>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Rtf.h"
#include "platform/rtl/Trim.h"

namespace {

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

UnicodeString Repeated(const UnicodeString& text, int width, const UnicodeString& fill) {
    return fill.repeated(std::max<qsizetype>(width - text.size(), 0));
}

// What each of the codes up to 255 becomes without its accent.
constexpr std::array<char16_t, 256> PlainLetters() {
    constexpr std::u16string_view kFrom = u"áéíóúàèìòùãõâêîôûçüÁÉÍÓÚÀÈÌÒÙÂÊÎÔÛÃÕÇÜ&";
    constexpr std::u16string_view kTo = u"aeiouaeiouaoaeioucuAEIOUAEIOUAEIOUAOCUe";
    static_assert(kFrom.size() == kTo.size());
    std::array<char16_t, 256> plain{};
    for (char16_t code = 0; code < plain.size(); ++code) plain[code] = code;
    for (size_t i = 0; i < kFrom.size(); ++i) plain[kFrom[i]] = kTo[i];
    return plain;
}

QChar WithoutAccent(QChar c) {
    static constexpr std::array<char16_t, 256> kPlain = PlainLetters();
    return c.unicode() < kPlain.size() ? kPlain[c.unicode()] : c;
}

template <class Keep>
UnicodeString Filtered(const UnicodeString& text, Keep keep) {
    UnicodeString result(text.size(), Qt::Uninitialized);
    const auto end = std::copy_if(text.cbegin(), text.cend(), result.begin(), keep);
    result.truncate(end - result.begin());
    return result;
}

}  // namespace

TStringArray ExplodeStr(const UnicodeString& text, WideChar separator) {
    TStringArray parts;
    QStringView rest = text;
    if (rest.startsWith(separator)) rest = rest.sliced(1);
    while (!rest.isEmpty()) {
        const qsizetype at = rest.indexOf(separator);
        parts.push_back((at < 0 ? rest : rest.first(at)).toString());
        rest = at < 0 ? QStringView() : rest.sliced(at + 1);
    }
    return parts;
}

UnicodeString TrocaPorParams(const UnicodeString& text, WideChar oldChar, WideChar newChar) {
    UnicodeString result = text;
    return result.replace(QChar(oldChar), QChar(newChar));
}

UnicodeString PrimeiroNome(const UnicodeString& text) {
    return text.section(u' ', 0, 0);
}

UnicodeString FixDir(const UnicodeString& path) {
    return path.endsWith(u'\\') ? path : path + u'\\';
}

UnicodeString FillCharR(const UnicodeString& text, int width, const UnicodeString& fill) {
    return text + Repeated(text, width, fill);
}

UnicodeString FillCharL(const UnicodeString& text, int width, const UnicodeString& fill) {
    return Repeated(text, width, fill) + text;
}

UnicodeString GetNumbers(const UnicodeString& text) {
    return Filtered(text, IsDigit);
}

bool Inteiros(const UnicodeString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), IsDigit);
}

bool FirstIsNumber(const UnicodeString& text) {
    return !text.isEmpty() && IsDigit(text.front());
}

int CopyNumbersUntilChar(const UnicodeString& text) {
    int value = 0;
    for (const QChar c : text) {
        if (!IsDigit(c)) break;
        value = StrToInt(IntToStr(value) + c);
    }
    return value;
}

UnicodeString RemoveAcentos(const UnicodeString& text) {
    UnicodeString result = text;
    std::transform(result.cbegin(), result.cend(), result.begin(), WithoutAccent);
    return result;
}

UnicodeString RemoveCaracters(const UnicodeString& text) {
    constexpr QStringView kForbidden = u".,-*/()[]{}!@#$%¨&=_<>;:\\|";
    return Filtered(text, [&](QChar c) { return !kForbidden.contains(c); });
}

UnicodeString RandomStr(int length) {
    constexpr QStringView kAlphabet = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    constexpr int kLastDrawn = 34;  // the published range ends one short of the alphabet
    std::mt19937_64 random(std::chrono::steady_clock::now().time_since_epoch().count());
    std::uniform_int_distribution<int> index(0, kLastDrawn);
    UnicodeString result;
    for (int i = 0; i < length; ++i) result += kAlphabet[index(random)];
    return result;
}

UnicodeString RichtToStr(const UnicodeString& richText) {
    const AnsiString bytes = ToAnsi(richText);
    return Trim(IsRtf(bytes) ? RtfToPlainText(bytes) : richText).toString();
}

UnicodeString GetBoolValue(const UnicodeString& text) {
    if (text == u"SIM") return QStringLiteral("S");
    if (text == u"NÃO") return QStringLiteral("N");
    return text;
}

UnicodeString GetBoolText(const UnicodeString& text) {
    if (text == u"S") return QStringLiteral("SIM");
    if (text == u"N") return QStringLiteral("NÃO");
    return text;
}
