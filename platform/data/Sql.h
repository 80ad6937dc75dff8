// Names and values written into SQL text safely.
//
//     "SELECT * FROM " + QuoteIdentifier(table) + " WHERE NM = " + QuoteLiteral(name)
#pragma once
#include "platform/rtl/Types.h"

// `name` between double quotes, each double quote in it doubled: names it exactly, capitals and blanks
// included.
UnicodeString QuoteIdentifier(QStringView name);

// `text` between single quotes, each single quote in it doubled.
UnicodeString QuoteLiteral(QStringView text);

// The texts one behind the other with `separator` between them.
UnicodeString Joined(const TStringArray& texts, const UnicodeString& separator);
