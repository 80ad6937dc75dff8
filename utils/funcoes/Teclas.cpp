#include "utils/funcoes/Teclas.h"

#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"

namespace {

constexpr WideChar kBackspace = 8;

bool IsDigit(WideChar key) {
    return key >= u'0' && key <= u'9';
}
bool IsSeparator(WideChar key) {
    return key == u',' || key == u'.';
}

}  // namespace

void OnlyInteger(WideChar key) {
    if (key != kBackspace && !IsDigit(key)) Abort();
}

void OnlyNumbers(WideChar& key, bool allowDecimal) {
    if (allowDecimal && IsSeparator(key)) {
        GetDecSeparator(key);
    } else {
        OnlyInteger(key);
    }
}

void GetDecSeparator(WideChar& key) {
    if (IsSeparator(key)) key = FormatSettings.DecimalSeparator;
}

WideChar UpeCase(WideChar key) {
    const bool lower = (key >= u'a' && key <= u'z') || (key >= 224 && key <= 252);
    return lower ? WideChar(key - 32) : key;
}

bool IsKeyCharacter(WideChar key) {
    return key >= 32 && key <= 255;
}
