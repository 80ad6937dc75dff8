#include "platform/ui/SpinEdit.h"

TSpinEdit::TSpinEdit(TComponent* owner) : TWidget(owner) {
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSpinBox::valueChanged, this, [this] {
        CalledByQt(this, [this] {
            if (OnChange) OnChange(this);
        });
    });
}

void TSpinEdit::SetValue(int value) {
    CallQt([&] { setValue(value); });
}
