#include "demo/dados/Carga.h"

#include "demo/dados/Insercao.h"
#include "demo/dados/Municipios.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPassoDoProgresso = 1000;

std::vector<Variant> ValoresDe(const TCliente& cliente) {
    const auto flag = [](bool sim) { return sim ? u"S"_s : u"N"_s; };
    return {cliente.Nome,
            NuloSeVazio(cliente.Fantasia),
            cliente.Documento,
            cliente.InscricaoEstadual,
            cliente.UF,
            cliente.Cidade,
            cliente.Email,
            cliente.Cadastro,
            Decimal{cliente.LimiteEmCentavos, 2},
            flag(cliente.Ativo),
            flag(cliente.Excluido)};
}

}  // namespace

void CarregarMunicipios(TFDConnection& connection) {
    TInsercao estados(connection, u"UF"_s, {u"SG_UF"_s, u"NM_UF"_s});
    for (const TEstado& estado : Estados()) estados.Inserir({estado.Sigla, estado.Nome});
    TInsercao municipios(connection, u"MUNICIPIO"_s, {u"CD_MUN"_s, u"NM_MUN"_s, u"SG_UF"_s});
    for (const TMunicipio& municipio : Municipios())
        municipios.Inserir({municipio.Codigo, municipio.Nome, municipio.UF});
}

void CarregarClientes(TFDConnection& connection, int quantos, TGeradorDeClientes& gerador,
                      const TProgresso& progresso) {
    TInsercao insercao(connection, u"CLIENTE"_s,
                       {u"NM_CLI"_s, u"FANTASIA"_s, u"NR_CPF"_s, u"NR_INS_EST"_s, u"NM_EST"_s, u"CIDADE"_s,
                        u"E_MAIL"_s, u"DT_CAD"_s, u"VL_LIMITE"_s, u"TF_ATIVO"_s, u"TF_DEL"_s});
    for (int feitos = 1; feitos <= quantos; ++feitos) {
        insercao.Inserir(ValoresDe(gerador.Proximo()));
        if (progresso && (feitos % kPassoDoProgresso == 0 || feitos == quantos)) progresso(feitos, quantos);
    }
}
