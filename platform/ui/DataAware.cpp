#include "platform/ui/DataAware.h"

#include <QWidget>

void TDataAware::NameAfterField(QWidget& widget) const {
    if (Field() && widget.accessibleName().isEmpty()) widget.setAccessibleName(Field()->DisplayLabel());
}

UnicodeString TDataAware::FieldText(bool toEdit) const {
    if (!FLink.Active() || !Field()) return {};
    return toEdit ? Field()->Text() : Field()->DisplayText();
}
