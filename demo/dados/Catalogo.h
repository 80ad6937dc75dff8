// Sample products: articles of a building-supply store, each by several makers.
//
//     for (const TProduto& produto : Catalogo()) insert(produto);
#pragma once

#include <cstdint>
#include <vector>

#include "platform/rtl/Types.h"

// One row of the table PRODUTO, without its key.
struct TProduto {
    UnicodeString Nome;        // NM_PRO, at most 60 characters
    UnicodeString Referencia;  // REFERENCIA, unlike all others
    UnicodeString Unidade;     // UNIDADE: "UN", "KG", "M", ...
    int64_t PrecoEmCentavos;   // VL_VENDA x 100, above 0
    int EstoqueEmMilesimos;    // QT_ESTOQUE x 1000; a whole number of units where units are whole
    double Peso;               // PESO, kilograms
};

// The same list in every call.
const std::vector<TProduto>& Catalogo();
