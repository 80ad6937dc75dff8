#include "platform/data/fields/DateFields.h"

#include <algorithm>
#include "platform/data/firebird/WireTime.h"
#include "platform/rtl/FormatSettings.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kDate = u"uma data válida"_s;
const UnicodeString kTime = u"uma hora válida"_s;

// A masked edit leaves its separators behind when nothing was typed.
bool IsBlank(const UnicodeString& text) {
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

// For what has no date to show.
UnicodeString AsNumber(TDateTime moment) {
    return Variant(moment.Value).ToText();
}

}  // namespace

void TDateTimeField::SetDisplayFormat(const UnicodeString& pattern) {
    FDisplayFormat = pattern;
    PropertyChanged();
}

UnicodeString TDateTimeField::FormatValue(const Variant& value, bool display) const {
    const TDateTime moment = value.ToDateTime();
    if (display && !FDisplayFormat.isEmpty()) return FormatDateTime(FDisplayFormat, moment);
    return DataType() == ftTime ? TimeToStr(moment) : DateToStr(moment);
}

Variant TDateTimeField::Convert(const Variant& value) const {
    const TDateTime moment = value.ToDateTime();
    if (!fichario::IsWireDate(moment)) RefuseText(AsNumber(moment), DataType() == ftTime ? kTime : kDate);
    return DataType() == ftTime ? TimeOf(moment) : DateOf(moment);
}

Variant TDateField::ConvertText(const UnicodeString& text) const {
    if (IsBlank(text)) return Variant::Null();
    TDateTime date;
    if (!TryStrToDate(text, date)) RefuseText(text, kDate);
    return date;
}

Variant TTimeField::ConvertText(const UnicodeString& text) const {
    if (IsBlank(text)) return Variant::Null();
    TDateTime time;
    if (!TryStrToTime(text, time)) RefuseText(text, kTime);
    return time;
}

void TSQLTimeStampField::SetDisplayFormat(const UnicodeString& pattern) {
    FDisplayFormat = pattern;
    PropertyChanged();
}

UnicodeString TSQLTimeStampField::FormatValue(const Variant& value, bool display) const {
    if (display && !FDisplayFormat.isEmpty()) return FormatDateTime(FDisplayFormat, value.ToDateTime());
    return DateTimeToStr(value.ToDateTime());
}

Variant TSQLTimeStampField::Convert(const Variant& value) const {
    const TDateTime moment = value.ToDateTime();
    if (!fichario::IsWireDate(moment)) RefuseText(AsNumber(moment), kDate);
    return moment;
}

Variant TSQLTimeStampField::ConvertText(const UnicodeString& text) const {
    if (IsBlank(text)) return Variant::Null();
    TDateTime moment;
    if (!TryStrToDateTime(text, moment)) RefuseText(text, kDate);
    return moment;
}
