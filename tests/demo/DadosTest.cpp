// The sample customers, drawn without a database.
#include <gtest/gtest.h>

#include <QSet>

#include "demo/dados/Documentos.h"
#include "demo/dados/Gerador.h"
#include "demo/dados/Municipios.h"
#include "platform/rtl/CodePage.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<TCliente> Clientes(int quantos, uint32_t semente = TGeradorDeClientes::kSemente) {
    TGeradorDeClientes gerador(semente);
    std::vector<TCliente> clientes;
    for (int i = 0; i < quantos; ++i) clientes.push_back(gerador.Proximo());
    return clientes;
}

bool DocumentoValido(const UnicodeString& numero) {
    if (numero.size() == 11) return CompletaCPF(numero.left(9)) == numero;
    return numero.size() == 14 && CompletaCNPJ(numero.left(12)) == numero;
}

bool Entre(int valor, int menor, int maior) {
    return menor <= valor && valor <= maior;
}

}  // namespace

TEST(Documentos, CheckDigitsAreThePublishedOnes) {
    const std::pair<UnicodeString, UnicodeString> cases[] = {
        {CompletaCPF(u"123456789"_s), u"12345678909"_s},
        {CompletaCPF(u"111444777"_s), u"11144477735"_s},
        {CompletaCNPJ(u"112223330001"_s), u"11222333000181"_s},
        {CompletaCNPJ(u"000000000001"_s), u"00000000000191"_s},
    };
    for (const auto& [made, published] : cases) EXPECT_EQ(made, published);
}

TEST(Documentos, StateRegistrationsHaveTheirStatesLengthAndStart) {
    const struct {
        const char16_t* uf;
        int length;
        const char16_t* start;
    } cases[] = {{u"SP", 12, u"1"}, {u"PR", 10, u"90"}, {u"RJ", 8, u"7"},     {u"AC", 13, u"01"},
                 {u"RS", 10, u"0"}, {u"SC", 9, u"25"},  {u"MG", 6, u"ISENTO"}};
    TSorteio sorteio(1);
    for (const auto& c : cases) {
        const UnicodeString numero = SorteiaInscricao(UnicodeString::fromUtf16(c.uf), sorteio);
        EXPECT_EQ(numero.size(), c.length) << qPrintable(numero);
        EXPECT_TRUE(numero.startsWith(UnicodeString::fromUtf16(c.start))) << qPrintable(numero);
    }
}

TEST(Municipios, EveryStateHasTownsAndNoTownStandsTwice) {
    QSet<UnicodeString> vistos, comMunicipio;
    for (const TMunicipio& municipio : Municipios()) {
        EXPECT_FALSE(municipio.Nome.isEmpty() || municipio.Nome != municipio.Nome.trimmed());
        EXPECT_FALSE(vistos.contains(municipio.UF + municipio.Nome)) << qPrintable(municipio.Nome);
        vistos.insert(municipio.UF + municipio.Nome);
        comMunicipio.insert(municipio.UF);
    }
    const TStringArray siglas = SiglasDosEstados();
    EXPECT_EQ(siglas.size(), 27u);
    EXPECT_TRUE(std::is_sorted(siglas.begin(), siglas.end()));
    EXPECT_EQ(comMunicipio, QSet<UnicodeString>(siglas.begin(), siglas.end()));
}

TEST(Gerador, SameSeedGivesTheSameCustomers) {
    EXPECT_EQ(Clientes(500, 7), Clientes(500, 7));
    EXPECT_NE(Clientes(500, 7), Clientes(500, 8));
}

TEST(Gerador, EveryCustomerFitsTheTable) {
    QSet<UnicodeString> cidades;
    for (const TMunicipio& municipio : Municipios()) cidades.insert(municipio.Nome + municipio.UF);
    const TDateTime primeiro = EncodeDate(2011, 1, 1), ultimo = EncodeDate(2025, 12, 31);
    for (const TCliente& c : Clientes(20000)) {
        SCOPED_TRACE(qPrintable(c.Nome + u' ' + c.Documento));
        EXPECT_TRUE(Entre(c.Nome.size(), 3, 60) && c.Fantasia.size() <= 40 && Entre(c.Email.size(), 18, 60));
        EXPECT_TRUE(DocumentoValido(c.Documento));
        EXPECT_EQ(c.Fantasia.isEmpty(), c.Documento.size() == 11);
        EXPECT_TRUE(cidades.contains(c.Cidade + c.UF)) << qPrintable(c.Cidade);
        EXPECT_TRUE(primeiro <= c.Cadastro && c.Cadastro <= ultimo);
        EXPECT_TRUE(0 <= c.LimiteEmCentavos && c.LimiteEmCentavos <= 9999999);
        EXPECT_TRUE(ToAnsiExact(c.Nome + c.Fantasia + c.Cidade));
        EXPECT_TRUE(ToAnsiExact(c.Email) && c.Email == c.Email.toLower()) << qPrintable(c.Email);
        if (HasFailure()) break;
    }
}

TEST(Gerador, SharesAreThePromisedOnes) {
    int empresas = 0, inativos = 0, excluidos = 0, comCentavos = 0;
    for (const TCliente& c : Clientes(10000)) {
        empresas += c.Documento.size() == 14;
        inativos += !c.Ativo;
        excluidos += c.Excluido;
        comCentavos += c.LimiteEmCentavos % 100 != 0;
    }
    EXPECT_TRUE(Entre(empresas, 2800, 3200)) << empresas;
    EXPECT_TRUE(Entre(inativos, 900, 1100)) << inativos;
    EXPECT_TRUE(Entre(excluidos, 230, 370)) << excluidos;
    EXPECT_GT(comCentavos, 2000);
}
