// Opens a form's own query on the record that a view shows: its WHERE clause is replaced by one condition for
// each key field of the view.
//
//     FWhere = KeyWhere(*viewDataSet, query, false);      // "WHERE C.ID_CLI = 7"
//     OpenWhere(query, FWhere);
//
// A view's key fields are those whose provider flags hold pfInKey.
#pragma once

#include "platform/rtl/Types.h"

class TDataSet;
class TField;
class TFDQuery;

// The clause, WHERE included, for the view's current record; empty when the view has no key field. The column
// is named by the field of `own` with the view field's name (EDatabaseError when `own` has none). `newRecord`
// asks for a key that no record has, so that the query opens empty.
UnicodeString KeyWhere(const TDataSet& view, TFDQuery& own, bool newRecord);

// The view field's current value as SQL reads it: numbers with a decimal point, dates as 2024-12-31, anything
// else quoted.
UnicodeString KeyLiteral(const TField& key);

// Closes the query, puts `where` in the place of its WHERE clause, and opens it.
void OpenWhere(TFDQuery& query, const UnicodeString& where);
