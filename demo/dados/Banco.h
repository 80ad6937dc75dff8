// The sample database file of the host "Comercial": where it is, whether it is there, and how it is made.
//
//     if (!BancoExiste(CaminhoDoBanco())) CriarBancoDeExemplo(CaminhoDoBanco(), kClientesDeExemplo);
#pragma once

#include "demo/dados/Carga.h"
#include "platform/rtl/Types.h"

inline constexpr int kClientesDeExemplo = 5000;

// The file of the sample database: COMERCIAL.FDB in the folder "Comercial" of the user's data. Makes no
// folder.
UnicodeString CaminhoDoBanco();

// True when there is a file at `path`. CriarBancoDeExemplo puts only complete databases there.
bool BancoExiste(const UnicodeString& path);

// Makes the sample database at `path` with `clientes` customers (0 or more), the states and the towns, and
// every missing folder above it. It is made under another name and renamed when it is complete: whatever
// stops it (a full disk, a killed process, an exception of `progresso`), nothing half-written ever stands at
// `path`, and a file that was there stays until the new one replaces it. What a killed process left is
// cleared away by the next call. Raises EFDError or EInOutError with the cause, EInOutError also while
// another process makes the same file.
void CriarBancoDeExemplo(const UnicodeString& path, int clientes, const TProgresso& progresso = nullptr);

// Gives a database that has only the customers, as earlier versions made them, the tables and rows of the
// sales. Nothing when they are there. Raises EFDError.
void CompletarBanco(TFDConnection& connection);

// Sets the connection up for the file `path` with the embedded engine and the sample database's character
// set.
void ApontarConexao(TFDConnection& connection, const UnicodeString& path);
