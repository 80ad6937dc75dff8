// The program's diary: who came in, what was deleted, when the server was lost. One line each in the day's
// log (utils/funcoes/Log.h).
//
//     Anotar(u"Ana entrou em BALCAO-2."_s);
#pragma once

#include "platform/rtl/Types.h"

// A diary that cannot be written keeps nobody from working.
void Anotar(const UnicodeString& fato);

// The name that was used last on this machine by this user of the system; empty at first.
UnicodeString UltimoUsuario();
void LembrarUsuario(const UnicodeString& nome);
