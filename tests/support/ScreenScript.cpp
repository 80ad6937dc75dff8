#include "tests/support/ScreenScript.h"

#include <gtest/gtest.h>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>

#include "platform/data/DataSet.h"
#include "platform/data/DataSource.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/Menus.h"
#include "platform/ui/SpinEdit.h"
#include "platform/ui/ToolBar.h"
#include "tests/support/Screen.h"

namespace {

using TLook = std::function<std::optional<QString>(TComponent*)>;
using TPut = std::function<bool(TComponent*, const QString&)>;

const QStringList kStates = {"unchecked", "checked", "grayed"};

template <class T>
QString Written(const T& value) {
    if constexpr (std::is_same_v<T, bool>) return value ? "yes" : "no";
    if constexpr (std::is_convertible_v<T, TComponent*>) return value ? value->Name() : "none";
    if constexpr (std::is_same_v<T, Variant>) return value.ToText();
    if constexpr (std::is_enum_v<T> || std::is_same_v<T, int>) return QString::number(int(value));
    if constexpr (std::is_convertible_v<T, QString>) return value;
}

// What `get` of a C tells; nothing for a component that is no C.
template <class C, class F>
TLook Of(F get) {
    return [get](TComponent* component) -> std::optional<QString> {
        auto* it = dynamic_cast<C*>(component);
        return it ? std::optional(Written(std::invoke(get, it))) : std::nullopt;
    };
}

// What does something with a C and the text; false for a component that is no C.
template <class C, class F>
TPut With(F act) {
    return [act](TComponent* component, const QString& text) {
        auto* it = dynamic_cast<C*>(component);
        if (it) act(it, text);
        return it != nullptr;
    };
}

template <class C, class A>
TPut To(void (C::*set)(A)) {
    return With<C>([set](C* it, const QString& text) {
        if constexpr (std::is_same_v<A, bool>) {
            (it->*set)(text == "yes");
        } else if constexpr (std::is_same_v<A, const Variant&>) {
            (it->*set)(text == "null" ? Variant::Null() : Variant(text));
        } else if constexpr (std::is_same_v<A, int>) {
            (it->*set)(text.toInt());
        } else {
            (it->*set)(text);
        }
    });
}

template <class C>
TPut Call(void (C::*act)()) {
    return With<C>([act](C* it, const QString&) { (it->*act)(); });
}

// "ID Código 60, NM »Nome 160": field, title and width of every column; those in parentheses are hidden.
QString ColumnsText(const TDBGridColumns& columns) {
    QStringList texts;
    for (int i = 0; i < columns.Count(); ++i) {
        const TColumn& column = *columns[i];
        texts << QString(column.Visible() ? "%1 %2 %3" : "(%1 %2 %3)")
                     .arg(column.FieldName(), column.Title().Caption())
                     .arg(column.Width());
    }
    return texts.join(", ");
}

const std::multimap<QString, TLook> kLooks = {
    {"Text", Of<TEdit>(&TEdit::Text)},
    {"Text", Of<TComboBox>(&TComboBox::Text)},
    {"Text", Of<TMemo>(&TMemo::Text)},
    {"Text", Of<TDBLookupComboBox>(&TDBLookupComboBox::Text)},
    {"Text", Of<QLabel>(&QLabel::text)},
    {"EditText", Of<TMaskEdit>(&TMaskEdit::EditText)},
    {"Checked", Of<TCheckBox>(&TCheckBox::Checked)},
    {"Complete", Of<TMaskEdit>(&TMaskEdit::IsComplete)},
    {"SelText", Of<QLineEdit>(&QLineEdit::selectedText)},
    {"ActiveControl", Of<TForm>(&TForm::ActiveControl)},
    {"Italic", Of<TControl>([](TControl* control) { return control->Font().italic(); })},
    {"Focused", Of<TControl>(&TControl::Focused)},
    {"HasFocus", Of<QWidget>(&QWidget::hasFocus)},
    {"CanFocus", Of<TControl>(&TControl::CanFocus)},
    {"Showing", Of<TControl>(&TControl::Showing)},
    {"Visible", Of<TControl>(&TControl::Visible)},
    {"Visible", Of<TMenuItem>(&TMenuItem::Visible)},
    {"Width", Of<TControl>(&TControl::Width)},
    {"AccessibleName", Of<TControl>(&TControl::AccessibleName)},
    {"Checked", Of<TMenuItem>(&TMenuItem::Checked)},
    {"State", Of<TCheckBox>([](TCheckBox* box) { return kStates[box->State()]; })},
    {"ItemIndex", Of<TComboBox>(&TComboBox::ItemIndex)},
    {"ItemIndex", Of<TListBox>(&TListBox::ItemIndex)},
    {"Items",
     Of<TListBox>([](TListBox* list) { return list->Items()->Text().chopped(2).replace("\r\n", ","); })},
    {"DroppedDown", Of<TComboBox>(&TComboBox::DroppedDown)},
    {"ListVisible", Of<TDBLookupComboBox>(&TDBLookupComboBox::ListVisible)},
    {"KeyValue", Of<TDBLookupComboBox>(&TDBLookupComboBox::KeyValue)},
    {"Field", Of<TDataAware>([](TDataAware* it) { return it->Field() ? it->Field()->FieldName() : "none"; })},
    {"DataSource", Of<TDataAware>(&TDataAware::DataSource)},
    {"Columns", Of<TDBGrid>([](TDBGrid* grid) { return ColumnsText(grid->Columns()); })},
    {"SelectedIndex", Of<TDBGrid>(&TDBGrid::SelectedIndex)},
    {"EditorMode", Of<TDBGrid>(&TDBGrid::EditorMode)},
    {"CurrentRow", Of<TDBGrid>(&TDBGrid::CurrentRow)},
    {"CanEdit", Of<TDBGrid>(&TDBGrid::CanEdit)},
    {"FontSize", Of<TDBGrid>(&TDBGrid::FontSize)},
    {"AsText", Of<TField>(&TField::AsString)},
    {"Null", Of<TField>(&TField::IsNull)},
};

const std::multimap<QString, TPut> kPuts = {
    {"Text", To(&TEdit::SetText)},
    {"Items", With<TComboBox>([](TComboBox* combo, const QString& text) { combo->Items()->SetText(text); })},
    {"Text", To(&TMemo::SetText)},
    {"Visible", To(&TControl::SetVisible)},
    {"Enabled", To(&TControl::SetEnabled)},
    {"TabStop", To(&TControl::SetTabStop)},
    {"TabOrder", To(&TControl::SetTabOrder)},
    {"Checked", To(&TCheckBox::SetChecked)},
    {"KeyPreview", To(&TForm::SetKeyPreview)},
    {"Default", To(&TButton::SetDefault)},
    {"Cancel", To(&TButton::SetCancel)},
    {"WantReturns", To(&TMemo::SetWantReturns)},
    {"DroppedDown", To(&TComboBox::SetDroppedDown)},
    {"MaxLength", To(&TEdit::SetMaxLength)},
    {"EditMask", To(&TMaskEdit::SetEditMask)},
    {"ReadOnly", To(&TDBGrid::SetReadOnly)},
    {"ReadOnly", To(&TField::SetReadOnly)},
    {"AutoEdit", To(&TDataSource::SetAutoEdit)},
    {"DisplayLabel", To(&TField::SetDisplayLabel)},
    {"Origin", To(&TField::SetOrigin)},
    {"EditMask", To(&TField::SetEditMask)},
    {"DisplayFormat", To(&TNumericField::SetDisplayFormat)},
    {"KeyValue", To(&TDBLookupComboBox::SetKeyValue)},
    {"ItemIndex", To(&TComboBox::SetItemIndex)},
    {"Value", To(&TSpinEdit::SetValue)},
    {"show", Call(&TControl::Show)},
    {"hide", Call(&TControl::Hide)},
    {"select", Call(&TEdit::SelectAll)},
    {"SelectedIndex", To(&TDBGrid::SetSelectedIndex)},
    {"Wheel",
     With<TDBGrid>([](TDBGrid* grid, const QString& turn) { Wheel(grid->viewport(), turn.toInt()); })},
    {"Width", To(&TControl::SetWidth)},
    {"focus", Call(&TControl::SetFocus)},
    {"free", Call(&TComponent::Free)},
    {"drop", Call(&TDBLookupComboBox::DropDown)},
    {"closeup", Call(&TDBLookupComboBox::CloseUp)},
    {"click", With<TMenuItem>([](TMenuItem* it, const QString&) { it->Action()->trigger(), Settle(); })},
    {"click", With<TControl>([](TControl* it, const QString&) { Click(it); })},
};

const std::map<QString, std::function<void(TDataSet&)>> kData = {
    {"open", &TDataSet::Open},     {"describe", &TDataSet::DescribeFields},
    {"first", &TDataSet::First},   {"last", &TDataSet::Last},
    {"next", &TDataSet::Next},     {"prior", &TDataSet::Prior},
    {"edit", &TDataSet::Edit},     {"post", &TDataSet::Post},
    {"cancel", &TDataSet::Cancel},
};

const std::map<QString, std::function<QString(TDataSet*)>> kDataLooks = {
    {"state",
     [](TDataSet* data) {
         return QStringList{"inactive", "browse", "edit", "insert"}[data->State()];
     }},
    {"rec", [](TDataSet* data) { return QString::number(data->RecNo()); }},
    {"rows", [](TDataSet* data) { return QString::number(data->RowCount()); }},
    {"count", [](TDataSet* data) { return QString::number(data->RecordCount()); }},
};

class TScreen {
  public:
    explicit TScreen(const std::function<TDataSet*()>& data) : FData(data) {}

    void Do(const QString& step) const {
        const QString verb = step.section(' ', 0, 0), rest = step.section(' ', 1);
        if (verb == "press") return Press(rest);
        if (verb == "type") return TypeText(rest);
        if (verb == "commit") return CommitText(rest);
        if (verb == "paste") return QGuiApplication::clipboard()->setText(rest), Press("Ctrl+V");
        if (rest.startsWith("is ")) {
            EXPECT_EQ(Seen(verb), rest.mid(3)) << qPrintable(step);
            return;
        }
        if (const auto known = kData.find(step); known != kData.end()) return known->second(*FData());
        const qsizetype equals = step.indexOf('=');
        const QString target = equals < 0 ? rest : step.left(equals);
        if (equals > 0 && !target.contains('.')) return Field(target)->SetAsString(step.mid(equals + 1));
        TComponent* component = At(target.section('.', 0, 0));
        const auto [begin, end] = kPuts.equal_range(equals < 0 ? verb : target.section('.', 1));
        for (auto put = begin; put != end; ++put)
            if (put->second(component, step.mid(equals + 1))) return;
        throw Exception("cannot: " + step);
    }

    QString Seen(const QString& what) const {
        if (what == "focus") return Written(Application->ActiveForm()->ActiveControl());
        if (const auto look = kDataLooks.find(what); look != kDataLooks.end()) return look->second(FData());
        TComponent* component = At(what.section('.', 0, 0));
        const auto [begin, end] = kLooks.equal_range(what.contains('.') ? what.section('.', 1) : "AsText");
        for (auto look = begin; look != end; ++look)
            if (const auto seen = look->second(component)) return *seen;
        throw Exception("cannot tell: " + what);
    }

  private:
    TField* Field(const QString& name) const { return FData()->FieldByName(name.mid(1)); }
    TComponent* At(const QString& name) const { return name.startsWith(':') ? Field(name) : Named(name); }

    std::function<TDataSet*()> FData;
};

}  // namespace

void Press(const QString& keys) {
    const QKeyCombination stroke = QKeySequence::fromString(keys)[0];
    Press(VirtualKeyOf(QKeyEvent(QEvent::KeyPress, stroke.key(), {})),
          ShiftStateOf(stroke.keyboardModifiers()));
}

TTextFunction Does(const std::function<void(const QStringList& arguments)>& act) {
    return [act](const QStringList& arguments) { return act(arguments), QString(); };
}

TComponent* Named(const QString& name) {
    std::vector<TForm*> forms = Application->Forms();
    forms.push_back(Application->ActiveForm());
    if (name == "form") return forms.back();
    for (size_t i = forms.size(); i-- > 0;) {
        if (!forms[i]) continue;
        if (forms[i]->Name() == name) return forms[i];
        if (TComponent* found = forms[i]->FindComponent(name)) return found;
    }
    throw Exception("no " + name);
}

void CheckScreenTable(const QString& path, const std::function<TDataSet*()>& data, TTextFunctions own) {
    const TScreen screen(data);
    const auto run = [&](const QStringList& steps) {
        for (const QString& step : steps) screen.Do(step);
    };
    own.merge(TTextFunctions{
        {"Do", Does(run)},
        {"Times", Does([&](const QStringList& a) {
             for (int i = 0; i < a[0].toInt(); ++i) run(a.sliced(1));
         })},
        {"Modal",
         Does([&](const QStringList& steps) { ExpectModal([=](TForm*) { EXPECT_NO_THROW(run(steps)); }); })},
        {"See",
         [&](const QStringList& whats) {
             QStringList seen;
             for (const QString& what : whats) seen << screen.Seen(what);
             return seen.join("; ");
         }},
        {"Box",
         Does([](const QStringList& a) { ExpectBox(a[0], a[1], a[2].toInt(), a.value(3, "1").toInt()); })}});
    CheckTextTable(path, own);
}
