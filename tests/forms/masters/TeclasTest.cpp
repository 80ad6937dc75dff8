// What a key does on an edit form, by real strokes: in both masters alike, for each kind of active control
// and what is true of it (tables/teclado.txt).
#include "forms/masters/UEnt_Master.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/DBLookup.h"
#include "platform/ui/RichEdit.h"
#include "platform/ui/ValueList.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// One of the masters, whose buttons only tell that they were pressed.
template <class TMaster>
class TFrmTeclas : public TMaster {
  public:
    using TMaster::TMaster;
    UnicodeString Pressed;
    std::function<void(TForm*)> Make;

    void BtnConfirmarClick(TComponent*) override { Pressed = u"Confirmar"_s; }
    void BtnCancelarClick(TComponent*) override { Pressed = u"Cancelar"_s; }
};

class TFrmTeclasCad : public TFrmTeclas<TFrmCad_Master> {
  public:
    TFrmTeclasCad(TComponent* owner, TModuleInstance* module, TDataSet* data)
        : TFrmTeclas(owner, module, (unsigned char)kAlterar, ktNone, false), FData(data) {}

  protected:
    void CreateControls() override {
        TFrmTeclas::CreateControls();
        MainDS->SetDataSet(FData);
        (new TTabSheet(this))->SetPageControl(PageControl);
    }

  private:
    TDataSet* FData;
};

class Teclas : public Bancada {
  protected:
    TFDQuery* Rows(TComponent* owner) {
        auto* rows = new TFDQuery(owner);
        rows->SetConnection(Caso.Connection);
        rows->SQL()->SetText(u"SELECT ID_CLI, NM_CLI, NM_EST, NR_CPF FROM CLIENTE ORDER BY 1"_s);
        rows->Open();
        return rows;
    }
    TDataSource* Source(TDataSet* rows) {
        auto* source = new TDataSource(Main);
        source->SetDataSet(rows);
        return source;
    }
    template <class T>
    T* Put(TForm* form, TControl* parent, const char* name, int top) {
        return NewControl<T>(form, parent, QString::fromLatin1(name), QRect(16, top, 220, 25));
    }
    TControl* MakeKind(const QString& kind, TForm* form, TControl* parent, TDataSource* source,
                       const QStringList& states);
    void Bring(TControl* control, const QStringList& states, TDataSource* source);
    QString Effect(TForm* form, TControl* control, const QString& pressed, const QString& textBefore);
    QString Stroke(bool cad, const QStringList& arguments);
};

TControl* Teclas::MakeKind(const QString& kind, TForm* form, TControl* parent, TDataSource* source,
                           const QStringList& states) {
    const bool enter = states.contains(u"enter"_s);
    const auto bound = [&](auto* control) {
        control->SetDataSource(source);
        control->SetDataField(u"NM_EST"_s);
        return control;
    };
    const auto wanting = [&](auto* control) {
        control->SetWantReturns(enter);
        return control;
    };
    if (kind == u"combo") {
        auto* combo = Put<TComboBox>(form, parent, "X", 90);
        combo->Items()->SetText(u"PR\nSP"_s);
        return combo;
    }
    if (kind == u"dbcombo") {
        auto* combo = bound(Put<TDBComboBox>(form, parent, "X", 90));
        combo->Items()->SetText(u"PR\nSP"_s);
        return combo;
    }
    if (kind == u"lookup") {
        auto* lookup = bound(Put<TDBLookupComboBox>(form, parent, "X", 90));
        lookup->SetListSource(Source(Rows(form)));
        lookup->SetKeyField(u"NM_EST"_s);
        lookup->SetListField(u"NM_CLI"_s);
        return lookup;
    }
    if (kind == u"memo") return wanting(Put<TMemo>(form, parent, "X", 90));
    if (kind == u"dbmemo") return wanting(bound(Put<TDBMemo>(form, parent, "X", 90)));
    if (kind == u"rich") return wanting(Put<TDBRichEdit>(form, parent, "X", 90));
    if (kind == u"values") {
        auto* values = NewControl<TValueListEditor>(form, parent, u"X"_s, QRect(16, 90, 300, 90));
        values->Strings()->SetText(u"Um=1\nDois=2\nTres=3"_s);
        values->SetRow(states.contains(u"last"_s) ? 2 : 1);
        return values;
    }
    if (kind == u"grid") {
        auto* grid = NewControl<TOrlaDBGrid>(form, parent, u"X"_s, QRect(16, 90, 400, 90));
        grid->SetDataSource(Source(Rows(form)));
        for (const char16_t* field : {u"ID_CLI", u"NM_CLI", u"NM_EST", u"NR_CPF"})
            grid->AddColumn(QString::fromUtf16(field));
        grid->Columns()[1]->SetVisible(false);
        return grid;
    }
    return bound(Put<TDBEdit>(form, parent, "X", 90));
}

void Teclas::Bring(TControl* control, const QStringList& states, TDataSource* source) {
    if (states.contains(u"browse"_s)) source->DataSet()->Cancel();
    control->SetFocus();
    if (auto* grid = dynamic_cast<TDBGrid*>(control)) {
        if (states.contains(u"new row"_s)) grid->DataSet()->Append();
        if (states.contains(u"last"_s)) grid->SetSelectedIndex(3);
        if (states.contains(u"changed"_s)) {
            TField* state = grid->DataSet()->FieldByName(u"NM_EST"_s);
            grid->DataSet()->Edit();
            state->SetAsString(state->AsString() == u"MG" ? u"RJ"_s : u"MG"_s);
        }
        if (states.contains(u"editor"_s)) grid->SetEditorMode(true);
    }
    if (states.contains(u"open"_s)) Press(VK_DOWN);
    if (states.contains(u"typed"_s)) TypeText(u"dois"_s);
    Settle();
}

QString Teclas::Effect(TForm* form, TControl* control, const QString& pressed, const QString& textBefore) {
    QStringList effect;
    if (!pressed.isEmpty()) effect << pressed;
    if (form->ActiveControl()) effect << form->ActiveControl()->Name();
    if (auto* cad = dynamic_cast<TFrmCad_Master*>(form); cad && cad->PageControl->ActivePageIndex() > 0)
        return u"page 1"_s;
    if (const auto* combo = dynamic_cast<TComboBox*>(control); combo && combo->DroppedDown())
        effect << u"list"_s;
    if (auto* lookup = dynamic_cast<TDBLookupComboBox*>(control)) {
        if (lookup->ListVisible()) effect << u"list"_s;
        if (lookup->KeyValue().IsNull()) effect << u"empty"_s;
    }
    if (const auto* grid = dynamic_cast<TDBGrid*>(control)) {
        effect << u"column %1"_s.arg(grid->SelectedIndex());
        if (grid->DataSet()->State() != dsBrowse) effect << u"editing"_s;
    }
    if (const auto* values = dynamic_cast<TValueListEditor*>(control))
        effect << u"row %1"_s.arg(values->Row()) << values->Strings()->Values(u"Dois"_s);
    if (textBefore != control->Widget()->property("plainText").toString()) effect << u"line"_s;
    return effect.join(u' ');
}

QString Teclas::Stroke(bool cad, const QStringList& arguments) {
    const QStringList states = arguments[1].split(u", "_s);
    TForm* form = nullptr;
    if (cad) {
        form = NewForm<TFrmTeclasCad>(Main, &Module, Rows(Main));
    } else {
        form = NewForm<TFrmTeclas<TFrmEnt_Master>>(Main, &Module, Module.Info(), QString());
        form->SetClientWidth(500);
        form->SetClientHeight(300);
    }
    auto* registration = dynamic_cast<TFrmTeclasCad*>(form);
    TControl* parent = registration ? static_cast<TControl*>(registration->TabSheet1) : form;
    TDataSource* source = registration ? registration->MainDS : Source(Rows(form));
    if (!registration) source->DataSet()->Edit();
    Put<TEdit>(form, parent, "Antes", 60);
    TControl* control = MakeKind(arguments[0], form, parent, source, states);
    Put<TEdit>(form, parent, "Depois", 200);
    form->Show();
    Bring(control, states, source);
    const QString before = control->Widget()->property("plainText").toString();
    Press(arguments[2]);
    Settle();
    const QString pressed =
        registration ? registration->Pressed : dynamic_cast<TFrmTeclas<TFrmEnt_Master>*>(form)->Pressed;
    const QString effect = Effect(form, control, pressed, before);
    form->Free();
    return effect;
}

TEST_F(Teclas, DoTheSameInBothMasters) {
    Run("teclado", {{u"Key"_s,
                     [&](const QStringList& a) {
                         const QString cad = Stroke(true, a), ent = Stroke(false, a);
                         return cad == ent ? cad : cad + u" / "_s + ent;
                     }},
                    {u"Registration"_s, [&](const QStringList& a) { return Stroke(true, a); }},
                    {u"Entry"_s, [&](const QStringList& a) { return Stroke(false, a); }}});
}

}  // namespace
