#include "platform/data/firebird/Misfits.h"

#include "platform/data/firebird/ErrorCodes.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

void RefuseMisfit(const Misfit& misfit, const UnicodeString& label) {
    const UnicodeString field = label.isEmpty() ? UnicodeString() : u" no campo \"%1\""_s.arg(label);
    if (!misfit.Character.isEmpty()) {
        throw EFDError(u"Caractere não permitido%1: “%2”."_s.arg(field, misfit.Character),
                       {kTransliteration});
    }
    throw EFDError(u"Texto maior que o permitido%1: até %2 caracteres."_s.arg(field).arg(misfit.Limit),
                   {kTruncation});
}

}  // namespace fichario
