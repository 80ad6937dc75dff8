#include "tools/gridreport/Tabela.h"

#include <cmath>

#include "platform/rtl/NumberMask.h"

namespace {

constexpr int kCasasDoFloat = 2;
constexpr long double kMaiorExata = 9.2e18L;

}  // namespace

TTabela::TTabela(const TRelatorio& relatorio, const TAndamento& andamento)
    : FRelatorio(relatorio), FSomas(relatorio.Colunas.size(), 0) {
    FFins.reserve(size_t(relatorio.Linhas) * relatorio.Colunas.size());
    relatorio.ParaCadaLinha(
        [this](const std::vector<Variant>& valores) {
            for (size_t i = 0; i < valores.size(); ++i) {
                FTextos += TextoDaCelula(FRelatorio.Colunas[i], valores[i]);
                FFins.push_back(uint32_t(FTextos.size()));
                Somar(int(i), valores[i]);
            }
            ++FLinhas;
        },
        andamento);
}

void TTabela::Somar(int coluna, const Variant& valor) {
    const TColunaRelatorio& column = FRelatorio.Colunas[size_t(coluna)];
    if (!column.TemTotal() || !valor.IsNumber()) return;
    FSomas[size_t(coluna)] +=
        column.Tipo == ftFloat ? valor.ToExtended() : valor.ToDecimal().Rescale(column.Casas).Unscaled;
}

QStringView TTabela::Celula(int64_t linha, int coluna) const {
    const size_t at = size_t(linha) * FRelatorio.Colunas.size() + size_t(coluna);
    const uint32_t begin = at == 0 ? 0 : FFins[at - 1];
    return QStringView(FTextos).mid(begin, FFins[at] - begin);
}

// Exact numbers are added up in units of their last place, which the extended type holds exactly up to 64
// bits.
std::optional<UnicodeString> TTabela::Total(int coluna) const {
    const TColunaRelatorio& column = FRelatorio.Colunas[size_t(coluna)];
    if (!column.TemTotal()) return std::nullopt;
    const bool exact = column.Tipo != ftFloat;
    const UnicodeString format =
        column.Formato.isEmpty() ? FormatoDeCasas(exact ? column.Casas : kCasasDoFloat) : column.Formato;
    const long double sum = FSomas[size_t(coluna)];
    if (!exact) return FormatFloat(format, sum);
    if (std::abs(sum) < kMaiorExata) return FormatDecimal(format, {int64_t(sum), column.Casas});
    return FormatFloat(format, sum / PowerOfTen(column.Casas));
}

bool TTabela::TemTotais() const {
    for (const TColunaRelatorio& column : FRelatorio.Colunas) {
        if (column.TemTotal()) return true;
    }
    return false;
}
