// The words that sample customers' names are made of.
//
//     UnicodeString nome = sorteio.Um(Prenomes()) + u' ' + sorteio.Um(Sobrenomes());
#pragma once

#include "platform/rtl/Types.h"

// First names of women and men, with and without accents.
const TStringArray& Prenomes();

// Family names.
const TStringArray& Sobrenomes();

// What a company's name begins with: "Comercial", "Mercado", ...
const TStringArray& Negocios();

// What a company trades in: "Materiais de Construção", ...
const TStringArray& Ramos();
