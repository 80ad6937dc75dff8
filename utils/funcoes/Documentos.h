// Brazilian taxpayer numbers: check digits and display masks of CPF (a person, 11 digits) and CNPJ (a
// company, 14 digits).
//
//     CPF(u"52998224725"_s)              // true
//     CNPJ(u"11222333000181"_s)          // true
//     FormatCPF(u"52998224725"_s)        // "529.982.247-25"
//
// All functions take the bare digits, without dots, dashes and slashes.
// Source of the rule: modulo-11 check digits of the Receita Federal (the CPF and CNPJ registers).
#pragma once

#include "platform/rtl/Types.h"

// True when the last two characters are the modulo-11 check digits of those before them. Weights run from 2
// at the right up to `maxWeight` (2 to 255) and start again at 2. Raises EConvertError for a character that
// is no digit, as far as it is reached; a text shorter than two characters is never right.
bool Mod11(const UnicodeString& digits, unsigned char maxWeight);

// True when the text is not empty and all its characters are the same.
bool SameAll(const UnicodeString& text);

// Whether `digits` is a valid CPF: 11 digits, not all equal, both check digits right. Any other length is
// false. Raises EConvertError for a non-digit among 11 characters.
bool CPF(const UnicodeString& digits);

// Whether `digits` is a valid CNPJ: 14 digits, not all equal, both check digits right. Any other length is
// false. Raises EConvertError for a non-digit among 14 characters.
bool CNPJ(const UnicodeString& digits);

// The number with the mask of its length: 11 characters as a CPF, 14 as a CNPJ, any other unchanged.
UnicodeString FormatCPF(const UnicodeString& digits);

// A telephone number: "(11)93333-4444" for exactly 11 characters, else "(11)3333-4444".
UnicodeString FormatTelefone(const UnicodeString& digits);
