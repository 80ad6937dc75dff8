#include "platform/data/fields/BlobFields.h"

#include "platform/data/DataSet.h"

using namespace Qt::Literals::StringLiterals;

QByteArray TBlobField::AsBytes() const {
    const Variant value = Value();
    return value.IsNull() ? QByteArray() : value.ToBytes();
}

void TBlobField::SetAsBytes(const QByteArray& bytes) {
    SetValue(bytes);
}

Variant TBlobField::Convert(const Variant& value) const {
    return value.ToBytes();
}

Variant TBlobField::ConvertText(const UnicodeString& text) const {
    return text.isEmpty() ? Variant::Null() : Variant(Variant(text).ToBytes());
}

UnicodeString TBlobField::FormatValue(const Variant& value, bool display) const {
    return display ? u"(BLOB)"_s : value.ToText();
}

Variant TMemoField::Convert(const Variant& value) const {
    return value.ToText();
}

Variant TMemoField::ConvertText(const UnicodeString& text) const {
    return text;
}

UnicodeString TMemoField::FormatValue(const Variant& value, bool) const {
    return value.ToText();
}
