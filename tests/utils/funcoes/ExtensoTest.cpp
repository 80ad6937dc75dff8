#include "utils/funcoes/Extenso.h"

#include <gtest/gtest.h>
#include <limits>
#include <QStringList>

#include "tests/support/LogWatch.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const char16_t* const kBelowTwenty[] = {u"",       u"Um",        u"Dois",      u"Tres",    u"Quatro",
                                        u"Cinco",  u"Seis",      u"Sete",      u"Oito",    u"Nove",
                                        u"Dez",    u"Onze",      u"Doze",      u"Treze",   u"Quatorze",
                                        u"Quinze", u"Dezesseis", u"Dezessete", u"Dezoito", u"Dezenove"};
const char16_t* const kTens[] = {u"",          u"",         u"Vinte",   u"Trinta",  u"Quarenta",
                                 u"Cinquenta", u"Sessenta", u"Setenta", u"Oitenta", u"Noventa"};
const char16_t* const kHundreds[] = {
    u"",           u"Cento",      u"Duzentos",   u"Trezentos",  u"Quatrocentos",
    u"Quinhentos", u"Seiscentos", u"Setecentos", u"Oitocentos", u"Novecentos"};

// The words of 0 to 999, one after the other.
QString Slow(int n) {
    QStringList words;
    if (n == 100) return u"Cem"_s;
    if (n >= 100) words << QString::fromUtf16(kHundreds[n / 100]);
    n %= 100;
    if (n >= 20) {
        words << QString::fromUtf16(kTens[n / 10]);
        n %= 10;
    }
    if (n > 0) words << QString::fromUtf16(kBelowTwenty[n]);
    return words.join(u" e "_s);
}

QString Oracle(int64_t cents) {
    const int thousands = int(cents / 100'000), units = int(cents / 100 % 1000), rest = int(cents % 100);
    QString text;
    if (thousands > 0) text = Slow(thousands) + (units > 0 ? u" Mil, "_s : u" Mil Reais"_s);
    if (units > 0) {
        if (thousands > 0 && units < 10) text += u" e "_s;
        text += Slow(units) + (thousands == 0 && units == 1 ? u" Real"_s : u" Reais"_s);
    }
    if (rest == 0) return text + u"."_s;
    return text + (text.isEmpty() ? u""_s : u" e "_s) + Slow(rest) +
           (rest == 1 ? u" Centavo."_s : u" Centavos."_s);
}

TEST(Extenso, WritesEveryAmountAsTheSlowWayDoes) {
    const bool all = qEnvironmentVariableIsSet("FICHARIO_TESTES_LONGOS");
    for (int64_t cents = 1; cents <= 99'999'999; cents += all ? 1 : 997) {
        const UnicodeString text = FloatToExt(double(cents) / 100);
        ASSERT_TRUE(text == Oracle(cents)) << cents << " " << text.toStdString();
    }
}

TEST(Extenso, KeepsItsBlanksAndItsLimits) {
    const std::pair<double, const char16_t*> cases[] = {
        {2005, u"Dois Mil,  e Cinco Reais."},
        {1001, u"Um Mil,  e Um Reais."},
        {1000, u"Um Mil Reais."},
        {2000.5, u"Dois Mil Reais e Cinquenta Centavos."},
        {2500, u"Dois Mil, Quinhentos Reais."},
        {1, u"Um Real."},
        {0.01, u"Um Centavo."},
        {0, u""},
        {0.004, u"."},
        {0.995, u"Um Real."},
        {999999.99,
         u"Novecentos e Noventa e Nove Mil, Novecentos e Noventa e Nove Reais e Noventa e Nove Centavos."}};
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(FloatToExt(value), QString::fromUtf16(expected)) << value;
    for (const double value : {1000000.0, -0.01, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        SCOPED_TRACE(value);
        LogWatch::Expect(
            u"Informação: O valor está fora do intervalo permitido.O número deve ser maior ou igual a zero e menor que 999.999,99. Se não for corrigido o número não será escrito por extenso."_s);
        EXPECT_EQ(FloatToExt(value), UnicodeString());
    }
}

}  // namespace
