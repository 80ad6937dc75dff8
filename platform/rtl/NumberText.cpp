#include "platform/rtl/NumberText.h"

#include <charconv>
#include <cmath>
#include <limits>
#include "platform/rtl/Digits.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Trim.h"

namespace {

[[noreturn]] void RaiseNotInteger(QStringView text) {
    throw EConvertError(QStringLiteral("'%1' não é um número inteiro válido.").arg(text));
}

[[noreturn]] void RaiseNotNumber(QStringView text) {
    throw EConvertError(QStringLiteral("'%1' não é um número válido.").arg(text));
}

int DigitOf(QChar c) {
    if (c >= u'0' && c <= u'9') return c.unicode() - u'0';
    const char16_t lower = c.unicode() | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 16;
}

// The digits' value, as long as it stays within `limit`.
std::optional<uint64_t> ReadDigits(QStringView digits, unsigned base, uint64_t limit) {
    uint64_t value = 0;
    for (const QChar c : digits) {
        const auto digit = static_cast<unsigned>(DigitOf(c));
        if (digit >= base || value > (limit - digit) / base) return std::nullopt;
        value = value * base + digit;
    }
    return digits.isEmpty() ? std::nullopt : std::optional(value);
}

bool TakeHexMark(QStringView& text) {
    const int length = text.startsWith(u'$') ? 1 : text.startsWith(u"0x", Qt::CaseInsensitive) ? 2 : 0;
    text = text.sliced(length);
    return length > 0;
}

template <typename T>
bool ReadInteger(QStringView text, T& value) {
    using TBits = std::make_unsigned_t<T>;
    while (text.startsWith(u' ')) text = text.sliced(1);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) text = text.sliced(1);
    const bool hex = TakeHexMark(text);
    const uint64_t limit = hex ? std::numeric_limits<TBits>::max()
                               : static_cast<uint64_t>(std::numeric_limits<T>::max()) + (negative ? 1 : 0);
    const auto bits = ReadDigits(text, hex ? 16 : 10, limit);
    if (!bits) return false;
    value = static_cast<T>(static_cast<TBits>(negative ? 0 - *bits : *bits));
    return true;
}

// The text with '.' for the decimal separator, or empty when a character has no place in a number.
QByteArray PlainNumber(QStringView text) {
    if (text.startsWith(u'+') && !text.startsWith(u"+-")) text = text.sliced(1);
    QByteArray plain;
    for (const QChar c : text) {
        if (c == FormatSettings.DecimalSeparator) {
            plain += '.';
        } else if ((c >= u'0' && c <= u'9') || c == u'-' || c == u'+' || c == u'e' || c == u'E') {
            plain += static_cast<char>(c.unicode());
        } else {
            return {};
        }
    }
    return plain;
}

UnicodeString Scientific(const fichario::TDigits& number) {
    UnicodeString text = QString::fromLatin1(number.Digits);
    if (text.size() > 1) text.insert(1, QChar(FormatSettings.DecimalSeparator));
    return text + u'E' + UnicodeString::number(number.Point - 1);
}

UnicodeString Fixed(const fichario::TDigits& number) {
    UnicodeString text = QString::fromLatin1(number.Whole());
    if (text.isEmpty()) text = u'0';
    const QByteArray fraction = number.Fraction();
    if (fraction.isEmpty()) return text;
    return text + QChar(FormatSettings.DecimalSeparator) + QString::fromLatin1(fraction);
}

}  // namespace

bool TryStrToInt(QStringView text, int& value) {
    return ReadInteger(text, value);
}

int StrToInt(QStringView text) {
    int value;
    if (!TryStrToInt(text, value)) RaiseNotInteger(text);
    return value;
}

int StrToIntDef(QStringView text, int defaultValue) {
    TryStrToInt(text, defaultValue);
    return defaultValue;
}

bool TryStrToInt64(QStringView text, int64_t& value) {
    return ReadInteger(text, value);
}

int64_t StrToInt64(QStringView text) {
    int64_t value;
    if (!TryStrToInt64(text, value)) RaiseNotInteger(text);
    return value;
}

int64_t StrToInt64Def(QStringView text, int64_t defaultValue) {
    TryStrToInt64(text, defaultValue);
    return defaultValue;
}

UnicodeString IntToStr(int64_t value) {
    return UnicodeString::number(value);
}

UnicodeString HexText(uint64_t bits, int digits) {
    return UnicodeString::number(bits, 16).toUpper().rightJustified(digits, u'0');
}

bool TryStrToExtended(QStringView text, long double& value) {
    const QByteArray plain = PlainNumber(Trim(text));
    const char* end = plain.constData() + plain.size();
    long double read = 0;
    const auto result = std::from_chars(plain.constData(), end, read);
    if (plain.isEmpty() || result.ec != std::errc() || result.ptr != end) return false;
    value = read;
    return true;
}

long double StrToExtended(QStringView text) {
    long double value;
    if (!TryStrToExtended(text, value)) RaiseNotNumber(text);
    return value;
}

bool TryStrToFloat(QStringView text, double& value) {
    long double wide;
    if (!TryStrToExtended(text, wide) || !std::isfinite(static_cast<double>(wide))) return false;
    value = static_cast<double>(wide);
    return true;
}

double StrToFloat(QStringView text) {
    double value;
    if (!TryStrToFloat(text, value)) RaiseNotNumber(text);
    return value;
}

double StrToFloatDef(QStringView text, double defaultValue) {
    TryStrToFloat(text, defaultValue);
    return defaultValue;
}

UnicodeString FloatToStr(long double value) {
    if (std::isnan(value)) return QStringLiteral("NAN");
    if (std::isinf(value)) return value < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
    const fichario::TDigits number = fichario::DigitsOf(value);
    const bool fixed = number.Point >= -4 && number.Point <= 15;
    const UnicodeString text = fixed ? Fixed(number) : Scientific(number);
    return number.Negative ? u'-' + text : text;
}

bool TryStrToCurr(QStringView text, Currency& value) {
    try {
        value = StrToCurr(text);
        return true;
    } catch (const EConvertError&) {
        return false;
    }
}

Currency StrToCurr(QStringView text) {
    if (const auto exact = Decimal::Parse(text, FormatSettings.DecimalSeparator))
        return Currency::FromDecimal(*exact);
    return Currency::FromDouble(StrToExtended(text));
}

UnicodeString CurrToStr(Currency value) {
    return value.ToDecimal().Trimmed().ToText(FormatSettings.DecimalSeparator);
}
