#include "utils/funcoes/Extenso.h"

#include "platform/rtl/NumberMask.h"
#include "platform/system/UserInterface.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr long double kLimit = 999999.99L;
constexpr QStringView kAnd = u" e ";

// By the digit 1 to 9.
constexpr QStringView kUnits[] = {u"",      u"Um",   u"Dois", u"Tres", u"Quatro",
                                  u"Cinco", u"Seis", u"Sete", u"Oito", u"Nove"};
constexpr QStringView kTeens[] = {u"",       u"Onze",      u"Doze",      u"Treze",   u"Quatorze",
                                  u"Quinze", u"Dezesseis", u"Dezessete", u"Dezoito", u"Dezenove"};
constexpr QStringView kTens[] = {u"",          u"Dez",      u"Vinte",   u"Trinta",  u"Quarenta",
                                 u"Cinquenta", u"Sessenta", u"Setenta", u"Oitenta", u"Noventa"};
constexpr QStringView kHundreds[] = {
    u"",           u"Cento",      u"Duzentos",   u"Trezentos",  u"Quatrocentos",
    u"Quinhentos", u"Seiscentos", u"Setecentos", u"Oitocentos", u"Novecentos"};

int Digit(QStringView text, int at) {
    return text[at].unicode() - u'0';
}

// The words of three digits; empty for "000".
UnicodeString Group(QStringView digits) {
    const int tens = Digit(digits, 1), units = Digit(digits, 2);
    const bool teen = tens == 1 && units != 0;
    const UnicodeString unit = (teen ? kTeens : kUnits)[units].toString();
    const UnicodeString ten = teen ? UnicodeString() : kTens[tens].toString();
    const bool rest = tens != 0 || units != 0;
    UnicodeString words = Digit(digits, 0) == 1 && !rest ? u"Cem"_s : kHundreds[Digit(digits, 0)].toString();
    if (!words.isEmpty() && rest) words += kAnd;
    words += ten;
    if (!ten.isEmpty() && !unit.isEmpty()) words += kAnd;
    return words + unit;
}

void Refuse() {
    UserInterface().MessageBox(
        u"O valor está fora do intervalo permitido.O número deve ser maior ou igual a zero e menor que 999.999,99. Se não for corrigido o número não será escrito por extenso."_s,
        u"Informação"_s, MB_ICONINFORMATION);
}

// `digits`: thousands, units, separator, centavos.
UnicodeString Reais(QStringView digits) {
    const UnicodeString thousands = Group(digits.first(3));
    const QStringView low = digits.sliced(3, 3);
    const UnicodeString words = Group(low);
    UnicodeString text = thousands;
    if (!thousands.isEmpty()) text += low == u"000" ? u" Mil Reais"_s : u" Mil, "_s;
    if (!thousands.isEmpty() && low.startsWith(u"00") && !words.isEmpty()) text += kAnd;
    text += words;
    if (thousands.isEmpty() && low == u"001") return text + u" Real"_s;
    return low == u"000" ? text : text + u" Reais"_s;
}

}  // namespace

UnicodeString FloatToExt(double value) {
    if (!(value >= 0 && static_cast<long double>(value) <= kLimit)) {
        Refuse();
        return {};
    }
    if (value == 0) return {};
    const UnicodeString digits = FormatFloat(u"000000.00", value);
    const QStringView cents = QStringView(digits).sliced(7, 2);
    UnicodeString text = Reais(digits);
    const UnicodeString centWords = Group(u"0"_s + cents.toString());
    if (centWords.isEmpty()) return text + u"."_s;
    if (!text.isEmpty()) text += kAnd;
    return text + centWords + (cents == u"01" ? u" Centavo."_s : u" Centavos."_s);
}
