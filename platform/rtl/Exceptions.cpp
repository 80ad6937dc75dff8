#include "platform/rtl/Exceptions.h"

EAbort::EAbort() : Exception(QStringLiteral("Operation aborted")) {}

void Abort() {
    throw EAbort();
}
