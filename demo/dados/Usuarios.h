// The program's users: who they are and what they may do.
//
//     if (const auto usuario = Entrar(connection, u"Vendedor"_s, senha))
//         clientes.SetRights(usuario->Em(u"CLIENTES"_s));
#pragma once

#include <optional>
#include <set>

#include "platform/rtl/Types.h"

class TFDCustomConnection;

struct TUsuario {
    UnicodeString Nome;
    UnicodeString Direitos;  // "*": everything; else "MODULE.right" as often as needed, separated by ';'

    bool PodeTudo() const { return Direitos == u"*"; }
    // The rights in a module: "New", "Edit", "Delete", and those of its own.
    std::set<UnicodeString> Em(const UnicodeString& modulo) const;
};

// The users' names, in order. Raises EFDError.
TStringArray NomesDosUsuarios(TFDCustomConnection& connection);

// The user of that name; nothing when there is none or the password is another. Raises EFDError.
std::optional<TUsuario> Entrar(TFDCustomConnection& connection, const UnicodeString& nome,
                               const UnicodeString& senha);
