// The database's name as the server gets it.
//
//     NameForServer(u"/dados\\LOJA.FDB"_s)      // "/dados/LOJA.FDB"
//     NameForServer(u"\\loja"_s)                // the alias "loja"
#pragma once
#include "platform/rtl/Types.h"

namespace fichario {

// In a name that begins with "/" every "\" becomes "/"; "\name" without another separator is an alias; any
// other name, such as a path of another system ("C:\dados\LOJA.FDB"), stays as it is.
UnicodeString NameForServer(const UnicodeString& name);

}  // namespace fichario
