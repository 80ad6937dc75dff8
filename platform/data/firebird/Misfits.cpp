#include "platform/data/firebird/Misfits.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

void RefuseMisfit(const Misfit& misfit, const UnicodeString& label) {
    const UnicodeString field = label.isEmpty() ? UnicodeString() : u" no campo \"%1\""_s.arg(label);
    if (!misfit.Character.isEmpty()) {
        throw EDatabaseError(u"Caractere não permitido%1: “%2”."_s.arg(field, misfit.Character));
    }
    throw EDatabaseError(u"Texto maior que o permitido%1: até %2 caracteres."_s.arg(field).arg(misfit.Limit));
}

}  // namespace fichario
