// Looking a value up in a list, or in a pair of parallel lists.
//
//     const UnicodeString values[] = {u"S"_s, u"N"_s}, results[] = {u"SIM"_s, u"NÃO"_s};
//     CaseOfStr(u"S"_s, values, results, UnicodeString());              // "SIM"
//     CaseOfStr(u"S"_s, values, 1, results, 1, UnicodeString());        // the same, by last index
//
// A list is a pointer to its first element and the index of its last one (−1: empty), or a span. Comparisons
// are exact; the last match wins.
#pragma once
#include <span>
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

// Whether an element equals `text`.
bool StrInSet(const UnicodeString& text, std::span<const UnicodeString> set);
bool StrInSet(const UnicodeString& text, const UnicodeString* set, int setHigh);

// The result at the place where `value` stands in `valueSet`, else `defaultResult`. Lists of different
// lengths throw Exception "ValueSet and ResultSet must have same number of items.", whatever the value.
int CaseOfInt(int value, std::span<const int> valueSet, std::span<const int> resultSet, int defaultResult);
int CaseOfInt(int value, const int* valueSet, int valueHigh, const int* resultSet, int resultHigh,
              int defaultResult);

UnicodeString CaseOfStr(const UnicodeString& value, std::span<const UnicodeString> valueSet,
                        std::span<const UnicodeString> resultSet, const UnicodeString& defaultResult);
UnicodeString CaseOfStr(const UnicodeString& value, const UnicodeString* valueSet, int valueHigh,
                        const UnicodeString* resultSet, int resultHigh, const UnicodeString& defaultResult);

Variant CaseOfVar(const Variant& value, std::span<const Variant> valueSet, std::span<const Variant> resultSet,
                  const Variant& defaultResult);
Variant CaseOfVar(const Variant& value, const Variant* valueSet, int valueHigh, const Variant* resultSet,
                  int resultHigh, const Variant& defaultResult);

// As CaseOfVar without a default: the unassigned variant when nothing matches. Lists of different lengths
// throw Exception "Os parametros não conicidem com a chave.".
Variant GetCase(const Variant& value, std::span<const Variant> valueSet, std::span<const Variant> resultSet);
Variant GetCase(const Variant& value, const Variant* valueSet, int valueHigh, const Variant* resultSet,
                int resultHigh);

// The element of `second` at the place where `text` stands in `first`; `text` itself when it does not.
// REQUIRES: `second` is at least as long as `first`; nothing checks it.
UnicodeString GetFieldListValue(std::span<const UnicodeString> first, std::span<const UnicodeString> second,
                                const UnicodeString& text);
UnicodeString GetFieldListValue(const UnicodeString* first, int firstHigh, const UnicodeString* second,
                                int secondHigh, const UnicodeString& text);

// The way back: the element of `first` at the place where `text` stands in `second`, among the places of
// `first`.
UnicodeString GetFieldListText(std::span<const UnicodeString> first, std::span<const UnicodeString> second,
                               const UnicodeString& text);
UnicodeString GetFieldListText(const UnicodeString* first, int firstHigh, const UnicodeString* second,
                               int secondHigh, const UnicodeString& text);
