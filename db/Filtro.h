// The query filter: rewrites the SQL of a query so that it returns the rows a user searched for, and opens
// it.
//
//     TField* const fields[] = {nome};
//     const UnicodeString values[] = {u"o'brien*"_s};
//     Filtro(query, fields, values, u"NOME"_s, UnicodeString(), {}, {}, ktNone, false);
//     // … WHERE NOME LIKE 'O''BRIEN%%' AND COALESCE(TF_DEL, 'N') = 'N' ORDER BY NOME
//
// A table that supports soft deletion has a column TF_DEL: S for a deleted row, N or null for a live one.
#pragma once
#include <span>
#include "db/Tipos.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TDataSet;
class TField;

// Rewrites the SQL of `dataSet` (a query) and opens it.
//   - The ordering is removed, and everything from the last line that holds the letters WHERE: a statement
//   keeps its
//     own conditions on its last lines, and loses them.
//   - One condition a field, `values` at the same places: a text field begins with the value (* stands for
//   anything);
//     a date or number field equals it; any other field equals it as a text. Values are upper-cased.
//   - The same field twice, a date or a number: from the first value to the second, both included; any other
//   kind
//     then gives no condition.
//   - `condition` is joined with AND; without fields it still begins so: the statement must end where AND may
//   follow. It must not hold the letters WHERE (a sub-select belongs into a view): the next call would cut
//   the statement there.
//   - A dataset with a field TF_DEL hides rows marked deleted unless `showDeleted`.
//   - The rows are ordered by `order`, as written behind ORDER BY, then by the key fields when `keyType` is
//     ktFieldProviderFlag; either may be missing.
//   - `paramNames` are further parameters of the statement, set from `paramValues`, at the same places.
// Throws EConvertError for a value that is no date or number; Exception "Nenhuma chave primaria foi
// definida." when the key is asked for and no field holds pfInKey; EDatabaseError from the server, and for
// fewer values than fields or parameters. Nothing is opened then.
void Filtro(TDataSet* dataSet, std::span<TField* const> fields, std::span<const UnicodeString> values,
            const UnicodeString& order, const UnicodeString& condition,
            std::span<const UnicodeString> paramNames, std::span<const Variant> paramValues, TKeyType keyType,
            bool showDeleted);

// The same by pointers and last indices (−1: empty).
void Filtro(TDataSet* dataSet, TField* const* fields, int fieldsHigh, const UnicodeString* values,
            int valuesHigh, const UnicodeString& order, const UnicodeString& condition,
            const UnicodeString* paramNames, int paramNamesHigh, const Variant* paramValues,
            int paramValuesHigh, TKeyType keyType, bool showDeleted);
