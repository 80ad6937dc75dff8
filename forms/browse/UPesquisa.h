// The filter dialog of a grid form: the user picks a field, an operator, one or two values and, if wanted, a
// direction to order by. Each filter added becomes a line of the list, and the whole list is written at once
// into the WHERE and ORDER BY clauses of the grid form's main query, which is opened anew.
//
//     NewForm<TFrmPesquisa>(gridForm, gridForm->Module, gridForm->Module->Info(), false, true, u""_s);
//
// The opener must be a TFrmGrid_Master. Its own criteria (Where) and parameters stay in force; removing all
// filters brings back the query without them. Records marked as deleted are among the results, struck out,
// unless the criteria leave them out. Enter adds the filter, Escape closes the dialog.
#pragma once

#include "forms/base/UFrmBase.h"
#include "forms/browse/Filtros.h"

class TButton;
class TComboBox;
class TDataSet;
class TDateTimePicker;
class TFrmGrid_Master;
class TImage;
class TLabel;
class TListBox;
class TMaskEdit;

class TFrmPesquisa : public TFrmBase {
  public:
    using TFrmBase::TFrmBase;

    // Appends a filter; the list on screen and the query follow with the two below.
    void AdicionarFiltro(const TFiltro& Filtro);
    // `Index` from 0; others change nothing. Later filters move down one place.
    void RemoverFiltro(int Index);
    const std::vector<TFiltro>& Filtros() const { return FFiltros; }

    // Writes the list of filters on screen.
    void MostraFiltros();
    // Writes clauses and parameters, opens the query and brings the record count up to date. EFDError; the
    // filters stay in the list.
    void AplicaFiltros();

    TImage* Image1 = nullptr;
    TLabel* LbDescriaco = nullptr;
    TLabel* Label1 = nullptr;  // fields
    TLabel* Label2 = nullptr;  // operator
    TLabel* Label3 = nullptr;  // first value
    TLabel* Label4 = nullptr;  // second value
    TLabel* Label5 = nullptr;  // order
    TLabel* Label6 = nullptr;  // filters
    TListBox* LstCampos = nullptr;
    TComboBox* CbOperador = nullptr;
    TMaskEdit* EValor1 = nullptr;
    TMaskEdit* EValor2 = nullptr;
    TDateTimePicker* DpValor1 = nullptr;
    TDateTimePicker* DpValor2 = nullptr;
    TComboBox* CbOrdem = nullptr;
    TListBox* LstFiltros = nullptr;
    TButton* Adicionar = nullptr;
    TButton* Remover = nullptr;
    TButton* Limpar = nullptr;

    void FormCreate(TComponent* Sender) override;
    void LstCamposClick(TComponent* Sender);
    void CbOperadorChange(TComponent* Sender);
    // Also of the second value. Exception "Valor inválido.", which keeps the focus in the edit.
    void EValor1Exit(TComponent* Sender);
    void AdicionarClick(TComponent* Sender);
    void RemoverClick(TComponent* Sender);
    void LimparClick(TComponent* Sender);

  protected:
    void CreateControls() override;

  private:
    void CreateHeader();
    void CreateFields();
    void CreateValues();
    void CreateList();
    void Wire();
    TLabel* AddLabel(const UnicodeString& name, const UnicodeString& text, int left, int top,
                     TControl* control);

    TFrmGrid_Master* GridForm() const;
    TDataSet* DataSet() const;
    TField* ChosenField() const;
    void FillFields();
    void DropInvalidValues(const TField* field);
    Variant ValueOf(TMaskEdit* edit, TDateTimePicker* picker, const TField& field);
    Variant TypedValue(TMaskEdit* edit, const TField& field);
    TFiltro FilterFromControls();

    TStringArray FCampos;  // the field names behind the items of LstCampos
    std::vector<TFiltro> FFiltros;
};
