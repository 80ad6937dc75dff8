#include "db/Geradores.h"

#include <limits>
#include <QStringBuilder>

#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/Component.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Strings.h"

namespace {

int Fitting(int64_t value, const UnicodeString& generator) {
    using Limits = std::numeric_limits<int>;
    if (value >= Limits::min() && value <= Limits::max()) return static_cast<int>(value);
    throw EConvertError(QStringLiteral("O valor %1 do gerador %2 não cabe em um inteiro de 32 bits.")
                            .arg(IntToStr(value), generator));
}

}  // namespace

int GetGeneratorID(TFDCustomConnection* connection, const UnicodeString& generator, int increment) {
    // The application frees the query when opening it throws.
    auto* query = new TFDQuery(ApplicationRoot());
    query->SetConnection(connection);
    const UnicodeString step = IntToStr(increment);
    query->SQL()->Add(u"SELECT GEN_ID(" % generator % u", " % step % u") GEN_VALUE FROM RDB$DATABASE");
    query->Open();
    const int64_t value = query->FieldByName(QStringLiteral("GEN_VALUE"))->AsLargeInt();
    query->Free();
    return Fitting(value, generator);
}
