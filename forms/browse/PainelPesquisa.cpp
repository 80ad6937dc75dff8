// The search box of the grid master: its keys and what it shows for each kind of column.
#include "forms/browse/CriterioPesquisa.h"
#include "forms/browse/MedidasPesquisa.h"
#include "forms/browse/UGrid_Master.h"
#include "platform/data/DataSet.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/ui/Palette.h"
#include "utils/Funcoes.h"
#include "utils/funcoes/Janelas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kHint = u"Pesquisa (F3)"_s;

}  // namespace

bool TFrmGrid_Master::ShowsHint(const TMaskEdit* Edit) const {
    return Edit->Font().italic();
}

UnicodeString TFrmGrid_Master::TypedIn(const TMaskEdit* Edit) const {
    return ShowsHint(Edit) ? UnicodeString() : Edit->Text();
}

void TFrmGrid_Master::ClearSearch() {
    QFont font = EdtPesquisa->Font();
    font.setItalic(true);
    EdtPesquisa->SetFont(font);
    EdtPesquisa->SetText({});
    EdtPesquisa2->SetText({});
    EdtPesquisa->SetFontColor(Cores::Dica);
    EdtPesquisa->SetEditMask({});
    EdtPesquisa->SetText(kHint);
    ImgPesq->SetVisible(true);
    ImgCancelPesq->SetVisible(false);
    if (SearchKindOf(FOrderField) == skNumber) {
        TDrawLock lock(this);
        ShowRange(false);
    }
    if (EdtPesquisa->Focused() || EdtPesquisa2->Focused()) DBGrd->SetFocus();
}

void TFrmGrid_Master::ShowTextSearch(TColumn* Column) {
    TDrawLock lock(this);
    const bool list = Column->PickList().Count() > 0 && SearchKindOf(FOrderField) != skNumber;
    EdtPesquisa->SetVisible(!list);
    if (list) FillPickList(Column);
    CbPesquisa->SetVisible(list);
    ShowRange(false);
}

void TFrmGrid_Master::FillPickList(TColumn* Column) {
    CbPesquisa->Items()->Clear();
    ComboValues->Clear();
    for (int i = 0; i < Column->PickList().Count(); ++i) {
        const TPickItem item = SplitPickItem(Column->PickList()[i]);
        CbPesquisa->Items()->Add(item.Shown);
        ComboValues->Add(item.Value);
    }
    CbPesquisa->SetItemIndex(0);
}

void TFrmGrid_Master::ShowDateSearch() {
    const TDateTime today = Date();
    DpPesq1->SetDate(FirstDayOfMonth(today));
    DpPesq2->SetDate(LastDayOfMonth(today));
    {
        TDrawLock lock(this);
        EdtPesquisa->SetVisible(false);
        EdtPesquisa2->SetVisible(false);
        ShowRange(true);
        DpPesq1->SetVisible(true);
        DpPesq2->SetVisible(true);
    }
    Locate({});
}

// Both panels take the place of the single one, so nothing beside them moves.
void TFrmGrid_Master::ShowRange(bool Range) {
    const int left = PnPesquisa->Left() + PnPesquisa->Width() - kSearchWidth;
    PnPesquisa2->SetBounds(left, PnPesquisa->Top(), kRangeStartWidth, kPanelHeight);
    PnPesquisa2->SetVisible(Range);
    LbPesqInt->SetVisible(Range);
    ImgPesq->SetVisible(!Range || SearchKindOf(FOrderField) == skNumber);
    if (!Range) {
        DpPesq1->SetVisible(false);
        DpPesq2->SetVisible(false);
    }
    if (Range) {
        PnPesquisa->SetBounds(left + kRangeStartWidth + kRangeGap, PnPesquisa->Top(), kRangeEndWidth,
                              kPanelHeight);
    } else {
        PnPesquisa->SetBounds(left, PnPesquisa->Top(), kSearchWidth, kPanelHeight);
    }
    FixPesqPanel();
}

void TFrmGrid_Master::FixPesqPanel() {
    const bool range = PnPesquisa->Width() == kRangeEndWidth;
    PnPesquisa2->SetTop(PnPesquisa->Top());
    PnPesquisa2->SetLeft(range ? PnPesquisa->Left() - kRangeGap - PnPesquisa2->Width() : PnPesquisa->Left());
    LbPesqInt->SetLeft(PnPesquisa2->Left() + PnPesquisa2->Width() + 3);
    LbPesqInt->SetTop(PnPesquisa->Top() + 5);
}

void TFrmGrid_Master::FormResize(TComponent*) {
    FixPesqPanel();
}

void TFrmGrid_Master::FormKeyDown(TComponent*, int& Key, TShiftState Shift) {
    if (Key == VK_F3 && (Shift & ssCtrl)) {
        Key = 0;
        OrderByNeighbour(Shift & ssShift ? -1 : 1);
    } else if (Key == VK_F3) {
        Key = 0;
        const std::initializer_list<TControl*> inputs = {EdtPesquisa2, DpPesq1, CbPesquisa, EdtPesquisa};
        for (TControl* input : inputs) {
            if (!input->CanFocus()) continue;
            input->SetFocus();
            return;
        }
    } else if (Key == VK_F5) {
        Key = 0;
        MainDataSet()->Close();
        MainDataSet()->Open();
        MainDataSet()->First();
        GetRecordCount();
    }
}

bool TFrmGrid_Master::ListIsOpen() const {
    const bool dates = DpPesq1->Visible();
    return CbPesquisa->DroppedDown() || (dates && (DpPesq1->DroppedDown() || DpPesq2->DroppedDown()));
}

void TFrmGrid_Master::FormKeyPress(TComponent* Sender, WideChar& Key) {
    if (ListIsOpen()) return;
    if (Key == VK_ESCAPE) {
        Key = 0;
        const bool searching = (EdtPesquisa->Focused() || EdtPesquisa2->Focused()) && !ShowsHint(EdtPesquisa);
        if (searching) {
            ClearSearch();
        } else {
            Close();
        }
    } else if (DBGrd->Focused() && IsKeyCharacter(Key) && EdtPesquisa->CanFocus()) {
        EdtPesquisa->SetFocus();
        EdtPesquisaKeyPress(Sender, Key);
        auto* edit = dynamic_cast<TMaskEdit*>(ActiveControl());
        if (Key != 0 && edit) {
            edit->SetText(edit->Text() + Key);
            edit->CaretToEnd();
            Key = 0;
        }
    }
    TFrmBase::FormKeyPress(Sender, Key);
}

// In a list the box just typed in counts; a numeric column has two.
void TFrmGrid_Master::EdtPesquisaChange(TComponent* Sender) {
    if (ShowsHint(EdtPesquisa)) return;
    ImgPesq->SetVisible(false);
    ImgCancelPesq->SetVisible(true);
    const UnicodeString text = EdtPesquisa->Text();
    if (FVisType == vtList) {
        Locate(Sender == EdtPesquisa2 ? EdtPesquisa2->Text() : text);
    } else if (!text.isEmpty() || PnPesquisa2->Visible()) {
        FSearchTerm = text;
        LookingForRecords = true;
        FTmPesquisa->SetEnabled(false);
        FTmPesquisa->SetEnabled(true);
    }
}

void TFrmGrid_Master::EdtPesquisaEnter(TComponent*) {
    if (EdtPesquisa->Text() != kHint || !ShowsHint(EdtPesquisa)) return;
    EdtPesquisa->SetText({});
    QFont font = EdtPesquisa->Font();
    font.setItalic(false);
    EdtPesquisa->SetFont(font);
    EdtPesquisa->SetFontColor(Cores::Texto);
    if (SearchKindOf(FOrderField) != skNumber) return;
    {
        TDrawLock lock(this);
        DpPesq1->SetVisible(false);
        DpPesq2->SetVisible(false);
        EdtPesquisa->SetVisible(true);
        EdtPesquisa2->SetVisible(true);
        ShowRange(true);
    }
    EdtPesquisa2->SetFocus();
}

void TFrmGrid_Master::EdtPesquisaKeyDown(TComponent*, int& Key, TShiftState) {
    if (Key != VK_UP && Key != VK_DOWN) return;
    const bool up = Key == VK_UP;
    Key = 0;
    if (!DataIsOpen()) return;
    if (up) {
        MainDataSet()->Prior();
    } else {
        MainDataSet()->Next();
    }
}

void TFrmGrid_Master::EdtPesquisaKeyPress(TComponent*, WideChar& Key) {
    if (ListIsOpen()) return;
    if (Key == VK_RETURN) {
        Key = 0;
        if (EdtPesquisa2->Focused()) {
            EdtPesquisa->SetFocus();
        } else if (DpPesq1->Focused()) {
            DpPesq2->SetFocus();
        } else {
            DBGrd->SetFocus();
        }
        return;
    }
    if (dynamic_cast<TIntegerField*>(FOrderField) || dynamic_cast<TLargeintField*>(FOrderField)) {
        OnlyInteger(Key);
    } else if (SearchKindOf(FOrderField) == skNumber) {
        const auto* edit = dynamic_cast<TMaskEdit*>(ActiveControl());
        GetDecSeparator(Key);
        const bool separator = Key == FormatSettings.DecimalSeparator;
        if (separator && edit && edit->Text().contains(QChar(Key))) Abort();
        if (!separator) OnlyInteger(Key);
    }
}

void TFrmGrid_Master::TmPesquisaTimer(TComponent*) {
    FTmPesquisa->SetEnabled(false);
    if (ShowsHint(EdtPesquisa)) FSearchTerm.clear();
    Locate(FSearchTerm);
}

void TFrmGrid_Master::DpPesq1Change(TComponent*) {
    Locate({});
}

void TFrmGrid_Master::CbPesquisaChange(TComponent*) {
    if (CbPesquisa->ItemIndex() >= 0) Locate((*ComboValues)[CbPesquisa->ItemIndex()]);
}

// The item shown at first has not been searched for yet.
void TFrmGrid_Master::CbPesquisaKeyPress(TComponent* Sender, WideChar& Key) {
    if (Key == VK_RETURN && !ListIsOpen()) CbPesquisaChange(Sender);
    EdtPesquisaKeyPress(Sender, Key);
}

void TFrmGrid_Master::ImgCancelPesqClick(TComponent*) {
    ClearSearch();
}

void TFrmGrid_Master::DBGrdEnter(TComponent*) {
    FinishSearch();
    if (EdtPesquisa->Text().trimmed().isEmpty() && EdtPesquisa2->Text().trimmed().isEmpty()) ClearSearch();
}
