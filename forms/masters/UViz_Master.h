// The view master: the browse screen of a table. It shows the grid of the grid master under a header strip
// with a menu, a record count, large buttons and the search panel, and opens the table's registration form to
// add, change, delete or view one record.
//
//     class TFrmClientes : public TFrmViz_Master {
//       public:
//         TFrmClientes(TComponent* owner, TModuleInstance* module)
//             : TFrmViz_Master(owner, module, ClassOf<TFrmCadClientes>(), vtFilter, ktFieldProviderFlag) {}
//       protected:
//         void CreateControls() override;      // the dataset and the grid's columns
//     };
//
// Adding needs the user's right "New", changing "Edit" (without it the record is only shown), deleting
// "Delete". Where the dataset has a field TF_DEL, deleted records can be shown, and changing one from the
// button first asks whether to restore it. The user's arrangement of the grid is loaded when the form is
// created and saved when it is destroyed (GridConfig.h).
//
// The filter dialog (UPesquisa.h; not in vtList mode) and the field dialog (UVizFields.h) are opened from its
// menus. Printing hands the rows and the grid's layout to the printing program (GridPrint.h).
#pragma once

#include "forms/base/HeaderStrip.h"
#include "forms/browse/UGrid_Master.h"
#include "forms/masters/GridConfig.h"
#include "platform/ui/Menus.h"
#include "platform/ui/ToolBar.h"

class TFrmCad_Master;
class TFrmVizFields;

// The class of a registration form: makes one for a mode (1 include, 2 change, 3 delete, 4 view). Empty: the
// module is read-only.
using TClassCad_Master = std::function<TFrmCad_Master*(
    TComponent* Owner, TModuleInstance* Module, unsigned char Mode, TKeyType KeyType, bool LoadWindowConfig)>;

// The class reference of T, whose constructor takes those five arguments.
template <class T>
TClassCad_Master ClassOf() {
    return [](TComponent* owner, TModuleInstance* module, unsigned char mode, TKeyType keyType,
              bool loadConfig) { return NewForm<T>(owner, module, mode, keyType, loadConfig); };
}

class TFrmViz_Master : public TFrmGrid_Master {
  public:
    // The form takes its opener's place. An empty CadForm makes it read-only.
    TFrmViz_Master(TComponent* Owner, TModuleInstance* Module, TClassCad_Master CadForm,
                   TVizsualizationType VisType, TKeyType KeyType);

    // Adds a button to TBButtons, owned by the form, with an icon of the module's resources; Position is its
    // place among the buttons (0 first), below 0 the end. Raises EResNotFound when the icon is missing.
    TToolButton* CreateButton(const UnicodeString& Name, const UnicodeString& Caption,
                              const UnicodeString& IconName, int Position,
                              std::function<void(TComponent*)> OnClick);

    // Frees the first button of that exact name, if there is one.
    void DestroyButton(const UnicodeString& Name);

    // Moves a button before the one now at Position (0 .. ButtonCount - 1; others change nothing).
    void SetButtonPosition(TToolButton* Button, int Position);

    // Index of a module icon in ImgLst; an icon is added once, whatever the case of its name.
    int LoadIcon(const UnicodeString& IconName);

    // Loads the strip's pictures from the module and the five button icons from the host into ImgLst.
    void LoadBitmaps();

    // Sizes the button bar by its visible buttons, and the form's least width by the strip.
    void FixToolBarSize();

    // Opens the registration form for a mode. With a message or an exception, and without a form, when there
    // is no registration form, no record (modes 2 to 4) or no primary key.
    void CreateCad(unsigned char Mode);

    // Goes to the record that the module's search result names (ResearchFields, ResearchValues).
    void GoToSearchResult();

    // Goes to the record whose key fields have these values: in vtFilter mode it is queried alone, in vtList
    // mode located. Raises for a field that the dataset lacks.
    void GoToRecord(const TStringArray& Fields, const TStringArray& Values);

    // The user's arrangement of the grid, kept as window properties.
    void SaveGridConfig();
    void LoadGridConfig();
    int GetColumnWidth(int Column) { return StoredColumnWidth(*this, Column); }

    // Writes the two print files into the program's folder and starts the printing program there, without
    // waiting for it. EInOutError, EDatabaseError, EOSError when the program cannot be started.
    void PrintGrid();

    // Whether the current record is marked as deleted; false without TF_DEL.
    bool CurrentIsDeleted() const;

    TPanel* PnTopo = nullptr;
    TLabel* LbRegCount = nullptr;
    TPanel* PnMenu = nullptr;
    TToolBar* TBMenu = nullptr;
    TToolBar* TBButtons = nullptr;
    // Null once destroyed, BtnBuscar in vtList mode too; keys that stand for a button then do nothing.
    TToolButton* BtnNovo = nullptr;
    TToolButton* BtnAlterar = nullptr;
    TToolButton* BtnExcluir = nullptr;
    TToolButton* BtnImprimir = nullptr;
    TToolButton* BtnBuscar = nullptr;
    TMainMenu* MainMenu1 = nullptr;
    TMenuItem* Retrato1 = nullptr;
    TMenuItem* Paisagem1 = nullptr;
    TMenuItem* Imprimir1 = nullptr;
    TMenuItem* N2 = nullptr;
    TMenuItem* Sair1 = nullptr;
    TMenuItem* Novo1 = nullptr;
    TMenuItem* Alterar1 = nullptr;
    TMenuItem* Excluir1 = nullptr;
    TMenuItem* AumentarFonte1 = nullptr;
    TMenuItem* DiminuirFonte1 = nullptr;
    TMenuItem* N1 = nullptr;
    TMenuItem* ExibirRegistrosExcludos1 = nullptr;
    TMenuItem* N3 = nullptr;
    TMenuItem* Campos1 = nullptr;
    TMenuItem* RestaurarCampos1 = nullptr;
    TMenuItem* Pesquisa1 = nullptr;
    TMenuItem* Filtros1 = nullptr;
    TMenuItem* Ajuda1 = nullptr;
    TMenuItem* picosdeAjuda1 = nullptr;

    // Handlers of the form and its controls.
    void FormCreate(TComponent* Sender) override;
    void FormDestroy(TComponent* Sender) override;
    void FormKeyDown(TComponent* Sender, int& Key, TShiftState Shift) override;
    virtual void FormPaint(QPainter& Painter);
    virtual void DBGrdDblClick(TComponent* Sender);
    virtual void DBGrdKeyPress(TComponent* Sender, WideChar& Key);
    virtual void BtnNovoClick(TComponent* Sender);
    virtual void BtnAlterarClick(TComponent* Sender);
    virtual void BtnExcluirClick(TComponent* Sender);
    virtual void BtnImprimirClick(TComponent* Sender);
    void ExibirRegistrosExcludos1Click(TComponent* Sender);
    void AumentarFonte1Click(TComponent* Sender);
    void DiminuirFonte1Click(TComponent* Sender);
    void RestaurarCampos1Click(TComponent* Sender);
    void Campos1Click(TComponent* Sender);
    void Filtros1Click(TComponent* Sender);
    void Paisagem1Click(TComponent* Sender);
    void Sair1Click(TComponent* Sender);

  protected:
    void CreateControls() override;
    void Construct() override;
    void WndProc(TMessage& Message) override;

    TFrmVizFields* FFormCampos = nullptr;  // while it is open
    int FSizeOffset = 0;                   // added to the form's least width
    TPickLists PickLists;

  private:
    void CreateTop();
    void CreateButtons();
    void CreateMenu();
    using TMenuHandler = void (TFrmViz_Master::*)(TComponent*);
    TMenuItem* AddItem(TMenuItem* parent, const char16_t* name, const char16_t* caption,
                       TMenuHandler click = nullptr);
    void CreateArquivo();
    void CreateEditar();
    void CreateExibir();
    void CreatePesquisaAjuda();
    void PlaceGrid();
    void SetLeastSize();
    void InternalSetButtonPosition(TToolButton* Button, int Position);
    void OpenForChange();
    void RequireRight(const UnicodeString& Right, const UnicodeString& Refusal) const;
    bool HasRecords() const;
    void FollowOrderColumn();
    void CmdSearchResult(TMessage& Message);

    TClassCad_Master FCadForm;
    THeaderStrip FHeader{THeaderStrip::ButtonsLeft};
    std::vector<std::pair<UnicodeString, int>> FIcons;  // module icons by lower-case name
};
