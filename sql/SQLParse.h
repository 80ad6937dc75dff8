// SQL text toolkit: reads and rewrites the clauses of a statement held as one text, without a full parser.
//
//     UnicodeString where;
//     GetSQLWhere(sql, where);                       // u"WHERE A = 1"
//     AddWhereClause(where, u"B = 2"_s);             // u"WHERE A = 1\r\n  AND B = 2"
//     SetSQLWhere(sql, where);
//
// The functions stand in headers by topic; a host includes this one.
#pragma once
#include "sql/parse/Clausulas.h"
#include "sql/parse/Identificadores.h"
#include "sql/parse/Literais.h"
#include "sql/parse/Onde.h"
#include "sql/parse/Servidor.h"
#include "sql/parse/Varredura.h"
