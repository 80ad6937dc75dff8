#include "demo/ReciboRegras.h"

#include <QRegularExpression>

#include "platform/rtl/FormatSettings.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString SemPonto(UnicodeString frase) {
    while (frase.endsWith(u'.')) frase.chop(1);
    return frase;
}

}  // namespace

std::optional<Currency> LeValor(const UnicodeString& texto) {
    static const QRegularExpression kValor(u"^(\\d{1,12}|\\d{1,3}(\\.\\d{3}){1,3})(,\\d{0,2})?$"_s);
    UnicodeString digitos = texto.trimmed();
    if (!kValor.match(digitos).hasMatch()) return {};
    digitos.remove(u'.');
    if (digitos.endsWith(u',')) digitos.chop(1);
    return StrToCurr(digitos);
}

UnicodeString RecusaDoValor(const UnicodeString& texto) {
    if (texto.trimmed().isEmpty())
        return u"Entre com um valor para o campo \"Valor (R$)\" antes de prosseguir."_s;
    const auto valor = LeValor(texto);
    if (!valor) return u"Valor inválido. Digite, por exemplo, 1.234,56."_s;
    if (*valor < kMenorValor || *valor > kMaiorValor)
        return u"O recibo é escrito por extenso: o valor vai de R$ %1 a R$ %2."_s.arg(
            ValorEmAlgarismos(kMenorValor), ValorEmAlgarismos(kMaiorValor));
    return {};
}

UnicodeString ValorEmAlgarismos(Currency valor) {
    return FormatCurr(u"#,##0.00", valor);
}

UnicodeString ValorPorExtenso(Currency valor) {
    return SemPonto(FloatToExt(valor.ToDouble()));
}

UnicodeString TextoDoRecibo(const TRecibo& recibo) {
    return u"Recebi(emos) de "_s + recibo.Pagador + u" a importância de R$\u00A0"_s +
           ValorEmAlgarismos(recibo.Valor) + u" ("_s + ValorPorExtenso(recibo.Valor) + u"), referente a "_s +
           SemPonto(recibo.Referente) + u", de que dou(damos) plena quitação."_s;
}

UnicodeString CidadeEData(const TRecibo& recibo) {
    const TDateParts data = DecodeDate(recibo.Data);
    return recibo.Cidade + u", %1 de %2 de %3"_s.arg(data.Day)
                               .arg(GetMonthName(uint16_t(data.Month)).toLower())
                               .arg(data.Year);
}
