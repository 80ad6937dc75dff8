#include "demo/dados/PedidoRegras.h"

namespace {

constexpr int64_t kMil = 1000;

}  // namespace

// The whole units and the thousandths apart, so that nothing is lost on the way.
std::optional<Decimal> ValorDoItem(const Decimal& quantidade, const Decimal& preco) {
    const int64_t inteiras = quantidade.Unscaled / kMil;
    const int64_t milesimos = quantidade.Unscaled % kMil;
    int64_t centavos = 0, fracao = 0;
    if (__builtin_mul_overflow(inteiras, preco.Unscaled, &centavos) ||
        __builtin_mul_overflow(milesimos, preco.Unscaled, &fracao) ||
        __builtin_add_overflow(centavos, (fracao + kMil / 2) / kMil, &centavos))
        return {};
    return Decimal{centavos, 2};
}
