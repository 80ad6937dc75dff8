// Fills the tables of the sample database.
//
//     connection.StartTransaction();
//     CarregarMunicipios(connection);
//     CarregarClientes(connection, 5000, gerador, [](int feitos, int total) { ... });
//     connection.Commit();
#pragma once

#include <functional>

#include "demo/dados/Gerador.h"

class TFDConnection;

// Hears how many customers are in: once every thousand and once at the end.
using TProgresso = std::function<void(int feitos, int total)>;

// Inserts the states and the towns. Raises EFDError.
void CarregarMunicipios(TFDConnection& connection);

// Inserts the next `quantos` customers of `gerador` through one prepared statement; the database numbers
// them. Quick inside one transaction only. Raises EFDError.
void CarregarClientes(TFDConnection& connection, int quantos, TGeradorDeClientes& gerador,
                      const TProgresso& progresso = nullptr);
