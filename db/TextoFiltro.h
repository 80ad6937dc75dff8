// The SQL text of a filter, composed without a database.
//
//     TTextoFiltro texto;
//     texto.Campos = {{u"NOME"_s, TTipoCampo::Texto, u"ana"_s}};
//     ComporFiltro(u"SELECT * FROM T"_s, texto)     // "SELECT * FROM T\r\nWHERE NOME LIKE 'ANA%'\r\n"
#pragma once
#include <vector>
#include "platform/rtl/Types.h"

enum class TTipoCampo { Texto, Data, Numero, Outro };

struct TCampoFiltro {
    UnicodeString Nome;  // as written into SQL
    TTipoCampo Tipo;
    UnicodeString Valor;
};

struct TTextoFiltro {
    std::vector<TCampoFiltro> Campos = {};
    bool Faixa = false;           // the two fields are one: a range from the first value to the second
    UnicodeString Condicao = {};  // further condition
    UnicodeString Ordem = {};     // behind ORDER BY
    UnicodeString Chaves = {};    // key fields, joined with ", "
};

// The statement, its ordering and the lines from its last WHERE on replaced by the filter's lines. Date and
// number values become the parameters :vDATA0, :vDATA1, … by the field's place.
UnicodeString ComporFiltro(const UnicodeString& statement, const TTextoFiltro& filtro);
