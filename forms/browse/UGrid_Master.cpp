#include "forms/browse/UGrid_Master.h"

#include "forms/browse/CriterioPesquisa.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

TFrmGrid_Master::TFrmGrid_Master(TComponent* AOwner, TModuleInstance* AModule, bool HideParent,
                                 TVizsualizationType AVisType, TKeyType AKeyType)
    : TFrmBase(AOwner, AModule, AModule ? AModule->Info() : TModuleInfo{}, HideParent, true),
      FVisType(AVisType),
      FKeyType(AKeyType),
      ComboValues(std::make_unique<TStringList>()) {}

TDataSet* TFrmGrid_Master::MainDataSet() const {
    if (!MainDS->DataSet()) throw Exception(u"No dataset linked on data source."_s);
    return MainDS->DataSet();
}

void TFrmGrid_Master::Construct() {
    TFrmBase::Construct();
    WatchOrderField();
    if (ImgLst) std::exchange(ImgLst, nullptr)->Free();
    ImgLst = new TImageList(this, 24, 24);
    FLabelCount = dynamic_cast<TLabel*>(FindComponent(u"LbRegCount"_s));
    DBGrd->SetHeight(ClientHeight() - (PnPesquisa->Top() + PnPesquisa->Height() + 10));
    if (FLabelCount) FLabelCount->SetLeft(ClientWidth() - FLabelCount->Width() - 8);
    SetMinWidth(PnPesquisa->Width() + 50);
}

void TFrmGrid_Master::FormCreate(TComponent* Sender) {
    TFrmBase::FormCreate(Sender);
    TDataSet* data = MainDataSet();
    if (FVisType == vtList) {
        DBGrd->SetOptions(DBGrd->Options() | dgRowSelect | dgAlwaysShowSelection);
        data->Open();
    }
    GetRecordCount();
    if (FKeyType == ktFieldProviderFlag) GetPrimaryKey();
    if (DBGrd->Columns().Count() == 0) throw Exception(u"No fields added on grid."_s);
    FixColsWidths();
    GetOrderField();
    AdjustNumericColumns();
}

void TFrmGrid_Master::Locate(const UnicodeString& Value) {
    try {
        if (FVisType == vtFilter) {
            FilterData();
        } else {
            LocateInList(Value);
        }
    } catch (...) {
        SearchEnded();
        throw;
    }
    SearchEnded();
}

void TFrmGrid_Master::SearchEnded() {
    LookingForRecords = false;
    GetRecordCount();
}

void TFrmGrid_Master::FilterData() {
    FTmPesquisa->SetEnabled(false);
    MainDataSet()->Close();
    TColumn* column = DBGrd->Columns()[FOrderFieldIndex];
    TField* field = column->Field();
    if (!field) throw EDatabaseError(u"Field '"_s + column->FieldName() + u"' not found"_s);

    TSearchInput input;
    input.Kind = SearchKindOf(field);
    input.Largest = field->Largest();
    input.Text = TypedIn(EdtPesquisa);
    input.Second = TypedIn(EdtPesquisa2);
    input.FirstDate = DateToStr(DpPesq1->Date());
    input.LastDate = DateToStr(DpPesq2->Date());
    input.PickList = CbPesquisa->Visible() && CbPesquisa->ItemIndex() >= 0;
    if (input.PickList) input.PickedValue = (*ComboValues)[CbPesquisa->ItemIndex()];
    const TSearchCriterion criterion = MakeCriterion(input);

    const std::vector<TField*> fields(criterion.Range ? 2 : 1, field);
    Filtro(MainDataSet(), fields, criterion.Values, SearchOrder(FOrderBy, GetFieldName(field)), FWhere,
           Params, ParamValues, FKeyType, FShowDeleted);
}

void TFrmGrid_Master::LocateInList(const UnicodeString& Value) {
    if (Value.isEmpty()) {
        MainDataSet()->First();
        return;
    }
    MainDataSet()->Locate(DBGrd->Columns()[FOrderFieldIndex]->FieldName(), Variant(Value),
                          loCaseInsensitive | loPartialKey);
}

void TFrmGrid_Master::FinishSearch() {
    if (FVisType == vtFilter && FTmPesquisa && FTmPesquisa->Enabled()) Locate(FSearchTerm);
}

void TFrmGrid_Master::GetRecordCount() {
    if (!FLabelCount) return;
    FTmContagem->SetEnabled(false);
    if (!DataIsOpen() || MainDataSet()->AllFetched()) {
        ShowCount();
        return;
    }
    FLabelCount->SetCaption({});
    FTmContagem->SetEnabled(true);
}

void TFrmGrid_Master::ShowCount() {
    FTmContagem->SetEnabled(false);
    if (DataIsOpen()) FRecordCount = MainDataSet()->RecordCount();
    FLabelCount->SetCaption(CountText(DataIsOpen() ? FRecordCount : 0));
}

void TFrmGrid_Master::AddParam(const UnicodeString& Param, const Variant& Value) {
    Params.push_back(Param);
    ParamValues.push_back(Value);
}

void TFrmGrid_Master::AddPrimaryKeyField(const UnicodeString& FieldName) {
    if (!FCanAddKey) throw Exception(u"Você não pode inserir uma PrimaryKey manualmente para essa tabela."_s);
    PrimaryKey.push_back(FieldName);
}

int TFrmGrid_Master::GetPrimaryKey() {
    FCanAddKey = true;
    for (const TField* field : MainDataSet()->Fields()) {
        if (!(field->ProviderFlags() & pfInKey)) continue;
        if (FCanAddKey) {
            PrimaryKey.clear();
            FCanAddKey = false;
        }
        PrimaryKey.push_back(field->FieldName());
    }
    if (PrimaryKey.empty()) throw Exception(u"Nenhuma chave primaria foi definida."_s);
    return int(PrimaryKey.size());
}

void TFrmGrid_Master::FixColsWidths() {
    const QFontMetrics metrics(DBGrd->Font());
    for (int i = 0; i < DBGrd->Columns().Count(); ++i) {
        TColumn* column = DBGrd->Columns()[i];
        const int width = metrics.horizontalAdvance(column->Title().Caption() + u"aa"_s);
        if (width > column->Width()) column->SetWidth(width);
    }
}

// Numbers stand to the right, and money and other decimals show their places although the host named no
// format.
void TFrmGrid_Master::AdjustNumericColumns() {
    for (int i = 0; i < DBGrd->Columns().Count(); ++i) {
        auto* field = dynamic_cast<TNumericField*>(DBGrd->Columns()[i]->Field());
        if (!field) continue;
        DBGrd->Columns()[i]->SetAlignment(taRightJustify);
        const bool whole = dynamic_cast<TIntegerField*>(field) || dynamic_cast<TLargeintField*>(field);
        if (!whole && field->DisplayFormat().isEmpty())
            field->SetDisplayFormat(Module->DisplayFormat(field->Tag()));
    }
}

void TFrmGrid_Master::WndProc(TMessage& Message) {
    switch (Message.Msg) {
        case MSG_ATIVADO: CmdSetMovedOff(); return;
        case WM_MOUSEWHEEL: ScrollMouse(Message); return;
        default: TFrmBase::WndProc(Message);
    }
}

void TFrmGrid_Master::ScrollMouse(TMessage& Message) {
    Message.Result = 1;  // the grid need not scroll by itself
    if (!DataIsOpen()) return;
    const int turn = int16_t(Message.WParam >> 16);
    if (turn < 1) {
        MainDataSet()->Next();
    } else {
        MainDataSet()->Prior();
    }
}

void TFrmGrid_Master::DBGrdGetTextColor(TColumn*, QColor& Color, QFont& Font) {
    const TField* deleted = MainDataSet()->FindField(u"TF_DEL"_s);
    const bool struckOut = deleted && deleted->AsString() == u"S";
    Font.setStrikeOut(struckOut);
    if (struckOut) Color = Cores::Dica;
}
