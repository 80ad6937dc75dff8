#include "demo/dados/Catalogo.h"

#include <algorithm>
#include <iterator>

#include "demo/dados/Sorteio.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct TArtigo {
    const char16_t* Nome;
    const char16_t* Unidade;
    int Centavos;
    double Peso;
};

constexpr TArtigo kArtigos[] = {
    {u"Abraçadeira de aço 3/4\"", u"UN", 145, 0.02},
    {u"Adesivo para tubo de PVC 175 g", u"UN", 1690, 0.19},
    {u"Alicate universal 8\"", u"UN", 4990, 0.31},
    {u"Arame recozido 1,24 mm", u"KG", 1890, 1},
    {u"Areia média lavada", u"M3", 13500, 1500},
    {u"Argamassa colante AC-II 20 kg", u"SC", 2790, 20},
    {u"Assento sanitário oval", u"UN", 6490, 1.4},
    {u"Bacia sanitária com caixa acoplada", u"UN", 45900, 27},
    {u"Bloco de concreto 14 x 19 x 39 cm", u"UN", 489, 10.5},
    {u"Broca de vídea 8 mm", u"UN", 1290, 0.05},
    {u"Cabo flexível 2,5 mm²", u"M", 239, 0.03},
    {u"Cadeado de latão 30 mm", u"UN", 2790, 0.12},
    {u"Caixa d'água de polietileno 500 L", u"UN", 31900, 9.8},
    {u"Caixa de luz 4 x 2\"", u"UN", 199, 0.05},
    {u"Cal hidratada CH-III 20 kg", u"SC", 1590, 20},
    {u"Câmara de ar para carrinho de mão", u"UN", 2290, 0.4},
    {u"Carrinho de mão 60 L", u"UN", 21900, 12.5},
    {u"Chave de fenda 1/4 x 6\"", u"UN", 1490, 0.11},
    {u"Chuveiro elétrico 5.500 W", u"UN", 9990, 0.6},
    {u"Cimento CP II 50 kg", u"SC", 3890, 50},
    {u"Cola branca 1 kg", u"UN", 2490, 1.05},
    {u"Disjuntor monopolar 20 A", u"UN", 1190, 0.1},
    {u"Dobradiça de aço 3\"", u"UN", 690, 0.08},
    {u"Eletroduto corrugado 25 mm", u"M", 259, 0.05},
    {u"Enxada larga com cabo", u"UN", 5490, 1.6},
    {u"Escada de alumínio 6 degraus", u"UN", 18900, 4.2},
    {u"Fechadura externa com maçaneta", u"UN", 8990, 0.9},
    {u"Fio de nylon para roçadeira", u"M", 99, 0.01},
    {u"Fita isolante 19 mm x 20 m", u"RL", 990, 0.1},
    {u"Interruptor simples com placa", u"UN", 1090, 0.07},
    {u"Joelho de PVC 90° 25 mm", u"UN", 99, 0.02},
    {u"Lâmpada de LED 9 W", u"UN", 890, 0.04},
    {u"Lixa d'água grão 220", u"FL", 189, 0.01},
    {u"Lona plástica preta 4 m", u"M", 690, 0.6},
    {u"Mangueira trançada 1/2\"", u"M", 459, 0.15},
    {u"Martelo de unha 25 mm", u"UN", 3990, 0.65},
    {u"Massa corrida PVA 25 kg", u"LT", 6990, 25},
    {u"Parafuso sextavado 1/4 x 2\"", u"CX", 4590, 1.8},
    {u"Pá de bico com cabo", u"UN", 4690, 1.7},
    {u"Piso cerâmico 45 x 45 cm", u"M2", 2990, 16},
    {u"Prego 17 x 21", u"KG", 1990, 1},
    {u"Registro de gaveta 3/4\"", u"UN", 4290, 0.35},
    {u"Rejunte cinza 1 kg", u"UN", 790, 1},
    {u"Rolo de lã 23 cm", u"UN", 1990, 0.15},
    {u"Serra de aço rígida 12\"", u"UN", 790, 0.02},
    {u"Telha de fibrocimento 2,44 x 1,10 m", u"UN", 7990, 26},
    {u"Tijolo cerâmico 9 furos", u"ML", 89000, 2400},
    {u"Tinta acrílica branca 18 L", u"LT", 28900, 24},
    {u"Tomada 10 A com placa", u"UN", 1190, 0.07},
    {u"Torneira de jardim 1/2\"", u"UN", 2490, 0.2},
    {u"Trena de aço 5 m", u"UN", 2190, 0.22},
    {u"Tubo de PVC soldável 25 mm", u"M", 489, 0.17},
};

constexpr const char16_t* kFabricantes[] = {u"Aroeira", u"Jatobá", u"Sabiá", u"Serra Azul", u"Três Irmãos"};

constexpr const char16_t* kFracionados[] = {u"KG", u"M", u"M2", u"M3"};

bool Fracionado(const UnicodeString& unidade) {
    return std::any_of(std::begin(kFracionados), std::end(kFracionados),
                       [&](const char16_t* outra) { return unidade == outra; });
}

// Makers ask prices of up to a fifth more than the cheapest, in whole five cents.
int64_t Preco(int centavos, TSorteio& sorteio) {
    return centavos + centavos * sorteio.Ate(21) / 100 / 5 * 5;
}

std::vector<TProduto> Montar() {
    std::vector<TProduto> produtos;
    TSorteio sorteio(1959);
    for (const TArtigo& artigo : kArtigos) {
        for (const char16_t* fabricante : kFabricantes) {
            const UnicodeString nome = UnicodeString::fromUtf16(artigo.Nome);
            const UnicodeString unidade = UnicodeString::fromUtf16(artigo.Unidade);
            const int estoque = sorteio.Ate(Fracionado(unidade) ? 800000 : 800);
            produtos.push_back({nome + u' ' + UnicodeString::fromUtf16(fabricante),
                                u"%1-%2"_s.arg(QChar(fabricante[0])).arg(1001 + produtos.size()), unidade,
                                Preco(artigo.Centavos, sorteio),
                                Fracionado(unidade) ? estoque / 50 * 50 : estoque * 1000, artigo.Peso});
        }
    }
    return produtos;
}

}  // namespace

const std::vector<TProduto>& Catalogo() {
    static const std::vector<TProduto> produtos = Montar();
    return produtos;
}
