// Draws that are the same on every machine: std::mt19937 is laid down to the bit by the C++ standard, the
// standard distributions are not, so the mapping to a range is done here.
//
//     TSorteio sorteio(42);
//     int die = 1 + sorteio.Ate(6);
//     if (sorteio.Chance(10)) ...;   // one in ten
#pragma once

#include <cstdint>
#include <iterator>
#include <random>

#include "platform/rtl/Types.h"

class TSorteio {
  public:
    explicit TSorteio(uint32_t semente) : FFonte(semente) {}

    // A whole number from 0 to limite - 1; limite is at least 1.
    int Ate(int limite) { return static_cast<int>((static_cast<uint64_t>(FFonte()) * limite) >> 32); }

    // True in `porCento` of 100 draws.
    bool Chance(int porCento) { return Ate(100) < porCento; }

    // One element of a non-empty list.
    template <class TLista>
    const auto& Um(const TLista& lista) {
        return lista[Ate(static_cast<int>(std::size(lista)))];
    }

    // `quantos` decimal digits.
    UnicodeString Digitos(int quantos) {
        UnicodeString digitos;
        for (int i = 0; i < quantos; ++i) digitos += QChar(u'0' + Ate(10));
        return digitos;
    }

  private:
    std::mt19937 FFonte;
};
