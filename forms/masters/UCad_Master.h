// The registration master: edits one record of a table. It includes, changes, deletes or only shows the
// record, puts its state into its caption, checks and confirms, marks as deleted where the table has TF_DEL,
// and brings the view master that opened it up to date when it closes.
//
//     class TFrmCadClientes : public TFrmCad_Master {
//       public:
//         using TFrmCad_Master::TFrmCad_Master;
//       protected:
//         void CreateControls() override;      // the dataset of MainDS and the controls on the pages
//     };
//
// Two arrangements of the data:
//   a query of its own   MainDS shows the form's own query; with ktFieldProviderFlag its WHERE clause becomes
//                        the key of the view's current record (for a new record: a key that no record has)
//   a shared dataset     MainDS shows the view's dataset, edited in place
//
// A record with items: the items are a second query of the form, with cached updates (Query.h), on a grid of
// a page. The host applies them in the record's after-post event, so that all is one transaction, and the
// form commits them. Closing asks when any dataset of the form would lose something.
//
// The form's modes are those of MasterRules.h; the mode never changes. Enter, arrows, Page Up, Page Down, F12
// and Escape work as EditKeys.h tells.
#pragma once

#include "forms/base/HeaderStrip.h"
#include "forms/base/UFrmBase.h"
#include "forms/masters/EditKeys.h"
#include "forms/masters/MasterRules.h"
#include "platform/data/DataSource.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/ToolBar.h"

class TNumericField;
class TPanel;
class TFrmViz_Master;

// Told of the dataset and the mode before a record is posted or deleted.
using TModuleDBNotifyEvent = std::function<void(TDataSet* DataSet, unsigned char Mode)>;

class TFrmCad_Master : public TFrmBase {
  public:
    // Owner is normally the view master, which stays in sight behind the form. LoadWindowConfig: the geometry
    // is restored and saved. Building the form raises when MainDS has no dataset, and when KeyType is
    // ktFieldProviderFlag but the owner is no view master, or the view's record is not there any more.
    TFrmCad_Master(TComponent* Owner, TModuleInstance* Module, unsigned char Mode, TKeyType KeyType,
                   bool LoadWindowConfig);

    // Called in place of the built-in deletion (FOnDelete), or before the record is posted (FOnConfirm).
    TModuleDBNotifyEvent FOnConfirm;
    TModuleDBNotifyEvent FOnDelete;

    unsigned char Operation() const { return FOperation; }

    // Value of the first field of the record just posted; 0 when it is no number above 0.
    int64_t LastID() const { return FLastID; }

    // Checks required fields and document numbers (Critica.h): a box, the focus on the fault, and EAbort.
    virtual void CriticaBranco();

    // Rounds a float field to the module's decimals: those of quantities when its tag is 3, else those of
    // values.
    void FloatFieldValidate(TField* Field);

    // Fills the tab strip from the pages whose tabs are visible and selects the tab of `Page`.
    void RecreateTabs(TTabSheet* Page);
    void SetTabVisible(TTabSheet* Page, bool Visible);

    // Height, then width, and the bars in their places.
    void SetSize(int AHeigth, int AWidth);

    // Puts the button bar at the right end of the strip and gives the tabs below it the form's width.
    void ReposBars();

    // Loads the strip's pictures and the icons of the two buttons.
    void LoadBitmaps();

    TPageControl* PageControl = nullptr;
    TTabSheet* TabSheet1 = nullptr;
    TToolBar* TBButtons = nullptr;
    TToolButton* BtnConfirmar = nullptr;  // null in view mode
    TToolButton* BtnCancelar = nullptr;
    TIceTabSet* BtnTabSet = nullptr;
    TDataSource* MainDS = nullptr;

    // Handlers of the form and its controls. FormClose also clears Application->OnActiveControlChange: a host
    // that listens sets it again.
    void FormClose(TComponent* Sender, TCloseAction& Action) override;
    void FormKeyPress(TComponent* Sender, WideChar& Key) override;
    virtual void FormCloseQuery(TComponent* Sender, bool& CanClose);
    virtual void FormShortCut(TShortCutKey& Key, bool& Handled);
    virtual void FormKeyDown(TComponent* Sender, int& Key, TShiftState Shift);
    virtual void FormPaint(QPainter& Painter);
    virtual void BtnConfirmarClick(TComponent* Sender);
    virtual void BtnCancelarClick(TComponent* Sender);
    void BtnTabSetTabSelected(TIceTab* Tab);

  protected:
    void CreateControls() override;
    void Construct() override;

    bool FConfirmToPost = true;    // ask "Confirma os dados?" before a new record is posted
    TPanel* FLinePanel = nullptr;  // kept for descendants
    TDataSet* FMainDataSet = nullptr;
    TKeyType FKeyType;
    UnicodeString FSQL;    // the query's text as designed, when the form rewrote it
    UnicodeString FWhere;  // the condition for the key fields
    bool FClose = false;   // closing through a confirmed action

  private:
    void CreateBars();
    void CreatePages();
    TToolButton* AddButton(const UnicodeString& Name, const UnicodeString& Caption, int ImageIndex);
    void WireForm();
    void SelectTabOf(const TTabSheet* Page);
    void LeavePage();
    void EnterPage();
    void CheckBinding() const;
    void ShowMode();
    void ShowViewMode();
    void OpenOwnRecord();
    [[noreturn]] void RefuseGoneRecord() const;
    void PrepareOwned();
    void PrepareFields(const TDataSet& DataSet);
    void PrepareNumber(TNumericField& Field);
    void BeginEditing();
    void CommitActiveControl();
    static bool Asks(const UnicodeString& Question);
    void ConfirmRecord();
    void PostRecord();
    void ConfirmDeletion();
    void DeleteRecord();
    void CloseConfirmed();
    void ShowPageOf(TControl* Control);
    bool IsModified() const;
    void CommitItems() const;
    TFrmViz_Master* OwnerView() const;
    bool SharesDataSet() const;
    TClosing Closing() const;
    void UpdateOwner();
    void BringUpToDate(TOwnerUpdate::TStep Step, TFrmViz_Master* View);
    void FilterOwner(TFrmViz_Master& View);

    unsigned char FOperation;
    int64_t FLastID = 0;
    bool FRounding = false;
    TEditKeys FKeys{this};
    THeaderStrip FHeader{THeaderStrip::ButtonsRight};
};
