// Database utilities: what the masters agree on, the prefixes of fields, generator values, the query
// filter, and the connection's settings file.
//
//     SetPrefix(field, u"C"_s);                                 // GetFieldName(field): "C.CODIGO"
//     int key = GetGeneratorID(connection, u"GEN_CLIENTE"_s, 1);
//
// The functions stand in headers by topic; a host includes this one.
#pragma once
#include "db/Configuracao.h"
#include "db/Filtro.h"
#include "db/Geradores.h"
#include "db/Prefixos.h"
#include "db/Tipos.h"
