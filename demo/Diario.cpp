#include "demo/Diario.h"

#include "platform/rtl/Exceptions.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kCaminho = u"Software\\Comercial"_s;
const UnicodeString kUsuario = u"Usuario"_s;

}  // namespace

void Anotar(const UnicodeString& fato) {
    try {
        Log(fato);
    } catch (const EInOutError&) {
    }
}

UnicodeString UltimoUsuario() {
    return GetRegValue(rkCurrentUser, kCaminho, kUsuario).ToText();
}

void LembrarUsuario(const UnicodeString& nome) {
    try {
        SetRegValue(rkCurrentUser, kCaminho, kUsuario, nome);
    } catch (const EInOutError&) {
    }
}
