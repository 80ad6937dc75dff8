// The tables of the sample database "Comercial": states, towns and customers, and those of the sales:
// sellers, products, orders with their items, and users.
//
//     for (const UnicodeString& command : ComandosDasTabelas()) connection.ExecSQL(command, {});
//     ... load the rows ...
//     for (const UnicodeString& command : ComandosDosIndices()) connection.ExecSQL(command, {});
//
// Every text column that a user searches or orders by is declared COLLATE PT_BR, so that `NM_CLI LIKE
// 'JOAO%'` finds "João" as well, and has an index over (column, key): that one index serves the search, the
// order and both together
// (`WHERE NM_CLI LIKE 'JOAO%' ORDER BY NM_CLI, CD_CLI` walks the stretch of JOAO without a sort). An index
// over the column alone would serve the search but not the order by column and key. Searches by date compare
// `CAST(DT_CAD AS DATE)` and have an index over that expression besides.
#pragma once

#include "platform/rtl/Types.h"

// The commands that create the tables, the generator GEN_CLIENTE and the trigger that numbers new customers,
// in the order in which they must run. They expect an empty database whose character set is ISO8859_1.
TStringArray ComandosDasTabelas();

// The commands that create the indexes. They run after the rows are in: building an index once is several
// times quicker than keeping it up to date row by row.
TStringArray ComandosDosIndices();

// The tables of the sales with their generators, triggers and indexes, in the order in which they must run,
// on a database that has the customers.
TStringArray ComandosDeVendas();
