#include "demo/dados/Gerador.h"

#include "demo/dados/Documentos.h"
#include "demo/dados/Municipios.h"
#include "demo/dados/Nomes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kDiasEmQuinzeAnos = 5478;
constexpr int kMaiorNome = 60;
constexpr int kMaiorFantasia = 40;

// "José D'Ávila" as an address: "jose.davila".
UnicodeString Endereco(const UnicodeString& nome) {
    UnicodeString endereco;
    for (const QChar c : nome.normalized(QString::NormalizationForm_D)) {
        if (c.isLetter()) endereco += c.toLower();
        if (c == u' ') endereco += u'.';
    }
    return endereco;
}

// A middle family name; some come with their particle.
UnicodeString DoMeio(TSorteio& sorteio) {
    static const TStringArray comParticula = {u"da Silva"_s,    u"dos Santos"_s, u"de Souza"_s,
                                              u"de Oliveira"_s, u"da Costa"_s,   u"do Nascimento"_s,
                                              u"de Jesus"_s,    u"da Cruz"_s,    u"de Almeida"_s};
    return sorteio.Chance(35) ? sorteio.Um(comParticula) : sorteio.Um(Sobrenomes());
}

// Most limits are round, as people grant them; the others carry cents.
int64_t Limite(TSorteio& sorteio) {
    if (sorteio.Chance(10)) return 0;
    if (sorteio.Chance(60)) return 50000LL * (1 + sorteio.Ate(100));
    return sorteio.Ate(9999999) + 1;
}

}  // namespace

TGeradorDeClientes::TGeradorDeClientes(uint32_t semente)
    : TGeradorDeClientes(semente, EncodeDate(2025, 12, 31)) {}

TGeradorDeClientes::TGeradorDeClientes(uint32_t semente, TDateTime ultimoDia)
    : FSorteio(semente), FUltimoDia(ultimoDia) {}

TCliente TGeradorDeClientes::Proximo() {
    TCliente cliente;
    const TMunicipio& municipio = FSorteio.Um(Municipios());
    cliente.Cidade = municipio.Nome;
    cliente.UF = municipio.UF;
    if (FSorteio.Chance(70)) {
        Pessoa(cliente);
    } else {
        Empresa(cliente);
    }
    cliente.Cadastro = TDateTime(FUltimoDia.Value - FSorteio.Ate(kDiasEmQuinzeAnos));
    cliente.LimiteEmCentavos = Limite(FSorteio);
    cliente.Ativo = !FSorteio.Chance(10);
    cliente.Excluido = FSorteio.Chance(3);
    return cliente;
}

void TGeradorDeClientes::Pessoa(TCliente& cliente) {
    const UnicodeString prenome = FSorteio.Um(Prenomes());
    const UnicodeString sobrenome = FSorteio.Um(Sobrenomes());
    const UnicodeString doMeio = FSorteio.Chance(60) ? DoMeio(FSorteio) + u' ' : u""_s;
    cliente.Nome = (prenome + u' ' + doMeio + sobrenome).left(kMaiorNome);
    cliente.Documento = CompletaCPF(FSorteio.Digitos(9));
    cliente.InscricaoEstadual = u"ISENTO"_s;
    const UnicodeString numero = FSorteio.Chance(50) ? FSorteio.Digitos(2) : u""_s;
    cliente.Email = Endereco(prenome + u' ' + sobrenome) + numero + u"@exemplo.com.br"_s;
}

void TGeradorDeClientes::Empresa(TCliente& cliente) {
    static const TStringArray formas = {u"Ltda."_s, u"Ltda."_s, u"ME"_s, u"S/A"_s, u"EPP"_s};
    const UnicodeString sobrenome = FSorteio.Um(Sobrenomes());
    cliente.Fantasia = (FSorteio.Um(Negocios()) + u' ' + sobrenome).left(kMaiorFantasia);
    cliente.Nome =
        (cliente.Fantasia + u' ' + FSorteio.Um(Ramos()) + u' ' + FSorteio.Um(formas)).left(kMaiorNome);
    const UnicodeString filial = FSorteio.Chance(85) ? u"0001"_s : u"00"_s + FSorteio.Digitos(2);
    cliente.Documento = CompletaCNPJ(FSorteio.Digitos(8) + filial);
    cliente.InscricaoEstadual = FSorteio.Chance(15) ? u"ISENTO"_s : SorteiaInscricao(cliente.UF, FSorteio);
    cliente.Email = u"contato@"_s + Endereco(cliente.Fantasia).remove(u'.') + u".exemplo.com.br"_s;
}
