// The settings of the connection as a person fills them in: what each may be, and how they stand in
// Config.ini.
//
//     TDadosConexao dados = LeConexao();
//     dados.Servidor = u"servidor"_s;
//     if (const auto recusa = CriticaConexao(dados)) return Show(recusa->Mensagem);
//     const UnicodeString falha = TestaConexao(dados);
//     if (falha.isEmpty()) GravaConexao(dados);
#pragma once

#include <optional>

#include "platform/rtl/Types.h"

struct TDadosConexao {
    UnicodeString Servidor;  // a name or an address; "host/port" is also taken while Porta is empty
    UnicodeString Porta;     // 1 to 65535; empty: the server's usual one, 3050
    UnicodeString Banco;     // full name of the file on the server, or an alias
    UnicodeString Usuario;
    UnicodeString Senha;
    UnicodeString Papel;  // may be empty

    bool operator==(const TDadosConexao&) const = default;
};

// What Config.ini says, or the defaults where it says nothing.
TDadosConexao LeConexao();

// Why the settings cannot be used, and which of them is at fault.
struct TRecusaConexao {
    UnicodeString TDadosConexao::*Campo;
    UnicodeString Mensagem;
};
std::optional<TRecusaConexao> CriticaConexao(const TDadosConexao& dados);

// Connects as the program would after GravaConexao, and disconnects. Returns the empty text, or a sentence
// for the user: what is wrong with the server, the file, the user or the role. A server that does not answer
// takes ten seconds.
UnicodeString TestaConexao(const TDadosConexao& dados);

// Writes all of them to Config.ini, or none. EInOutError.
void GravaConexao(const TDadosConexao& dados);
