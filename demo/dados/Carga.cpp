#include "demo/dados/Carga.h"

#include "demo/dados/Municipios.h"
#include "platform/data/Connection.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPassoDoProgresso = 1000;

// The prepared insertion of customers.
class TInsercao {
  public:
    explicit TInsercao(TFDConnection& connection) : FQuery(new TFDQuery(&connection)) {
        FQuery->SetConnection(&connection);
        FQuery->SQL()->SetText(
            u"INSERT INTO CLIENTE (NM_CLI, FANTASIA, NR_CPF, NR_INS_EST, NM_EST, CIDADE, E_MAIL, DT_CAD,"
            u" VL_LIMITE, TF_ATIVO, TF_DEL)"
            u" VALUES (:NM_CLI, :FANTASIA, :NR_CPF, :NR_INS_EST, :NM_EST, :CIDADE, :E_MAIL, :DT_CAD,"
            u" :VL_LIMITE, :TF_ATIVO, :TF_DEL)"_s);
        FQuery->Prepare();
    }
    ~TInsercao() { FQuery->Free(); }
    TInsercao(const TInsercao&) = delete;
    TInsercao& operator=(const TInsercao&) = delete;

    void Inserir(const TCliente& cliente) {
        const UnicodeString sim = u"S"_s, nao = u"N"_s;
        const Variant valores[] = {cliente.Nome,
                                   cliente.Fantasia.isEmpty() ? Variant::Null() : Variant(cliente.Fantasia),
                                   cliente.Documento,
                                   cliente.InscricaoEstadual,
                                   cliente.UF,
                                   cliente.Cidade,
                                   cliente.Email,
                                   cliente.Cadastro,
                                   Decimal{cliente.LimiteEmCentavos, 2},
                                   cliente.Ativo ? sim : nao,
                                   cliente.Excluido ? sim : nao};
        for (int i = 0; i < static_cast<int>(std::size(valores)); ++i)
            FQuery->Params()[i]->SetValue(valores[i]);
        FQuery->ExecSQL();
    }

  private:
    TFDQuery* FQuery;
};

}  // namespace

void CarregarMunicipios(TFDConnection& connection) {
    for (const TEstado& estado : Estados()) {
        connection.ExecSQL(u"INSERT INTO UF (SG_UF, NM_UF) VALUES (:SG_UF, :NM_UF)"_s,
                           {estado.Sigla, estado.Nome});
    }
    for (const TMunicipio& municipio : Municipios()) {
        connection.ExecSQL(
            u"INSERT INTO MUNICIPIO (CD_MUN, NM_MUN, SG_UF) VALUES (:CD_MUN, :NM_MUN, :SG_UF)"_s,
            {municipio.Codigo, municipio.Nome, municipio.UF});
    }
}

void CarregarClientes(TFDConnection& connection, int quantos, TGeradorDeClientes& gerador,
                      const TProgresso& progresso) {
    TInsercao insercao(connection);
    for (int feitos = 1; feitos <= quantos; ++feitos) {
        insercao.Inserir(gerador.Proximo());
        if (progresso && (feitos % kPassoDoProgresso == 0 || feitos == quantos)) progresso(feitos, quantos);
    }
}
