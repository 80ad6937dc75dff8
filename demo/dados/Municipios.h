// The states of Brazil and their larger towns, as the sample database holds them.
//
//     for (const TMunicipio& town : Municipios()) use(town.Codigo, town.Nome, town.UF);
#pragma once

#include <vector>

#include "platform/rtl/Types.h"

struct TEstado {
    UnicodeString Sigla;  // "SP"
    UnicodeString Nome;   // "São Paulo"
};

struct TMunicipio {
    int Codigo;          // 1, 2, 3, ... in the order of the list; the key in the table MUNICIPIO
    UnicodeString Nome;  // "Ribeirão Preto"
    UnicodeString UF;    // "SP"
};

// The 27 states, by abbreviation.
const std::vector<TEstado>& Estados();

// The abbreviations of the 27 states in alphabetical order.
TStringArray SiglasDosEstados();

// The towns, grouped by state; the capital is the first of its state.
const std::vector<TMunicipio>& Municipios();
