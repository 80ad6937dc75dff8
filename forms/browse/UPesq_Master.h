// The lookup search form: a grid of candidate records with the incremental search, from which the user
// returns one record. The values of chosen fields of that record go to a TResearchResult of the caller, and
// the form closes.
//
//     FResult = {};
//     FResult.OnDelivered = [this](const TResearchResult& result) { Town->SetValue(result.Values[0]); };
//     FResult.Form = NewForm<TFrmPesqMunicipio>(this, Module, vtFilter, &FResult, Edit->Text(), u""_s, 0);
//
// A derived form makes its dataset and columns in CreateControls and calls AddResultField for each value it
// returns. Enter or a double click returns the record, Escape closes without one. When the opener is itself a
// grid of the same records (a view master), the record's key also goes to the opener's module and the opener
// is told, so that it moves there.
//
// An oddity is kept on purpose: whether the search box starts with the text that was handed over is decided
// by the dataset's field at the place of the ordering column, not by the field of that column.
#pragma once

#include "forms/base/HeaderStrip.h"
#include "forms/browse/UGrid_Master.h"
#include "platform/ui/ToolBar.h"

class TFrmPesq_Master : public TFrmGrid_Master {
  public:
    // The opener stays in sight. AResult (not owned) receives the record; StartStr is the text that the
    // search begins with; SQLCondition is the base criterion of every search; ATag becomes the form's Tag.
    TFrmPesq_Master(TComponent* AOwner, TModuleInstance* AModule, TVizsualizationType AVisType,
                    TResearchResult* AResult, const UnicodeString& StartStr,
                    const UnicodeString& SQLCondition, int ATag);

    // Names a field whose value is returned, after those named before.
    void AddResultField(const UnicodeString& FieldName);

    // Loads the strip's pictures and the two button icons.
    void LoadBitmaps();

    TToolBar* TBButtons = nullptr;
    TToolButton* BtnRetornar = nullptr;
    TToolButton* BtnCancela = nullptr;
    TImage* ImgIcon = nullptr;
    TLabel* Label1 = nullptr;
    TLabel* Label2 = nullptr;

    // Returns the current record and closes; waits first for a search that is pending. Nothing when a record
    // was returned already. Exception, with a sentence for the host's developer or the user, without a result
    // field or without a record; EDatabaseError for a field that the dataset lacks.
    void BtnRetornarClick(TComponent* Sender);
    void BtnCancelaClick(TComponent* Sender);

    void FormCreate(TComponent* Sender) override;
    void FormDestroy(TComponent* Sender) override;
    void FormKeyPress(TComponent* Sender, WideChar& Key) override;
    void FormResize(TComponent* Sender) override;
    virtual void FormPaint(QPainter& Painter);
    void DBGrdTitleClick(TColumn* Column) override;
    void EdtPesquisaEnter(TComponent* Sender) override;

  protected:
    void CreateControls() override;

    TStringArray FResultFields;
    TResearchResult* FResult;
    UnicodeString FStartStr;

  private:
    void CreateStrip();
    TToolButton* AddButton(const UnicodeString& name, const UnicodeString& caption,
                           void (TFrmPesq_Master::*click)(TComponent*));
    void PlaceControls();
    void DeliverRecord();
    void TellOpener();

    THeaderStrip FHeader{THeaderStrip::ButtonsRight};
};
