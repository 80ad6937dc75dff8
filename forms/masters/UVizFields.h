// The field dialog of a grid: which columns are shown, their order, their titles and widths. Every change
// shows at once in the grid behind the dialog and is kept with the grid's configuration (GridConfig.h).
//
//     auto* dialog = NewForm<TFrmVizFields>(gridForm, [this] { RestaurarCampos1Click(nullptr); });
//     const bool restored = dialog->ShowModal() == 1;      // by `restore`; else it was closed
//     dialog->Free();
//
// Knows the grid form only as a grid master; restoring the defaults is the caller's.
#pragma once

#include "platform/ui/Form.h"

class TButton;
class TCheckBox;
class TCheckListBox;
class TEdit;
class TFrmGrid_Master;
class TImage;
class TLabel;
class TSpinEdit;

class TFrmVizFields : public TForm {
  public:
    // `restore` is what "Restaurar Padrão" runs.
    TFrmVizFields(TFrmGrid_Master* Owner, std::function<void()> Restore);

    // Refills the list from the grid's columns.
    void GetFields();
    // The same, then selects item `Index`; an index outside the list selects none.
    void UpdateFields(int Index);
    // Shows and hides columns by the items' checks.
    void SetProps();
    // Sets the check of "all" from the items: greyed when they differ.
    void GetState();

    TImage* Image1 = nullptr;
    TLabel* Label3 = nullptr;  // title
    TLabel* Label4 = nullptr;  // width
    TCheckListBox* CheckListBox1 = nullptr;
    TCheckBox* CheckBox1 = nullptr;
    TEdit* EdtTitle = nullptr;
    TSpinEdit* SEdtWidth = nullptr;
    TButton* Button1 = nullptr;  // up
    TButton* Button2 = nullptr;  // down
    TButton* Button3 = nullptr;  // restore

    void FormCreate(TComponent* Sender);
    void FormKeyPress(TComponent* Sender, WideChar& Key);
    void CheckListBox1ClickCheck(TComponent* Sender);
    void CheckBox1Click(TComponent* Sender);
    void EdtTitleChange(TComponent* Sender);
    void SEdtWidthChange(TComponent* Sender);
    void Button1Click(TComponent* Sender);
    void Button2Click(TComponent* Sender);
    void Button3Click(TComponent* Sender);

  protected:
    ~TFrmVizFields() override = default;
    void CreateControls() override;

  private:
    void CreateList();
    void CreateColumnControls();
    void CreateButtons();
    void Wire();
    void MoveColumn(int step);

    TFrmGrid_Master* FGridForm;
    std::function<void()> FRestore;
    bool FFilling = false;  // the dialog itself writes into its controls
};
