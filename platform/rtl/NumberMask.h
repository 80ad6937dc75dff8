// Numbers laid out by a display mask.
//
//     FormatFloat(u"#,##0.00;(#,##0.00);-", -1234.5)     // "(1.234,50)"
//
// In a mask "0" is a digit always shown, "#" a digit shown when there is one, "." the decimal separator and
// "," (at any place) asks for thousand separators; both come out as FormatSettings has them. Texts in quotes
// and all other characters stand for themselves. Sections behind ";" are for negative numbers (given without
// sign) and for zero; an empty section leaves its numbers to the first one. A number that the mask rounds to
// zero is a zero. An empty mask shows the number plainly.
#pragma once
#include <QStringView>
#include "platform/rtl/Currency.h"
#include "platform/rtl/Decimal.h"
#include "platform/rtl/Types.h"

// The value's 15 significant digits, rounded half away from zero to the decimals of the mask.
UnicodeString FormatFloat(QStringView mask, long double value);

// The exact digits, rounded half away from zero to the decimals of the mask; never passes through a double.
UnicodeString FormatDecimal(QStringView mask, const Decimal& value);
UnicodeString FormatCurr(QStringView mask, Currency value);
