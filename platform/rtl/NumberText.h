// Numbers to text and back, with the separators of FormatSettings.
//
//     int age = StrToInt(u"42"), colour = StrToInt(u"$FF8000");
//     FloatToStr(0.1L + 0.2L)     // "0,3"
//
// Str... functions throw EConvertError with a Portuguese sentence that names the text; Try... functions
// answer false and leave the value alone; ...Def functions return the default. Blanks before a number are
// skipped.
#pragma once
#include <concepts>
#include <cstdint>
#include <QStringView>
#include <type_traits>
#include "platform/rtl/Currency.h"
#include "platform/rtl/Types.h"

// Whole numbers: decimal digits with a sign, or hexadecimal ones behind "$" or "0x". Hexadecimal digits fill
// the bits of the type, so "$FFFFFFFF" is -1 in 32 bits.
int StrToInt(QStringView text);
bool TryStrToInt(QStringView text, int& value);
int StrToIntDef(QStringView text, int defaultValue);
int64_t StrToInt64(QStringView text);
bool TryStrToInt64(QStringView text, int64_t& value);
int64_t StrToInt64Def(QStringView text, int64_t defaultValue);

UnicodeString IntToStr(int64_t value);

// Upper-case hexadecimal, at least `digits` long; a negative value shows the bits of its type.
UnicodeString HexText(uint64_t bits, int digits);
template <std::integral T>
UnicodeString IntToHex(T value, int digits) {
    return HexText(static_cast<std::make_unsigned_t<T>>(value), digits);
}

// Numbers with decimals: digits, one decimal separator, an exponent; no thousand separators. Blanks may
// follow. StrToExtended keeps the 80 bits.
double StrToFloat(QStringView text);
bool TryStrToFloat(QStringView text, double& value);
double StrToFloatDef(QStringView text, double defaultValue);
long double StrToExtended(QStringView text);
bool TryStrToExtended(QStringView text, long double& value);

// The shortest text of the value rounded to 15 significant digits; beyond 10^15 and below 10^-5 with an
// exponent
// ("1E20"). Not a number and infinity read "NAN", "INF" and "-INF".
UnicodeString FloatToStr(long double value);

// Money, exact to four decimals; more are rounded, ties to even. CurrToStr drops trailing zeros: "10,5".
Currency StrToCurr(QStringView text);
bool TryStrToCurr(QStringView text, Currency& value);
UnicodeString CurrToStr(Currency value);
