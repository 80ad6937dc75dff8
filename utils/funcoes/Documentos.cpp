#include "utils/funcoes/Documentos.h"

#include <algorithm>

#include "platform/rtl/EditMask.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kCpfLength = 11;
constexpr int kCnpjLength = 14;
constexpr int kMobileLength = 11;

int Digit(const UnicodeString& digits, qsizetype index) {
    return StrToInt(digits.mid(index, 1));
}

int CheckDigit(const UnicodeString& digits, qsizetype baseLength, int maxWeight) {
    int sum = 0, weight = 2;
    for (qsizetype i = baseLength - 1; i >= 0; --i) {
        sum += Digit(digits, i) * weight;
        weight = weight < maxWeight ? weight + 1 : 2;
    }
    const int rest = sum % 11;
    return rest < 2 ? 0 : 11 - rest;
}

UnicodeString Masked(const UnicodeString& mask, const UnicodeString& digits) {
    return TEditMask(mask).FormatText(digits);
}

}  // namespace

bool Mod11(const UnicodeString& digits, unsigned char maxWeight) {
    if (digits.size() < 2) return false;
    for (const qsizetype place : {digits.size() - 2, digits.size() - 1}) {
        if (CheckDigit(digits, place, maxWeight) != Digit(digits, place)) return false;
    }
    return true;
}

bool SameAll(const UnicodeString& text) {
    return !text.isEmpty() && text.count(text[0]) == text.size();
}

bool CPF(const UnicodeString& digits) {
    return digits.size() == kCpfLength && !SameAll(digits) && Mod11(digits, 11);
}

bool CNPJ(const UnicodeString& digits) {
    return digits.size() == kCnpjLength && !SameAll(digits) && Mod11(digits, 9);
}

UnicodeString FormatCPF(const UnicodeString& digits) {
    if (digits.size() == kCpfLength) return Masked(u"999.999.999-99;0; "_s, digits);
    if (digits.size() == kCnpjLength) return Masked(u"99.999.999/9999-99;0; "_s, digits);
    return digits;
}

UnicodeString FormatTelefone(const UnicodeString& digits) {
    const bool mobile = digits.size() == kMobileLength;
    return Masked(mobile ? u"!(99)99999-9999;0; "_s : u"(99)9999-9999;0; "_s, digits);
}
