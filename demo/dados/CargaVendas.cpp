#include "demo/dados/CargaVendas.h"

#include <algorithm>

#include "demo/dados/Catalogo.h"
#include "demo/dados/Documentos.h"
#include "demo/dados/Insercao.h"
#include "demo/dados/Nomes.h"
#include "demo/dados/PedidoRegras.h"
#include "platform/data/Connection.h"
#include "platform/rtl/DateTime.h"
#include "utils/MD5.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kVendedores = 12;
constexpr int kMaisItens = 6;
constexpr int kDias = 360;

void CarregarVendedores(TFDConnection& connection, TSorteio& sorteio) {
    TInsercao insercao(connection, u"VENDEDOR"_s, {u"NM_VEN"_s, u"NR_CPF"_s, u"DT_ADM"_s, u"PR_COMISSAO"_s});
    for (int i = 0; i < kVendedores; ++i) {
        const UnicodeString nome = sorteio.Um(Prenomes()) + u' ' + sorteio.Um(Sobrenomes());
        insercao.Inserir({nome, CompletaCPF(sorteio.Digitos(9)),
                          TDateTime(EncodeDate(2025, 1, 1).Value - sorteio.Ate(4000)),
                          Decimal{50 * (2 + sorteio.Ate(9)), 2}});
    }
}

void CarregarProdutos(TFDConnection& connection) {
    TInsercao insercao(
        connection, u"PRODUTO"_s,
        {u"NM_PRO"_s, u"REFERENCIA"_s, u"UNIDADE"_s, u"VL_VENDA"_s, u"QT_ESTOQUE"_s, u"PESO"_s});
    for (const TProduto& produto : Catalogo()) {
        insercao.Inserir({produto.Nome, produto.Referencia, produto.Unidade,
                          Decimal{produto.PrecoEmCentavos, 2}, Decimal{produto.EstoqueEmMilesimos, 3},
                          produto.Peso});
    }
}

// Orders are loaded with their keys, so that their items can name them; the generator follows.
class TPedidos {
  public:
    TPedidos(TFDConnection& connection, TSorteio& sorteio) : FConnection(connection), FSorteio(sorteio) {}

    void Carregar(int quantos, int clientes) {
        for (int pedido = 1; pedido <= quantos; ++pedido) {
            const std::vector<TItem> itens = Sortear();
            FPedidos.Inserir({pedido, TDateTime(EncodeDate(2025, 12, 31).Value - FSorteio.Ate(kDias)),
                              1 + FSorteio.Ate(clientes), 1 + FSorteio.Ate(kVendedores), Total(itens)});
            Inserir(pedido, itens);
        }
        FConnection.ExecSQL(u"ALTER SEQUENCE GEN_PEDIDO RESTART WITH %1"_s.arg(quantos));
    }

  private:
    struct TItem {
        int Produto;
        Decimal Quantidade, Preco, Valor;
    };

    std::vector<TItem> Sortear() {
        std::vector<TItem> itens(static_cast<size_t>(1 + FSorteio.Ate(kMaisItens)));
        for (TItem& item : itens) {
            item.Produto = FSorteio.Ate(static_cast<int>(Catalogo().size()));
            item.Quantidade = {1000 * (1 + FSorteio.Ate(20)), 3};
            item.Preco = {Catalogo()[static_cast<size_t>(item.Produto)].PrecoEmCentavos, 2};
            item.Valor = *ValorDoItem(item.Quantidade, item.Preco);
        }
        return itens;
    }
    static Decimal Total(const std::vector<TItem>& itens) {
        Decimal total{0, 2};
        for (const TItem& item : itens) total.Unscaled += item.Valor.Unscaled;
        return total;
    }
    void Inserir(int pedido, const std::vector<TItem>& itens) {
        int numero = 0;
        for (const TItem& item : itens)
            FItens.Inserir({pedido, ++numero, 1 + item.Produto, item.Quantidade, item.Preco, item.Valor});
    }

    TFDConnection& FConnection;
    TSorteio& FSorteio;
    TInsercao FPedidos{
        FConnection, u"PEDIDO"_s, {u"CD_PED"_s, u"DT_PED"_s, u"CD_CLI"_s, u"CD_VEN"_s, u"VL_TOTAL"_s}};
    TInsercao FItens{FConnection,
                     u"ITEM_PEDIDO"_s,
                     {u"CD_PED"_s, u"NR_ITEM"_s, u"CD_PRO"_s, u"QT_ITEM"_s, u"VL_UNIT"_s, u"VL_ITEM"_s}};
};

void CarregarUsuarios(TFDConnection& connection) {
    const UnicodeString vazia = UnicodeString::fromLatin1(MD5DigestToStr(MD5String({})));
    TInsercao insercao(connection, u"USUARIO"_s, {u"NM_USU"_s, u"SENHA"_s, u"DIREITOS"_s});
    insercao.Inserir({u"Gerente"_s, vazia, u"*"_s});
    insercao.Inserir({u"Vendedor"_s, vazia, u"CLIENTES.New;CLIENTES.Edit;PEDIDOS.New;PEDIDOS.Edit"_s});
    insercao.Inserir({u"Consulta"_s, vazia, Variant::Null()});
}

}  // namespace

void CarregarVendas(TFDConnection& connection) {
    TSorteio sorteio(20250101);
    CarregarVendedores(connection, sorteio);
    CarregarProdutos(connection);
    const int clientes = connection.ExecSQLScalar(u"SELECT COUNT(*) FROM CLIENTE"_s).ToInt();
    TPedidos(connection, sorteio).Carregar(std::min(clientes / 10, kMaisPedidos), clientes);
    CarregarUsuarios(connection);
}
