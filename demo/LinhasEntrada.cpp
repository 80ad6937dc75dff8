#include "demo/LinhasEntrada.h"

using namespace Qt::Literals::StringLiterals;

namespace entrada {

TEdit* NewEdit(TFrmEnt_Master* form, const UnicodeString& name, const UnicodeString& caption,
               const QRect& place) {
    auto* label = NewControl<TLabel>(form, form, u"Lb"_s + name, place);
    label->SetCaption(caption);
    auto* edit = NewControl<TEdit>(form, form, name, place.translated(0, kLabelHeight));
    edit->SetAccessibleName(UnicodeString(caption).remove(u'&'));
    label->SetFocusControl(edit);
    return edit;
}

}  // namespace entrada
