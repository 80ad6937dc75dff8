// The state-registration validator: numbers of the 27 states against one table of rules (Regras.cpp).
//
//     InscricaoValida("110.042.490.114", "SP")      // true
//
// Dots, hyphens, slashes and blanks are dropped and letters raised; what remains must be digits (in São Paulo
// a rural producer's number begins with P). Leading zeros count. "ISENTO", in any case, is valid in every
// state.
//
// Where the published rules leave a doubt, what a state ever issued is accepted:
//   AL    the third digit (kind of company) is not tested
//   DF    begins with 07 or 08
//   GO    begins with 10, 11, 15 or 20 to 29; where the remainder is 1 and the first eight digits lie between
//         10103105 and 10119997, and for 11094402, both 0 and 1 are right: two official texts contradict
//   MT    9 and 10 digits count as 11 with zeros in front
//   PE, RO, TO    the old layouts of 14, 9 and 11 digits too
//   RS    the municipality is not tested
//   all   numbers of equal digits are judged by their check digits alone
//
// Source: the check-digit rules that the states' finance departments publish, as gathered on the national
// page of state registrations (Sintegra, "Cálculo do dígito verificador"), with the states' own later norms.
#pragma once

#include <string_view>

// `uf`: two letters, any case. False for an unknown state. Never throws; any text is allowed.
bool InscricaoValida(std::string_view number, std::string_view uf) noexcept;
