// The settings file of the connection: Config.ini beside the program, section DATABASE.
//
//     LoadConnection(connection);
//     connection->Open();
//
// Host (localhost), Path (the program's folder), File (DATABASE.FDB), User (SYSDBA), Password (scrambled, see
// utils/funcoes/Senhas.h), RoleName. What is missing has the default in parentheses; an empty value stays
// empty, but for Host and Password.
#pragma once
#include "platform/rtl/Types.h"

class TFDConnection;

// Clears the connection's parameters and fills them from the file; does not open it. A file that is missing
// or unreadable gives the defaults; a password that is none of ours counts as the built-in one.
void LoadConnection(TFDConnection* connection);

// Writes the five values as they are, also when empty; the file takes all of them or none. `Database` is the
// full name of the database, cut at its last "\" or "/". EInOutError; EConvertError for a value with a line
// break.
void SaveConnection(const UnicodeString& Host, const UnicodeString& Database, const UnicodeString& User,
                    const UnicodeString& Password, const UnicodeString& RoleName);

// Whether the file has a section DATABASE: whether anybody has set a server up.
bool HasConnection();
