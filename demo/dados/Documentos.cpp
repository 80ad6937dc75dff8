#include "demo/dados/Documentos.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// One stretch of a number: free digits (`#` is drawn, others stand as they are), then a check digit over all
// digits so far, weighed with hexadecimal digits from the left.
struct TTrecho {
    const char* livres;
    const char* pesos;
};

struct TRegra {
    const char* uf;
    std::array<TTrecho, 2> trechos;
};

constexpr const char* kNoveADois = "98765432";

// São Paulo takes the remainder itself; all others here take its complement to 11.
constexpr TRegra kRegras[] = {
    {"AC", {{{"01#########", "43298765432"}, {"", "543298765432"}}}},
    {"AL", {{{"240#####", kNoveADois}}}},
    {"AM", {{{"04######", kNoveADois}}}},
    {"CE", {{{"06######", kNoveADois}}}},
    {"DF", {{{"07######001", "43298765432"}, {"", "543298765432"}}}},
    {"ES", {{{"08######", kNoveADois}}}},
    {"GO", {{{"102#####", kNoveADois}}}},
    {"MA", {{{"12######", kNoveADois}}}},
    {"MS", {{{"28######", kNoveADois}}}},
    {"MT", {{{"0013######", "3298765432"}}}},
    {"PA", {{{"15######", kNoveADois}}}},
    {"PB", {{{"16######", kNoveADois}}}},
    {"PE", {{{"0######", "8765432"}, {"", kNoveADois}}}},
    {"PI", {{{"19######", kNoveADois}}}},
    {"PR", {{{"90######", "32765432"}, {"", "432765432"}}}},
    {"RJ", {{{"7######", "2765432"}}}},
    {"RN", {{{"20######", kNoveADois}}}},
    {"RS", {{{"096######", "298765432"}}}},
    {"SC", {{{"25######", kNoveADois}}}},
    {"SE", {{{"27######", kNoveADois}}}},
    {"SP", {{{"1#######", "1345678A"}, {"11", "32A98765432"}}}},
    {"TO", {{{"29######", kNoveADois}}}},
};

int Peso(char hexadecimal) {
    return hexadecimal <= '9' ? hexadecimal - '0' : hexadecimal - 'A' + 10;
}

int Resto(const UnicodeString& numero, const char* pesos) {
    int soma = 0;
    for (int i = 0; i < numero.size(); ++i) soma += numero[i].digitValue() * Peso(pesos[i]);
    return soma % 11;
}

QChar Digito(int valor) {
    return QChar(u'0' + valor);
}

QChar Complemento(const UnicodeString& numero, const char* pesos) {
    const int resto = Resto(numero, pesos);
    return Digito(resto < 2 ? 0 : 11 - resto);
}

UnicodeString Sorteados(const char* livres, TSorteio& sorteio) {
    UnicodeString digitos;
    for (; *livres; ++livres)
        digitos += *livres == '#' ? Digito(sorteio.Ate(10)) : QChar::fromLatin1(*livres);
    return digitos;
}

UnicodeString Inscricao(const TRegra& regra, TSorteio& sorteio) {
    const bool paulista = QLatin1StringView(regra.uf) == "SP"_L1;
    UnicodeString numero;
    for (const TTrecho& trecho : regra.trechos) {
        if (!trecho.pesos) break;
        numero += Sorteados(trecho.livres, sorteio);
        numero += paulista ? Digito(Resto(numero, trecho.pesos) % 10) : Complemento(numero, trecho.pesos);
    }
    return numero;
}

UnicodeString ComDoisDigitos(UnicodeString numero, const char* primeiros, const char* segundos) {
    numero += Complemento(numero, primeiros);
    numero += Complemento(numero, segundos);
    return numero;
}

}  // namespace

UnicodeString CompletaCPF(const UnicodeString& base) {
    return ComDoisDigitos(base, "A98765432", "BA98765432");
}

UnicodeString CompletaCNPJ(const UnicodeString& base) {
    return ComDoisDigitos(base, "543298765432", "6543298765432");
}

UnicodeString SorteiaInscricao(const UnicodeString& uf, TSorteio& sorteio) {
    for (const TRegra& regra : kRegras) {
        if (uf == QLatin1StringView(regra.uf)) return Inscricao(regra, sorteio);
    }
    return u"ISENTO"_s;
}
