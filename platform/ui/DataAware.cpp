#include "platform/ui/DataAware.h"

#include <QWidget>

int TypedLimit(const TField* field) {
    if (!field || !field->EditMask().isEmpty()) return 0;
    const bool text = field->DataType() == ftString || field->DataType() == ftFixedChar;
    return text ? field->Size() : 0;
}

void TDataAware::NameAfterField(QWidget& widget) const {
    if (Field() && widget.accessibleName().isEmpty()) widget.setAccessibleName(Field()->DisplayLabel());
}

UnicodeString TDataAware::FieldText(bool toEdit) const {
    if (!FLink.Active() || !Field()) return {};
    return toEdit ? Field()->Text() : Field()->DisplayText();
}
