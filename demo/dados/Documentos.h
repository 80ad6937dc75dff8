// Brazilian document numbers with right check digits, for sample customers.
//
//     UnicodeString cpf = CompletaCPF(u"123456789");          // "12345678909"
//     UnicodeString cnpj = CompletaCNPJ(u"112223330001");     // "11222333000181"
//     UnicodeString ie = SorteiaInscricao(u"SP", sorteio);    // "110042490114", or "ISENTO"
#pragma once

#include "demo/dados/Sorteio.h"
#include "platform/rtl/Types.h"

// The CPF (11 digits) that begins with the nine digits `base`. Both check digits weigh the digits before them
// with 2, 3, 4, ... from the right, modulo 11 (Receita Federal).
UnicodeString CompletaCPF(const UnicodeString& base);

// The CNPJ (14 digits) that begins with the twelve digits `base`. The weights run 2 to 9 from the right and
// begin again, modulo 11 (Receita Federal).
UnicodeString CompletaCNPJ(const UnicodeString& base);

// A state registration drawn for the state `uf`, digits only, valid by that state's published rule; "ISENTO"
// for the states whose rule takes more than weighted sums (AP, BA, MG, RO, RR) and for unknown abbreviations.
UnicodeString SorteiaInscricao(const UnicodeString& uf, TSorteio& sorteio);
