#include "platform/ui/DBEdit.h"

#include <QScopedValueRollback>
#include "platform/rtl/EditMask.h"
#include "platform/rtl/Exceptions.h"
#include "platform/ui/Guard.h"

using namespace Qt::Literals::StringLiterals;

// ---- TDBEdit ----

TDBEdit::TDBEdit(TComponent* owner) : TMaskEdit(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { ShowField(); };
    FLink.OnUpdateData = [this] { Field()->SetText(TypedText()); };
    FLink.OnRejected = [this] { selectAll(); };
    FLink.OnEditingChange = [this] {
        setReadOnly(!FLink.CanModify());
        NameAfterField(*this);
    };
    setReadOnly(true);
}

TDBEdit::~TDBEdit() {
    FLink.SetDataSource(nullptr);
}

void TDBEdit::ShowField() {
    const QScopedValueRollback showing(FShowing, true);
    SetMaxLength(TypedLimit(Field()));
    if (Field() && EditMask() != Field()->EditMask()) SetEditMask(Field()->EditMask());
    SetAlignment(Field() ? Field()->Alignment() : taLeftJustify);
    SetText(FieldText(Focused() && FLink.CanModify()));
    if (!Focused()) home(false);
}

UnicodeString TDBEdit::TypedText() const {
    if (!EditMask().isEmpty() && EditText() == TEditMask(EditMask()).Apply({})) return {};
    if (!IsComplete()) {
        throw EConvertError(u"Preencha o campo \"%1\" por inteiro."_s.arg(Field()->DisplayLabel()));
    }
    return Text();
}

void TDBEdit::Change() {
    if (!FShowing) FLink.UserChanged();
    TMaskEdit::Change();
}

void TDBEdit::DoEnter() {
    if (!FLink.IsModified()) ShowField();
    selectAll();
    TMaskEdit::DoEnter();
}

void TDBEdit::DoExit() {
    FLink.Commit();
    TMaskEdit::DoExit();
    FLink.Reset();
}

// ---- TDBMemo ----

TDBMemo::TDBMemo(TComponent* owner) : TMemo(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { ShowField(); };
    FLink.OnUpdateData = [this] { Field()->SetText(Text()); };
    FLink.OnRejected = [this] { selectAll(); };
    FLink.OnEditingChange = [this] {
        setReadOnly(!FLink.CanModify());
        NameAfterField(*this);
    };
    setReadOnly(true);
}

TDBMemo::~TDBMemo() {
    FLink.SetDataSource(nullptr);
}

void TDBMemo::ShowField() {
    const QScopedValueRollback showing(FShowing, true);
    SetText(FLink.Active() && Field() ? Field()->AsString() : UnicodeString());
}

void TDBMemo::Change() {
    if (!FShowing) FLink.UserChanged();
    TMemo::Change();
}

void TDBMemo::DoExit() {
    FLink.Commit();
    TMemo::DoExit();
}

// ---- TDBText ----

TDBText::TDBText(TComponent* owner) : TLabel(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { SetCaption(FieldText(false)); };
}

TDBText::~TDBText() {
    FLink.OnDataChange = nullptr;
}
