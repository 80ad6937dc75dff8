// The program's trail: one line for each message in a file for each day, Logs/2024/03/07.log beside the
// program.
//
//     Log(u"Conexão restabelecida."_s);      // "07/03/2024 14:05:09: Conexão restabelecida."
//
// Several threads and several programs may log at once: a line is never mixed with another one.
#pragma once

#include "platform/rtl/Types.h"

// Appends "dd/MM/yyyy hh:mm:ss: " and the message, ended by CR LF, in the system code page (characters that
// it lacks become "?"). Folders and file are made when missing. EInOutError with the cause when the whole
// line cannot be written; what was written of it is taken back.
void Log(const UnicodeString& message);

// The file that Log writes to now.
UnicodeString LogFileName();
