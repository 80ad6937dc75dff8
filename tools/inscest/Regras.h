// The table of rules: for each state its layouts, for each layout its check digits.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

// How a check digit comes from the sum of digit × weight.
enum class Conta : uint8_t {
    M11,      // remainder of 11: 0 and 1 give 0, others 11 − remainder
    M11b,     // 11 − remainder; above 9 less 10
    MSP,      // remainder of 11, its last digit
    M9,       // remainder of 9
    M10,      // distance to the next ten
    SomaM10,  // as M10, of the sum of the products' digits
    BahiaM,   // M10 or M11 by the second digit
    Amapa,    // M11 with a constant by range
    Goias     // M11 with an exception by range
};

// One check digit. `lugar` is its place (from 1); the weights belong to the places from `de` on, those that
// are left out passed over.
struct Digito {
    int lugar;
    int de;
    std::span<const uint8_t> pesos;
    Conta conta;
    int primeiroPulado = 0;  // places left out, both included
    int ultimoPulado = 0;
};

struct Formato {
    int tamanho;               // digits
    std::string_view inicios;  // the beginnings allowed, separated by blanks; empty: any
    std::span<const Digito> digitos;
    int completar = 0;            // zeros put in front up to this many digits before all else
    std::string_view tipos = {};  // what places 3 and 4 may be, separated by blanks; empty: anything
    bool rural = false;           // behind the letter P
};

struct Estado {
    std::string_view uf;
    std::span<const Formato> formatos;
};

// All 27, by their letters.
std::span<const Estado> Estados();
