// The controls of the grid master: the grid and the search box, and which handler hears what.
#include "forms/browse/MedidasPesquisa.h"
#include "forms/browse/UGrid_Master.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kDebounceMs = 200;

}  // namespace

void TFrmGrid_Master::CreateControls() {
    TFrmBase::CreateControls();
    MainDS = new TDataSource(this);
    MainDS->SetName(u"MainDS"_s);
    CreateGrid();
    CreateSearchPanel();
    CreateRangePanel();
    WireSearch();
}

void TFrmGrid_Master::CreateGrid() {
    DBGrd = new TOrlaDBGrid(this);
    DBGrd->SetName(u"DBGrd"_s);
    DBGrd->SetParent(this);
    DBGrd->SetAccessibleName(u"Registros"_s);
    DBGrd->SetBounds(0, 42, ClientWidth(), ClientHeight() - 42);
    DBGrd->SetAnchors(akLeft | akTop | akRight | akBottom);
    DBGrd->SetReadOnly(true);
    DBGrd->SetDataSource(MainDS);
    DBGrd->OnEnter = [this](TComponent* sender) { DBGrdEnter(sender); };
    DBGrd->OnTitleClick = [this](TColumn* column) { DBGrdTitleClick(column); };
    DBGrd->OnColumnMoved = [this](int from, int to) { DBGrdColumnMoved(from, to); };
    DBGrd->OnGetTextColor = [this](TColumn* column, QColor& color, QFont& font) {
        DBGrdGetTextColor(column, color, font);
    };
}

void TFrmGrid_Master::CreateSearchPanel() {
    PnPesquisa = new TPanel(this);
    PnPesquisa->SetName(u"PnPesquisa"_s);
    PnPesquisa->SetParent(this);
    PnPesquisa->SetBounds(ClientWidth() - kSearchWidth - 8, 8, kSearchWidth, kPanelHeight);
    PnPesquisa->SetAnchors(akTop | akRight);
    PnPesquisa->SetColor(Cores::Trabalho);
    PnPesquisa->SetBorder(true);

    ImgPesq = new TImage(this);
    ImgCancelPesq = new TImage(this);
    ImgPesq->SetName(u"ImgPesq"_s);
    ImgCancelPesq->SetName(u"ImgCancelPesq"_s);
    for (TImage* image : {ImgPesq, ImgCancelPesq}) {
        image->SetParent(PnPesquisa);
        image->SetBounds(kSearchWidth - 21, 4, 16, 16);
        image->SetAnchors(akTop | akRight);
        image->SetResource(Module ? Module->ModuleResources() : UnicodeString(),
                           image == ImgPesq ? u"IMG_PESQ"_s : u"IMG_CANCEL_PESQ"_s);
    }
    ImgPesq->SetAccessibleName(u"Pesquisar"_s);
    ImgCancelPesq->SetAccessibleName(u"Limpar pesquisa"_s);
    ImgCancelPesq->SetHint(u"Limpar pesquisa (Esc)"_s);
    ImgCancelPesq->SetVisible(false);

    EdtPesquisa = new TMaskEdit(this);
    EdtPesquisa->SetName(u"EdtPesquisa"_s);
    EdtPesquisa->SetAccessibleName(u"Pesquisa"_s);
    EdtPesquisa->SetHint(u"Ctrl+F3 pesquisa por outra coluna"_s);
    CbPesquisa = new TComboBox(this);
    CbPesquisa->SetName(u"CbPesquisa"_s);
    CbPesquisa->SetAccessibleName(u"Pesquisa"_s);
    DpPesq2 = new TDateTimePicker(this);
    DpPesq2->SetName(u"DpPesq2"_s);
    DpPesq2->SetAccessibleName(u"Data final"_s);
    const std::initializer_list<TControl*> inputs = {EdtPesquisa, CbPesquisa, DpPesq2};
    for (TControl* input : inputs) {
        input->SetParent(PnPesquisa);
        input->SetAnchors(akLeft | akTop | akRight);
        input->SetBounds(1, 1, kSearchWidth - 2 - (input == EdtPesquisa ? 24 : 0), kPanelHeight - 2);
        input->SetVisible(input == EdtPesquisa);
    }
    EdtPesquisa->SetBorder(false);
}

void TFrmGrid_Master::CreateRangePanel() {
    PnPesquisa2 = new TPanel(this);
    PnPesquisa2->SetName(u"PnPesquisa2"_s);
    PnPesquisa2->SetParent(this);
    PnPesquisa2->SetBounds(PnPesquisa->Left(), PnPesquisa->Top(), kRangeStartWidth, kPanelHeight);
    PnPesquisa2->SetAnchors(akTop | akRight);
    PnPesquisa2->SetColor(Cores::Trabalho);
    PnPesquisa2->SetBorder(true);
    PnPesquisa2->SetVisible(false);

    EdtPesquisa2 = new TMaskEdit(this);
    EdtPesquisa2->SetName(u"EdtPesquisa2"_s);
    EdtPesquisa2->SetAccessibleName(u"Valor inicial"_s);
    EdtPesquisa2->SetBorder(false);
    DpPesq1 = new TDateTimePicker(this);
    DpPesq1->SetName(u"DpPesq1"_s);
    DpPesq1->SetAccessibleName(u"Data inicial"_s);
    const std::initializer_list<TControl*> inputs = {EdtPesquisa2, DpPesq1};
    for (TControl* input : inputs) {
        input->SetParent(PnPesquisa2);
        input->SetBounds(1, 1, kRangeStartWidth - 2, kPanelHeight - 2);
        input->SetVisible(false);
    }

    LbPesqInt = new TLabel(this);
    LbPesqInt->SetName(u"LbPesqInt"_s);
    LbPesqInt->SetParent(this);
    LbPesqInt->SetCaption(u"a"_s);
    LbPesqInt->SetAnchors(akTop | akRight);
    LbPesqInt->SetVisible(false);
}

void TFrmGrid_Master::WireSearch() {
    FTmPesquisa = new TTimer(this);
    FTmPesquisa->SetInterval(kDebounceMs);
    FTmPesquisa->SetEnabled(false);
    FTmPesquisa->OnTimer = [this](TComponent* sender) { TmPesquisaTimer(sender); };
    FTmContagem = new TTimer(this);
    FTmContagem->SetInterval(1);
    FTmContagem->SetEnabled(false);
    FTmContagem->OnTimer = [this](TComponent*) { ShowCount(); };

    for (TMaskEdit* edit : {EdtPesquisa, EdtPesquisa2}) {
        edit->OnChange = [this](TComponent* sender) { EdtPesquisaChange(sender); };
        edit->OnKeyDown = [this](TComponent* sender, int& key, TShiftState shift) {
            EdtPesquisaKeyDown(sender, key, shift);
        };
        edit->OnKeyPress = [this](TComponent* sender, WideChar& key) { EdtPesquisaKeyPress(sender, key); };
    }
    EdtPesquisa->OnEnter = [this](TComponent* sender) { EdtPesquisaEnter(sender); };
    for (TDateTimePicker* picker : {DpPesq1, DpPesq2}) {
        picker->OnChange = [this](TComponent* sender) { DpPesq1Change(sender); };
        picker->OnKeyPress = [this](TComponent* sender, WideChar& key) { EdtPesquisaKeyPress(sender, key); };
    }
    CbPesquisa->OnChange = [this](TComponent* sender) { CbPesquisaChange(sender); };
    CbPesquisa->OnKeyPress = [this](TComponent* sender, WideChar& key) { CbPesquisaKeyPress(sender, key); };
    ImgCancelPesq->OnClick = [this](TComponent* sender) { ImgCancelPesqClick(sender); };
    OnResize = [this](TComponent* sender) { FormResize(sender); };
    OnKeyDown = [this](TComponent* sender, int& key, TShiftState shift) { FormKeyDown(sender, key, shift); };
}
