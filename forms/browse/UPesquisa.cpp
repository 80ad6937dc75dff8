#include "forms/browse/UPesquisa.h"

#include <algorithm>

#include "forms/browse/CriterioPesquisa.h"
#include "forms/browse/UGrid_Master.h"
#include "platform/data/Query.h"
#include "platform/ui/ListBoxes.h"
#include "sql/SQLParse.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kExcluded = u"#0"_s;

// Fields that are searched by a date picker; a time of day is typed.
bool IsDate(const TField* field) {
    return dynamic_cast<const TDateField*>(field) || dynamic_cast<const TSQLTimeStampField*>(field);
}

// What the user reads in the grid's list of values stands for the value behind it.
UnicodeString FromPickList(TDBGridColumns& columns, const TField& field, const UnicodeString& text) {
    for (int i = 0; i < columns.Count(); ++i) {
        if (columns[i]->Field() != &field) continue;
        for (const UnicodeString& line : columns[i]->PickList().ToArray()) {
            const TPickItem item = SplitPickItem(line);
            if (item.Shown.compare(text, Qt::CaseInsensitive) == 0) return item.Value;
        }
    }
    return text;
}

}  // namespace

TFrmGrid_Master* TFrmPesquisa::GridForm() const {
    auto* form = dynamic_cast<TFrmGrid_Master*>(Opener());
    if (!form) throw Exception(u"The filter dialog needs a grid form as its owner."_s);
    return form;
}

TDataSet* TFrmPesquisa::DataSet() const {
    return GridForm()->MainDS->DataSet();
}

TField* TFrmPesquisa::ChosenField() const {
    const int index = LstCampos->ItemIndex();
    return index < 0 ? nullptr : DataSet()->FieldByName(FCampos[size_t(index)]);
}

void TFrmPesquisa::FormCreate(TComponent* Sender) {
    TFrmBase::FormCreate(Sender);
    GridForm()->FinishSearch();
    SetCaption(Caption() + u" ["_s + GridForm()->Caption() + u"]"_s);
    FillFields();
    CbOperadorChange(this);
}

void TFrmPesquisa::FillFields() {
    TStringArray labels;
    for (const TField* field : DataSet()->Fields()) {
        if (field->FieldName() == u"TF_DEL" || field->Origin() == kExcluded) continue;
        FCampos.push_back(field->FieldName());
        labels.push_back(field->DisplayLabel());
    }
    LstCampos->Items()->Assign(labels);
    LstCampos->SetItemIndex(0);
}

void TFrmPesquisa::LstCamposClick(TComponent*) {
    const TField* field = ChosenField();
    const int values = ValoresDoOperador(CbOperador->ItemIndex());
    const bool date = IsDate(field);
    EValor1->SetEditMask(field ? field->EditMask() : UnicodeString());
    EValor2->SetEditMask(field ? field->EditMask() : UnicodeString());
    DpValor1->SetVisible(date && values > 0);
    DpValor2->SetVisible(date && values > 1);
    EValor1->SetVisible(!date && values > 0);
    EValor2->SetVisible(!date && values > 1);
    Label3->SetFocusControl(date ? static_cast<TControl*>(DpValor1) : EValor1);
    Label4->SetFocusControl(date ? static_cast<TControl*>(DpValor2) : EValor2);
    if (field) DropInvalidValues(field);
}

// What was typed for another field stays only where it is a value of this one too.
void TFrmPesquisa::DropInvalidValues(const TField* field) {
    for (TMaskEdit* edit : {EValor1, EValor2}) {
        try {
            if (!edit->Text().isEmpty()) StrToVarType(edit->Text(), *field);
        } catch (const EConvertError&) {
            edit->SetText({});
        }
    }
}

void TFrmPesquisa::CbOperadorChange(TComponent* Sender) {
    const int values = ValoresDoOperador(CbOperador->ItemIndex());
    Label3->SetCaption(values == 2 ? u"&Valor Inicial"_s : u"&Valor"_s);
    Label3->SetVisible(values > 0);
    Label4->SetVisible(values > 1);
    LstCamposClick(Sender);
}

void TFrmPesquisa::EValor1Exit(TComponent* Sender) {
    auto* edit = static_cast<TMaskEdit*>(Sender);
    const auto* field = dynamic_cast<TNumericField*>(ChosenField());
    if (!field) return;
    if (edit->Text().trimmed().isEmpty()) edit->SetText(u"0"_s);
    TypedValue(edit, *field);
}

Variant TFrmPesquisa::TypedValue(TMaskEdit* edit, const TField& field) {
    try {
        return StrToVarType(FromPickList(GridForm()->DBGrd->Columns(), field, edit->Text()), field);
    } catch (const EConvertError&) {
        edit->SelectAll();
        throw Exception(u"Valor inválido."_s);
    }
}

Variant TFrmPesquisa::ValueOf(TMaskEdit* edit, TDateTimePicker* picker, const TField& field) {
    if (picker->Visible()) return picker->Date();
    if (!edit->Visible()) return {};
    try {
        EValor1Exit(edit);
        return TypedValue(edit, field);
    } catch (const Exception&) {
        if (edit->CanFocus()) edit->SetFocus();
        throw;
    }
}

TFiltro TFrmPesquisa::FilterFromControls() {
    TFiltro filter;
    filter.Campo = ChosenField();
    if (!filter.Campo) throw Exception(u"Escolha o campo a ser filtrado."_s);
    filter.DisplayText = filter.Campo->DisplayLabel();
    EscolherOperador(filter, CbOperador->ItemIndex());
    EscolherOrdem(filter, std::max(0, CbOrdem->ItemIndex()));
    filter.Valor1 = ValueOf(EValor1, DpValor1, *filter.Campo);
    filter.Valor2 = ValueOf(EValor2, DpValor2, *filter.Campo);
    return filter;
}

void TFrmPesquisa::AdicionarClick(TComponent*) {
    AdicionarFiltro(FilterFromControls());
    MostraFiltros();
    LstFiltros->SetItemIndex(LstFiltros->Items()->Count() - 1);
    AplicaFiltros();
}

void TFrmPesquisa::AdicionarFiltro(const TFiltro& Filtro) {
    JuntarFiltro(FFiltros, Filtro);
}

void TFrmPesquisa::RemoverFiltro(int Index) {
    if (Index < 0 || Index >= int(FFiltros.size())) return;
    FFiltros.erase(FFiltros.begin() + Index);
}

void TFrmPesquisa::RemoverClick(TComponent*) {
    if (LstFiltros->ItemIndex() < 0) return;
    RemoverFiltro(LstFiltros->ItemIndex());
    MostraFiltros();
    AplicaFiltros();
}

void TFrmPesquisa::LimparClick(TComponent*) {
    FFiltros.clear();
    MostraFiltros();
    AplicaFiltros();
}

void TFrmPesquisa::MostraFiltros() {
    TStringArray lines;
    for (const TFiltro& filter : FFiltros) lines.push_back(TextoDoFiltro(filter));
    const int chosen = LstFiltros->ItemIndex();
    LstFiltros->Items()->Assign(lines);
    LstFiltros->SetItemIndex(std::min(chosen, int(lines.size()) - 1));
}

void TFrmPesquisa::AplicaFiltros() {
    auto* query = dynamic_cast<TFDCustomQuery*>(DataSet());
    if (!query) throw EDatabaseError(u"The filter dialog needs a query dataset."_s);
    UnicodeString statement = query->SQL()->Text();
    SetSQLWhere(statement, CondicaoDosFiltros(GridForm()->Where(), FFiltros));
    SetSQLOrder(statement, OrdemDosFiltros(FFiltros));
    query->SQL()->SetText(statement);
    for (const auto& [name, value] : ParametrosDosFiltros(FFiltros))
        query->ParamByName(name)->SetValue(value);
    for (size_t i = 0; i < GridForm()->Params.size(); ++i) {
        query->ParamByName(GridForm()->Params[i])->SetValue(GridForm()->ParamValues[i]);
    }
    query->Close();
    GridForm()->GetRecordCount();  // while it cannot be opened there is none
    query->Open();
    GridForm()->GetRecordCount();
}
