#include "platform/ui/DBChoice.h"

#include <QSignalBlocker>
#include "platform/ui/Guard.h"

// ---- TDBComboBox ----

TDBComboBox::TDBComboBox(TComponent* owner) : TComboBox(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { ShowField(); };
    FLink.OnUpdateData = [this] { Field()->SetText(Text()); };
    FLink.OnEditingChange = [this] { NameAfterField(*this); };
}

TDBComboBox::~TDBComboBox() {
    FLink.SetDataSource(nullptr);
}

void TDBComboBox::ShowField() {
    SetItemIndex(Field() ? Items()->IndexOf(FieldText(true)) : -1);
}

void TDBComboBox::Change() {
    FLink.UserChanged();
    TComboBox::Change();
}

void TDBComboBox::DoExit() {
    FLink.Commit();
    TComboBox::DoExit();
}

// ---- TDBCheckBox ----

TDBCheckBox::TDBCheckBox(TComponent* owner) : TCheckBox(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { ShowField(); };
    FLink.OnUpdateData = [this] { WriteField(); };
    FLink.OnEditingChange = [this] { NameAfterField(*this); };
    connect(this, &QCheckBox::clicked, this, [this] {
        CalledByQt(this, [this] {
            const Qt::CheckState wanted = checkState() == Qt::Unchecked ? Qt::Unchecked : Qt::Checked;
            setTristate(false);
            FLink.UserChanged();
            if (!FLink.IsModified()) return;
            setCheckState(wanted);
            FLink.Commit();
        });
    });
}

TDBCheckBox::~TDBCheckBox() {
    FLink.SetDataSource(nullptr);
}

void TDBCheckBox::SetValueChecked(const UnicodeString& value) {
    FValueChecked = value;
    FLink.Reset();
}

void TDBCheckBox::SetValueUnchecked(const UnicodeString& value) {
    FValueUnchecked = value;
    FLink.Reset();
}

void TDBCheckBox::ShowField() {
    const QSignalBlocker silent(this);
    Qt::CheckState state = Qt::PartiallyChecked;
    if (!FLink.Active() || !Field()) {
        state = Qt::Unchecked;
    } else if (!Field()->IsNull() && Field()->DataType() == ftBoolean) {
        state = Field()->AsBoolean() ? Qt::Checked : Qt::Unchecked;
    } else if (Field()->AsString() == FValueChecked) {
        state = Qt::Checked;
    } else if (Field()->AsString() == FValueUnchecked) {
        state = Qt::Unchecked;
    }
    setTristate(state == Qt::PartiallyChecked);
    setCheckState(state);
}

void TDBCheckBox::WriteField() {
    if (Field()->DataType() == ftBoolean) {
        Field()->SetAsBoolean(isChecked());
    } else {
        Field()->SetAsString(isChecked() ? FValueChecked : FValueUnchecked);
    }
}

void TDBCheckBox::DoExit() {
    FLink.Commit();
    TCheckBox::DoExit();
}
