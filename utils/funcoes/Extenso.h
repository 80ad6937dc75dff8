// Amounts in words, for receipts and promissory notes.
//
//     FloatToExt(1121.05)     // "Um Mil, Cento e Vinte e Um Reais e Cinco Centavos."
//
// Spellings and blanks are those that printed forms have had for years, and are kept: "Tres" without its
// accent, and two blanks in "Dois Mil,  e Cinco Reais.".
#pragma once

#include "platform/rtl/Types.h"

// The amount, rounded to centavos, in reais and centavos. 0 gives the empty text; less than half a centavo
// gives ".". An amount below 0 or above 999999.99 shows a message box and gives the empty text.
UnicodeString FloatToExt(double value);
