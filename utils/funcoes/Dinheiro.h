// Money: rounding, cutting, and the commercial percentages (interest, discount, mark-up, instalments).
//
//     Arredonda(price, 2)                              // 2.675 gives 2.68, -2.675 gives -2.68
//     CalcPrecoVenda(cost, taxes, costs, profit)       // the price that leaves that profit
//     Arredonda(CalcParcelas(rate, value, 12), 2)
//
// A value is scaled by 10^decimals and passed through its text of 15 significant digits, which takes away the
// noise of the binary representation (2.675 * 100 is 267.49999999999997 and counts as 267.5); what lies
// beyond the fifteenth digit is lost. Intermediates have the 80 bits of `long double`; a Currency result is
// rounded once, to 1/10000, ties to even. A negative count of decimals rounds to tens, hundreds and so on.
//
// EConvertError for a result that a Currency cannot hold. Infinities and NaN come back as they are.
#pragma once

#include "platform/rtl/Currency.h"

// Rounded to `decimals` places, halves away from zero. More than 4 leave a Currency as it is.
Currency Arredonda(Currency value, int decimals);
double ArredondaDouble(double value, int decimals);

// Cut to `decimals` places, toward zero.
Currency Trunca(Currency value, int decimals);
double TruncaDouble(double value, int decimals);

// Rounded when `round` is true, else cut.
Currency ArredondaOuTrunca(Currency value, int decimals, bool round);
double ArredondaOuTruncaDouble(double value, int decimals, bool round);

// Whether the number has a fractional part.
bool IsDecimal(double value);

// ---- percentages: 10 means 10 % ----

// value × (1 + rate/100): with interest; a negative rate is a discount in CalcDescAcresc.
Currency CalcJuros(Currency value, Currency rate);
Currency CalcDescAcresc(Currency value, Currency rate);

// value × (1 − rate/100).
Currency CalcDesconto(Currency value, Currency rate);

// The amount before the interest was added: value ÷ (1 + rate/100). EZeroDivide for −100.
Currency CalcValorBaseJuros(Currency value, Currency rate);

// The amount before the discount was taken: value ÷ (1 − rate/100). EZeroDivide for 100.
Currency CalcBaseDesconto(Currency value, Currency rate);

// The sale price: cost ÷ (1 − (p1 + p2 + p3)/100); 0 when the percentages add up to exactly 100.
Currency CalcPrecoVenda(Currency cost, Currency p1, Currency p2, Currency p3);

// The real profit in percent: 100 − p1 − p2 − 100 × cost ÷ price; 0 when the price is 0.
Currency CalcLucroReal(Currency cost, Currency p1, Currency p2, Currency price);

// The constant instalment (price table): value × i ÷ (1 − (1 + i)^(−count)), with i the rate rounded to two
// decimals of a percent, ties to even. A rate of 0 or less, or one that rounds to 0, divides the value
// evenly. A count of 0 is 1; it may be fractional.
Currency CalcParcelas(Currency rate, Currency value, Currency count);
