#include "db/Prefixos.h"

#include <QStringBuilder>

#include "platform/data/Field.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Trim.h"

namespace {

constexpr qsizetype kMaxLength = 4;

}  // namespace

void SetPrefix(TField* field, const UnicodeString& prefix) {
    if (prefix.size() > kMaxLength) {
        throw Exception(QStringLiteral("The prefix can not contain more than 4 characters."));
    }
    field->SetTag(0);
    const UnicodeString digits = QString::fromLatin1(ToAnsi(prefix).toHex());
    field->SetTag(StrToInt(u'$' + digits));
}

UnicodeString GetPrefix(TField* field) {
    const UnicodeString digits = UnicodeString::number(uint32_t(field->Tag()), 16).rightJustified(2, u'0');
    UnicodeString prefix;
    for (qsizetype i = 0; i + 1 < digits.size(); i += 2) {
        prefix += QChar(QStringView(digits).sliced(i, 2).toUShort(nullptr, 16));
    }
    return Trim(prefix).toString();
}

UnicodeString GetFieldName(TField* field) {
    const UnicodeString prefix = GetPrefix(field);
    const UnicodeString origin = field->Origin();
    const UnicodeString name = UpperText(Trim(origin).isEmpty() ? field->FieldName() : origin);
    return prefix.isEmpty() ? name : UnicodeString(prefix % u'.' % name);
}
