#include "db/Geradores.h"

#include <QStringBuilder>

#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/Component.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Strings.h"

int GetGeneratorID(TFDCustomConnection* connection, const UnicodeString& generator, int increment) {
    // The application frees the query when opening it throws.
    auto* query = new TFDQuery(ApplicationRoot());
    query->SetConnection(connection);
    const UnicodeString step = IntToStr(increment);
    query->SQL()->Add(u"SELECT GEN_ID(" % generator % u", " % step % u") GEN_VALUE FROM RDB$DATABASE");
    query->Open();
    const int value = query->FieldByName(QStringLiteral("GEN_VALUE"))->AsInteger();
    query->Free();
    return value;
}
