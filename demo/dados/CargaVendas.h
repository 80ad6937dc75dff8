// Fills the tables of the sales: sellers, products, orders with their items, and the users of the program.
//
//     connection.StartTransaction();
//     CarregarVendas(connection);
//     connection.Commit();
#pragma once

class TFDConnection;

// Every tenth customer has an order, at most so many.
inline constexpr int kMaisPedidos = 500;

// The customers must be there. The users have empty passwords: "Gerente" may do everything, "Vendedor" sells,
// "Consulta" only looks. Quick inside one transaction only. Raises EFDError.
void CarregarVendas(TFDConnection& connection);
