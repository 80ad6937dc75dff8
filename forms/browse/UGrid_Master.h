// The grid master: common ancestor of every screen that shows records in a grid (the view master and the
// lookup search form derive from it).
//
// It binds a grid to the form's main data source, keeps one column as the ordering and search column (marked
// with "»" in its title) and offers an incremental search over it. In vtFilter mode each search re-queries
// the main dataset through the filter builder, 200 ms after the last key; in vtList mode the dataset is
// opened once and each key moves to the first record that begins with what was typed.
//
// A derived form makes its columns and its dataset in CreateControls:
//
//     void TFrmClientes::CreateControls() {
//         TFrmViz_Master::CreateControls();
//         FQuery = new TFDQuery(this);                // its Tag is the index of the default ordering field
//         …
//         MainDS->SetDataSet(FQuery);
//         DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 280);
//     }
//
// Keys: F3 goes to the search box, Ctrl+F3 and Ctrl+Shift+F3 take the next and the previous column to search
// in, as a click on its title does; F5 reads everything anew; Escape clears the search, then closes.
#pragma once

#include "db/UDBUtils.h"
#include "forms/base/UFrmBase.h"
#include "platform/data/DataLink.h"
#include "platform/data/DataSource.h"
#include "platform/rtl/Strings.h"
#include "platform/rtl/Variant.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/StdCtrls.h"
#include "platform/ui/Timer.h"

class TFrmGrid_Master : public TFrmBase {
  public:
    // The form takes the place of its opener when HideParent is true; its window state is always remembered.
    TFrmGrid_Master(TComponent* AOwner, TModuleInstance* AModule, bool HideParent,
                    TVizsualizationType AVisType, TKeyType AKeyType);

    // Runs the search: re-queries (vtFilter, where the value comes from the search box) or moves to the first
    // record that begins with Value, whatever its case (vtList; an empty Value goes to the first record).
    void Locate(const UnicodeString& Value);

    // Runs the last search again.
    void RefreshData() { Locate(FSearchTerm); }

    // Runs a search that still waits for its 200 ms now. Call it before acting on the current record.
    void FinishSearch();

    // Puts the search box back to its hint "Pesquisa (F3)".
    void ClearSearch();

    // Makes a column the ordering and search column. Raises when the index is out of range; a column whose
    // field has the origin "#0" cannot be searched and aborts silently. A date column is searched at once
    // (the current month).
    void SetOrderFieldIndex(int Index);

    // The same as a click on the title of the next (1) or the previous (-1) column that is shown and can be
    // searched, going round; nothing when there is no other.
    void OrderByNeighbour(int Step);

    // Takes the column of the dataset's Tag (the index of a field), or the first one.
    void GetOrderField();

    // The column's caption, without the marker of the ordering column.
    UnicodeString GetColumnTitle(int Index) const;
    // Sets that caption; the ordering column keeps its marker.
    void SetColumnTitle(int Index, const UnicodeString& Title);

    // Brings the count label up to date: at once when all rows are here, else one step after the next paint;
    // until then the label is blank.
    void GetRecordCount();

    // A named parameter of the main query, set at every search.
    void AddParam(const UnicodeString& Param, const Variant& Value);

    // Names a key field by hand. Raises when the dataset's own fields carry the key flag.
    void AddPrimaryKeyField(const UnicodeString& FieldName);

    // Collects the key fields into PrimaryKey; returns how many. Raises "Nenhuma chave primaria foi
    // definida." when there is none.
    int GetPrimaryKey();

    // Widens every column to its title.
    void FixColsWidths();

    // Places the second search panel beside the first.
    virtual void FixPesqPanel();

    TVizsualizationType VisType() const { return FVisType; }
    TKeyType KeyType() const { return FKeyType; }
    const UnicodeString& OrderDesc() const { return FOrderDesc; }
    TField* OrderField() const { return FOrderField; }
    int RecordCount() const { return FRecordCount; }
    int OrderFieldIndex() const { return FOrderFieldIndex; }
    // Whether records can be searched for in a column: its field's origin is not "#0".
    bool CanOrderBy(int Index) const;
    // A further condition of every search. It must not hold the letters WHERE, as a sub-select does: the next
    // search would cut the statement there.
    const UnicodeString& Where() const { return FWhere; }
    void SetWhere(const UnicodeString& where) { FWhere = where; }
    const UnicodeString& OrderBy() const { return FOrderBy; }
    void SetOrderBy(const UnicodeString& items) { FOrderBy = items; }
    bool ShowDeleted() const { return FShowDeleted; }
    void SetShowDeleted(bool show) { FShowDeleted = show; }

    TOrlaDBGrid* DBGrd = nullptr;
    TPanel* PnPesquisa = nullptr;
    TImage* ImgPesq = nullptr;
    TImage* ImgCancelPesq = nullptr;
    TMaskEdit* EdtPesquisa = nullptr;
    TDataSource* MainDS = nullptr;
    TDateTimePicker* DpPesq1 = nullptr;
    TDateTimePicker* DpPesq2 = nullptr;
    TLabel* LbPesqInt = nullptr;
    TPanel* PnPesquisa2 = nullptr;
    TMaskEdit* EdtPesquisa2 = nullptr;
    TComboBox* CbPesquisa = nullptr;

    TStringArray Params;
    std::vector<Variant> ParamValues;
    TStringArray PrimaryKey;
    bool LookingForRecords = false;  // a search waits or runs

    // Handlers of the form and its controls.
    void FormCreate(TComponent* Sender) override;
    virtual void FormResize(TComponent* Sender);
    virtual void FormKeyDown(TComponent* Sender, int& Key, TShiftState Shift);
    void FormKeyPress(TComponent* Sender, WideChar& Key) override;
    void EdtPesquisaChange(TComponent* Sender);
    virtual void EdtPesquisaEnter(TComponent* Sender);
    void EdtPesquisaKeyDown(TComponent* Sender, int& Key, TShiftState Shift);
    void EdtPesquisaKeyPress(TComponent* Sender, WideChar& Key);
    void TmPesquisaTimer(TComponent* Sender);
    void DpPesq1Change(TComponent* Sender);
    void CbPesquisaChange(TComponent* Sender);
    void CbPesquisaKeyPress(TComponent* Sender, WideChar& Key);
    void ImgCancelPesqClick(TComponent* Sender);
    void DBGrdEnter(TComponent* Sender);
    virtual void DBGrdTitleClick(TColumn* Column);
    void DBGrdColumnMoved(int FromIndex, int ToIndex);
    void DBGrdGetTextColor(TColumn* Column, QColor& Color, QFont& Font);

  protected:
    void CreateControls() override;
    void Construct() override;
    void WndProc(TMessage& Message) override;

    // Raises "No dataset linked on data source." without one.
    TDataSet* MainDataSet() const;
    // There is a main dataset, and it is open.
    bool DataIsOpen() const { return MainDS->State() != dsInactive; }
    // The list or a calendar of the search box is open; Enter and Escape are its own then.
    bool ListIsOpen() const;
    // Makes the column the ordering one and marks its title; nothing else changes.
    void TakeOrderColumn(int Index);

    bool FSaveGrid = true;
    bool FColumnMoved = false;
    UnicodeString FSearchTerm;
    TVizsualizationType FVisType;
    TKeyType FKeyType;
    bool FCanAddKey = true;
    int FRecordCount = 0;
    int FOrderFieldIndex = -1;
    TField* FOrderField = nullptr;
    UnicodeString FOrderDesc;
    TTimer* FTmPesquisa = nullptr;
    UnicodeString FWhere;
    std::unique_ptr<TStringList> ComboValues;
    TLabel* FLabelCount = nullptr;
    bool FShowDeleted = false;
    UnicodeString FOrderBy;

  private:
    class TOrderLink;

    void CreateGrid();
    void CreateSearchPanel();
    void CreateRangePanel();
    void WireSearch();
    void WatchOrderField();
    void CmdSetMovedOff();
    void ScrollMouse(TMessage& Message);
    void FilterData();
    void LocateInList(const UnicodeString& Value);
    void SearchEnded();
    void ShowCount();
    void AdjustNumericColumns();
    void ShowTextSearch(TColumn* Column);
    void ShowDateSearch();
    void FillPickList(TColumn* Column);
    void ShowRange(bool Range);
    bool ShowsHint(const TMaskEdit* Edit) const;
    UnicodeString TypedIn(const TMaskEdit* Edit) const;

    TTimer* FTmContagem = nullptr;
    std::unique_ptr<TDataLink> FOrderLink;
};
