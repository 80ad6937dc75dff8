#include "utils/funcoes/Listas.h"

#include <algorithm>

#include "platform/rtl/Exceptions.h"

namespace {

template <class T>
std::span<const T> List(const T* first, int high) {
    return {first, static_cast<size_t>(high + 1)};
}

// The result of the last match; every pair is compared.
template <class T>
T LastMatch(const T& value, std::span<const T> keys, std::span<const T> results, const T& otherwise) {
    T result = otherwise;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] == value) result = results[i];
    }
    return result;
}

template <class T>
T CaseOf(const T& value, std::span<const T> valueSet, std::span<const T> resultSet, const T& otherwise) {
    if (valueSet.size() != resultSet.size()) {
        throw Exception(QStringLiteral("ValueSet and ResultSet must have same number of items."));
    }
    return LastMatch(value, valueSet, resultSet, otherwise);
}

}  // namespace

bool StrInSet(const UnicodeString& text, std::span<const UnicodeString> set) {
    return std::find(set.begin(), set.end(), text) != set.end();
}

bool StrInSet(const UnicodeString& text, const UnicodeString* set, int setHigh) {
    return StrInSet(text, List(set, setHigh));
}

int CaseOfInt(int value, std::span<const int> valueSet, std::span<const int> resultSet, int defaultResult) {
    return CaseOf(value, valueSet, resultSet, defaultResult);
}

int CaseOfInt(int value, const int* valueSet, int valueHigh, const int* resultSet, int resultHigh,
              int defaultResult) {
    return CaseOf(value, List(valueSet, valueHigh), List(resultSet, resultHigh), defaultResult);
}

UnicodeString CaseOfStr(const UnicodeString& value, std::span<const UnicodeString> valueSet,
                        std::span<const UnicodeString> resultSet, const UnicodeString& defaultResult) {
    return CaseOf(value, valueSet, resultSet, defaultResult);
}

UnicodeString CaseOfStr(const UnicodeString& value, const UnicodeString* valueSet, int valueHigh,
                        const UnicodeString* resultSet, int resultHigh, const UnicodeString& defaultResult) {
    return CaseOf(value, List(valueSet, valueHigh), List(resultSet, resultHigh), defaultResult);
}

Variant CaseOfVar(const Variant& value, std::span<const Variant> valueSet, std::span<const Variant> resultSet,
                  const Variant& defaultResult) {
    return CaseOf(value, valueSet, resultSet, defaultResult);
}

Variant CaseOfVar(const Variant& value, const Variant* valueSet, int valueHigh, const Variant* resultSet,
                  int resultHigh, const Variant& defaultResult) {
    return CaseOf(value, List(valueSet, valueHigh), List(resultSet, resultHigh), defaultResult);
}

Variant GetCase(const Variant& value, std::span<const Variant> valueSet, std::span<const Variant> resultSet) {
    if (valueSet.size() != resultSet.size()) {
        throw Exception(QStringLiteral("Os parametros não conicidem com a chave."));
    }
    return LastMatch(value, valueSet, resultSet, Variant());
}

Variant GetCase(const Variant& value, const Variant* valueSet, int valueHigh, const Variant* resultSet,
                int resultHigh) {
    return GetCase(value, List(valueSet, valueHigh), List(resultSet, resultHigh));
}

UnicodeString GetFieldListValue(std::span<const UnicodeString> first, std::span<const UnicodeString> second,
                                const UnicodeString& text) {
    return LastMatch(text, first, second, text);
}

UnicodeString GetFieldListValue(const UnicodeString* first, int firstHigh, const UnicodeString* second,
                                int secondHigh, const UnicodeString& text) {
    return GetFieldListValue(List(first, firstHigh), List(second, secondHigh), text);
}

UnicodeString GetFieldListText(std::span<const UnicodeString> first, std::span<const UnicodeString> second,
                               const UnicodeString& text) {
    return LastMatch(text, second.first(first.size()), first, text);
}

UnicodeString GetFieldListText(const UnicodeString* first, int firstHigh, const UnicodeString* second,
                               int secondHigh, const UnicodeString& text) {
    return GetFieldListText(List(first, firstHigh), List(second, secondHigh), text);
}
