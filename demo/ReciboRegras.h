// A receipt: the amount as it is typed, and the words that stand on the paper.
//
//     const auto valor = LeValor(u"1.121,05"_s);                    // 1121.05
//     ValorPorExtenso(*valor)                                      // "Um Mil, Cento e Vinte e Um Reais e …"
//     TextoDoRecibo({.Pagador = u"Ana"_s, .Valor = *valor, …})     // "Recebi(emos) de Ana a importância …"
#pragma once

#include <optional>

#include "platform/rtl/Currency.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Types.h"

struct TRecibo {
    UnicodeString Pagador;
    Currency Valor;  // 0,01 to 999.999,99
    UnicodeString Referente;
    UnicodeString Cidade;
    TDateTime Data;
};

// The amounts that can be written in words.
inline constexpr Currency kMenorValor = Currency::FromRaw(Currency::kUnit / 100);
inline constexpr Currency kMaiorValor = Currency::FromRaw(999'999'99 * (Currency::kUnit / 100));

// The amount in reais, with up to two decimals, with or without thousand separators. Nothing for any other
// text.
std::optional<Currency> LeValor(const UnicodeString& texto);

// Why the typed amount cannot stand on a receipt; empty when it can.
UnicodeString RecusaDoValor(const UnicodeString& texto);

// "1.121,05".
UnicodeString ValorEmAlgarismos(Currency valor);

// The amount in words, without a point at the end. REQUIRES: kMenorValor <= valor <= kMaiorValor.
UnicodeString ValorPorExtenso(Currency valor);

// The sentence of the receipt, and the place and date under it: "Londrina, 7 de março de 2024".
UnicodeString TextoDoRecibo(const TRecibo& recibo);
UnicodeString CidadeEData(const TRecibo& recibo);
