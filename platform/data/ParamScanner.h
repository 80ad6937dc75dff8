// Turns a statement's named parameters into the server's positional ones.
//
//     ScanParams(u"SELECT * FROM T WHERE A = :DE OR B = :DE")
//         // Text "SELECT * FROM T WHERE A = ? OR B = ?", Names {"DE"}, Places {0, 0}
//
// A colon inside a literal, a quoted name, a comment or the body of a block or of a definition is no
// parameter.
#pragma once
#include <QStringView>
#include <vector>
#include "platform/rtl/Types.h"

namespace fichario {

struct ScannedSql {
    UnicodeString Text;       // the statement with ? for each parameter
    TStringArray Names;       // each name once, as first written, in order of first appearance
    std::vector<int> Places;  // for each ? its name's index
};

// Never fails. A ? that the statement holds already is a parameter named by its number from 1 among all.
ScannedSql ScanParams(QStringView sql);

// A positional parameter that is to have a type of its own.
struct ParamCast {
    size_t Place;        // from 0
    UnicodeString Type;  // in SQL: "NUMERIC(18,3)"
};

// The statement, whose parameters are positional, with those of `casts`, which come in the order of their
// places, converted to their types: (CAST(? AS NUMERIC(18,3))).
UnicodeString WithCasts(QStringView sql, const std::vector<ParamCast>& casts);

}  // namespace fichario
