// One look-up: from a CNPJ to the section CNPJ of Config.ini.
//
//     BuscarParticipante(u"11.222.333/0001-81"_s, *source, JoinPath(ProgramFolder(), u"Config.ini"));
#pragma once

#include "tools/partimport/Fonte.h"

// Looks the company up and writes its data, with Usado = 1, all at once. Exception with a Portuguese sentence
// for a number that is no CNPJ, a company that is not found, or what the source or the file says; then the
// file is as it was.
void BuscarParticipante(const UnicodeString& cnpj, TFonte& fonte, const UnicodeString& arquivo);
