#include "platform/data/fields/TextFields.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

Variant TStringField::Convert(const Variant& value) const {
    return value.ToText();
}

Variant TStringField::ConvertText(const UnicodeString& text) const {
    return text;
}

int TStringField::DefaultWidth() const {
    return std::max(1, Size());
}

namespace {

bool IsAny(const UnicodeString& text, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return word.compare(text, Qt::CaseInsensitive) == 0; });
}

}  // namespace

Variant TBooleanField::Convert(const Variant& value) const {
    return value.ToBool();
}

Variant TBooleanField::ConvertText(const UnicodeString& text) const {
    const UnicodeString word = text.trimmed();
    if (word.isEmpty()) return Variant::Null();
    if (IsAny(word, {u"Sim", u"S", u"True", u"1"})) return true;
    if (IsAny(word, {u"Não", u"N", u"False", u"0"})) return false;
    RefuseText(text, u"Sim ou Não"_s);
}

UnicodeString TBooleanField::FormatValue(const Variant& value, bool) const {
    return value.ToBool() ? u"Sim"_s : u"Não"_s;
}
