#include "demo/ConexaoRegras.h"

#include <algorithm>

#include "db/UDBUtils.h"
#include "platform/data/Connection.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/NumberText.h"
#include "utils/funcoes/Senhas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMaiorPorta = 65535;

// A connection for one use.
class TConexaoBreve {
  public:
    TConexaoBreve() { LoadConnection(FConnection); }
    ~TConexaoBreve() { FConnection->Free(); }
    TFDConnection* operator->() const { return FConnection; }

  private:
    TFDConnection* FConnection = new TFDConnection(nullptr);
};

bool PortaValida(const UnicodeString& porta) {
    int numero = 0;
    return std::ranges::all_of(porta, [](QChar letra) { return letra.isDigit(); }) &&
           TryStrToInt(porta, numero) && numero >= 1 && numero <= kMaiorPorta;
}

qsizetype UltimoSeparador(const UnicodeString& banco) {
    return std::max(banco.lastIndexOf(u'\\'), banco.lastIndexOf(u'/'));
}

// The file keeps folder and name apart, and they are joined by "\" when they are read.
UnicodeString BancoLido(const UnicodeString& banco) {
    const qsizetype corte = UltimoSeparador(banco);
    return banco.left(std::max<qsizetype>(corte, 0)) + u'\\' + banco.sliced(corte + 1);
}

UnicodeString BancoLegivel(UnicodeString banco) {
    if (banco.startsWith(u'/')) return banco.replace(u'\\', u'/');
    const bool apelido = banco.startsWith(u'\\') && UltimoSeparador(banco) == 0;
    return apelido ? banco.sliced(1) : banco;
}

UnicodeString ServidorComPorta(const TDadosConexao& dados) {
    return dados.Porta.isEmpty() ? dados.Servidor : dados.Servidor + u'/' + dados.Porta;
}

void SeparaPorta(TDadosConexao& dados) {
    const qsizetype corte = dados.Servidor.lastIndexOf(u'/');
    if (corte < 0 || !PortaValida(dados.Servidor.sliced(corte + 1))) return;
    dados.Porta = dados.Servidor.sliced(corte + 1);
    dados.Servidor.truncate(corte);
}

// A required text that is empty would be read back as a default that the user has not seen; a sign that the
// file's code page lacks, as another one.
UnicodeString RecusaDoTexto(const UnicodeString& texto, const UnicodeString& nome, bool obrigatorio) {
    if (obrigatorio && texto.isEmpty())
        return u"Entre com um valor para o campo \"%1\" antes de prosseguir."_s.arg(nome);
    if (!ToAnsiExact(texto))
        return u"O campo \"%1\" tem um sinal que não pode ser gravado. Use letras, algarismos e sinais do teclado."_s
            .arg(nome);
    return {};
}

std::optional<TRecusaConexao> CriticaTextos(const TDadosConexao& dados) {
    const struct {
        UnicodeString TDadosConexao::*Campo;
        UnicodeString Nome;
        bool Obrigatorio;
    } textos[] = {{&TDadosConexao::Servidor, u"Servidor"_s, true},
                  {&TDadosConexao::Banco, u"Banco de dados"_s, true},
                  {&TDadosConexao::Usuario, u"Usuário"_s, true},
                  {&TDadosConexao::Senha, u"Senha"_s, true},
                  {&TDadosConexao::Papel, u"Papel"_s, false}};
    for (const auto& texto : textos) {
        const UnicodeString recusa = RecusaDoTexto(dados.*texto.Campo, texto.Nome, texto.Obrigatorio);
        if (!recusa.isEmpty()) return TRecusaConexao{texto.Campo, recusa};
    }
    return {};
}

bool SenhaVolta(const UnicodeString& senha) {
    return FromAnsi(DecriptPass(EncriptPass(ToAnsi(senha)))) == senha;
}

// "/x.fdb" would be read back as the alias "x.fdb".
bool NaRaiz(const UnicodeString& banco) {
    return UltimoSeparador(banco) == 0;
}

}  // namespace

TDadosConexao LeConexao() {
    const TConexaoBreve conexao;
    const TStrings& params = *conexao->Params();
    TDadosConexao dados{.Servidor = params.Values(u"Server"),
                        .Porta = {},
                        .Banco = BancoLegivel(params.Values(u"Database")),
                        .Usuario = params.Values(u"User_Name"),
                        .Senha = params.Values(u"Password"),
                        .Papel = params.Values(u"RoleName")};
    SeparaPorta(dados);
    return dados;
}

std::optional<TRecusaConexao> CriticaConexao(const TDadosConexao& dados) {
    if (auto recusa = CriticaTextos(dados)) return recusa;
    if (!dados.Porta.isEmpty() && !PortaValida(dados.Porta))
        return TRecusaConexao{
            &TDadosConexao::Porta,
            u"A porta é um número de 1 a 65535. Deixe-a em branco para usar a porta 3050."_s};
    if (!dados.Porta.isEmpty() && dados.Servidor.contains(u'/'))
        return TRecusaConexao{&TDadosConexao::Servidor,
                              u"Informe a porta no nome do servidor ou no campo \"Porta\", não nos dois."_s};
    if (UltimoSeparador(dados.Banco) == dados.Banco.size() - 1 || NaRaiz(dados.Banco))
        return TRecusaConexao{&TDadosConexao::Banco,
                              u"Informe a pasta e o nome do arquivo do banco de dados, ou o seu apelido."_s};
    if (!SenhaVolta(dados.Senha))
        return TRecusaConexao{&TDadosConexao::Senha,
                              u"Esta senha não pode ser gravada: ela tem mais de 99 sinais."_s};
    return {};
}

UnicodeString TestaConexao(const TDadosConexao& dados) {
    const TConexaoBreve conexao;
    TStrings& params = *conexao->Params();
    params.SetValue(u"Server"_s, ServidorComPorta(dados));
    params.SetValue(u"Database"_s, BancoLegivel(BancoLido(dados.Banco)));
    params.SetValue(u"User_Name"_s, dados.Usuario);
    params.SetValue(u"Password"_s, dados.Senha);
    params.SetValue(u"RoleName"_s, dados.Papel);
    try {
        conexao->Open();
        conexao->Close();
        return {};
    } catch (const EDatabaseError& error) {
        return error.Message;
    }
}

void GravaConexao(const TDadosConexao& dados) {
    SaveConnection(ServidorComPorta(dados), dados.Banco, dados.Usuario, dados.Senha, dados.Papel);
}
