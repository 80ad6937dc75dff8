// State registrations (inscrição estadual), checked by a validator that is loaded at run time.
//
//     InscEstadual(u"110042490114"_s, u"SP"_s)      // true
//
// The validator is libDllInscE32.so beside the program, or else in ../lib/fichario seen from there; nowhere
// else. It exports ConsisteInscricaoEstadual: number and state as texts of single bytes, 0 for a valid
// number. tools/inscest builds one; another behind the same contract takes its place.
#pragma once

#include "platform/rtl/Types.h"

// Whether `number` is a registration of the state `uf` (two letters), or "ISENTO" exactly. The validator is
// loaded at the first call, once for the life of the process. Exception "Biblioteca "DllInscE32.dll" não
// encontrada." when it or its function is missing, also for "ISENTO"; a failed load is tried again at the
// next call. Texts end at their first zero character.
bool InscEstadual(const UnicodeString& number, const UnicodeString& uf);
