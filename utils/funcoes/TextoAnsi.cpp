#include "utils/funcoes/TextoAnsi.h"

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Trim.h"

AnsiString AnsiTrocaPorParams(const AnsiString& text, char oldByte, char newByte) {
    AnsiString result = text;
    return result.replace(oldByte, newByte);
}

AnsiString AnsiTrim(const AnsiString& text) {
    return ToAnsi(Trim(FromAnsi(text)));
}

AnsiString AnsiUpperCase(const AnsiString& text) {
    return text.toUpper();
}

int AnsiPos(const AnsiString& needle, const AnsiString& haystack) {
    return needle.isEmpty() ? 0 : int(haystack.indexOf(needle)) + 1;
}
