// The check of a record before it is posted: required fields first, then Brazilian document numbers, control
// by control in creation order. The first fault is told to the user, its control gets the focus, and the
// action ends.
//
//     CriticaBranco(*this, [this](TControl* control) { ShowPageOf(control); });
//
// Checked are the form's data-aware edits, combo boxes and lookup combo boxes:
//   edit, required text or date    empty after trimming; read-only edits are skipped
//   edit, required number          not above 0 (0 counts as empty); read-only edits are skipped
//   edit on NR_INS_EST or NR_IDE   a company's (NR_CPF of 14 characters), not empty and not ISENTO: must be a
//                                  registration of the state NM_EST (utils/funcoes/Inscricao.h)
//   edit on NR_CPF, not empty      11 characters must be a CPF, 14 a CNPJ, any other length is wrong
//   combo box, required            empty text
//   lookup combo box, required     empty displayed text
#pragma once

#include <functional>
#include <optional>

#include "platform/rtl/Types.h"

class TControl;
class TField;
class TForm;

// Walks the components that `form` owns. `showPage` brings the page of the faulty control to the front. The
// user sees a box "Aviso" with the reason, then EAbort is raised; a record without fault returns.
void CriticaBranco(TForm& form, const std::function<void(TControl*)>& showPage);

// What is wrong with the number in a field NR_CPF, as the user reads it; nothing for an empty or a valid
// number. A character that is no digit makes the number invalid.
std::optional<UnicodeString> CriticaCPF(const UnicodeString& number);

// What is wrong with the value of a field that the user may type into; nothing when it is not required or
// filled in.
std::optional<UnicodeString> CriticaObrigatorio(const TField& field);

// What is wrong with the state registration in a field NR_INS_EST or NR_IDE, beside the fields NR_CPF and
// NM_EST of its dataset; nothing for another field. Raises what InscEstadual raises.
std::optional<UnicodeString> CriticaInscricao(const TField& field);
