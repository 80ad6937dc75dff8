// The registration master's controls, bars and tabs.
#include <QPainter>

#include "forms/masters/UCad_Master.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 8;
constexpr int kButtonsTop = 3;
constexpr int kLeastButtonHeight = 21;
constexpr int kLeastButtonWidth = 65;
constexpr int kTabsTop = THeaderStrip::kHeight + 4;
constexpr int kTabsHeight = 26;
constexpr int kPagesTop = kTabsTop + kTabsHeight;
constexpr int kClientWidth = 640;
constexpr int kClientHeight = 400;

}  // namespace

void TFrmCad_Master::CreateControls() {
    TFrmBase::CreateControls();
    SetClientWidth(kClientWidth);
    SetClientHeight(kClientHeight);
    MainDS = new TDataSource(this);
    MainDS->SetName(u"MainDS"_s);
    CreatePages();
    CreateBars();
    WireForm();
}

void TFrmCad_Master::CreatePages() {
    PageControl = NewControl<TPageControl>(this, this, u"PageControl"_s);
    PageControl->SetBounds(0, kPagesTop, kClientWidth, kClientHeight - kPagesTop);
    PageControl->SetColor(Cores::Trabalho);
    PageControl->SetAnchors(akLeft | akTop | akRight | akBottom);
    TabSheet1 = new TTabSheet(this);
    TabSheet1->SetName(u"TabSheet1"_s);
    TabSheet1->SetCaption(u"Geral"_s);
    TabSheet1->SetPageControl(PageControl);
}

void TFrmCad_Master::CreateBars() {
    TBButtons = NewControl<TToolBar>(this, this, u"TBButtons"_s);
    TBButtons->SetButtonHeight(kLeastButtonHeight);
    TBButtons->SetButtonWidth(kLeastButtonWidth);
    TBButtons->SetGradient(Cores::Superficie, Cores::SuperficieEscura);
    BtnConfirmar = AddButton(u"BtnConfirmar"_s, u"Confirmar"_s, 0);
    BtnConfirmar->OnClick = [this](TComponent* sender) { BtnConfirmarClick(sender); };
    BtnCancelar = AddButton(u"BtnCancelar"_s, u"Cancelar"_s, 1);
    BtnCancelar->OnClick = [this](TComponent* sender) { BtnCancelarClick(sender); };
    BtnTabSet = NewControl<TIceTabSet>(this, this, u"BtnTabSet"_s);
    TBButtons->SetAccessibleName(u"Ações"_s);
    BtnTabSet->SetAccessibleName(u"Páginas"_s);
    BtnTabSet->OnTabSelected = [this](TIceTabSet*, TIceTab* tab) { BtnTabSetTabSelected(tab); };
}

TToolButton* TFrmCad_Master::AddButton(const UnicodeString& Name, const UnicodeString& Caption,
                                       int ImageIndex) {
    auto* button = new TToolButton(this);
    button->SetName(Name);
    button->SetCaption(Caption);
    button->SetImageIndex(ImageIndex);
    button->SetLeft(TBButtons->ButtonCount() * kLeastButtonWidth);
    button->SetParent(TBButtons);
    return button;
}

void TFrmCad_Master::WireForm() {
    OnPaint = [this](QPainter& painter) { FormPaint(painter); };
    OnResize = [this](TComponent*) { ReposBars(); };
    OnCloseQuery = [this](TComponent* sender, bool& canClose) { FormCloseQuery(sender, canClose); };
    OnShortCut = [this](TShortCutKey& key, bool& handled) { FormShortCut(key, handled); };
    OnKeyDown = [this](TComponent* sender, int& key, TShiftState shift) { FormKeyDown(sender, key, shift); };
    PageControl->OnChange = [this](TComponent*) {
        if (!Destroying()) SelectTabOf(PageControl->ActivePage());
    };
    FKeys.Cancel = [this] { BtnCancelarClick(BtnCancelar); };
    FKeys.Confirm = [this] { BtnConfirmar->Click(); };
    FKeys.Pages = [this](bool forward) { BtnTabSet->SelectNext(forward); };
}

void TFrmCad_Master::FormShortCut(TShortCutKey& Key, bool& Handled) {
    FKeys.ShortCut(Key, Handled);
}

void TFrmCad_Master::FormKeyDown(TComponent*, int& Key, TShiftState) {
    FKeys.KeyDown(Key);
}

// The base form would close on Escape; here Escape has cancelled already, or belongs to a list or a grid.
void TFrmCad_Master::FormKeyPress(TComponent*, WideChar& Key) {
    FKeys.KeyPress(Key);
}

void TFrmCad_Master::LoadBitmaps() {
    FHeader.Load(Module->ModuleResources());
    AddIcon(FOperation == kExcluir ? u"BTN_EXCLUIR"_s : u"BTN_CONFIRMAR_24"_s, rtPNG, false);
    AddIcon(u"BTN_SAIR_24"_s, rtPNG, false);
    TBButtons->SetImages(ImgLst);
}

void TFrmCad_Master::ReposBars() {
    const int width = TBButtons->sizeHint().width();
    const int left = ClientWidth() - FHeader.EndWidth() - width;
    TBButtons->SetBounds(left, kButtonsTop, width, THeaderStrip::kButtonsHeight);
    BtnTabSet->SetBounds(kMargin, kTabsTop, ClientWidth() - kMargin, kTabsHeight);
    Repaint();
}

void TFrmCad_Master::SetSize(int AHeigth, int AWidth) {
    TFrmBase::SetSize(AHeigth, AWidth);
    ReposBars();
}

void TFrmCad_Master::FormPaint(QPainter& Painter) {
    FHeader.Paint(Painter, FHeader.Lay(0, ClientWidth(), TBButtons->Left(), TBButtons->Width()));
    Painter.fillRect(0, kPagesTop - 1, ClientWidth(), 1, Cores::Fio);
}

void TFrmCad_Master::RecreateTabs(TTabSheet* Page) {
    BtnTabSet->Clear();
    for (int i = 0; i < PageControl->PageCount(); ++i) {
        const TTabSheet* page = PageControl->Pages(i);
        if (page->TabVisible()) BtnTabSet->Add(page->Caption(), i);
    }
    SelectTabOf(Page);
    // A page whose tab has gone gives way to the one whose tab is selected now.
    if (BtnTabSet->TabCount() > 0) BtnTabSetTabSelected(BtnTabSet->Tabs(BtnTabSet->TabIndex()));
}

void TFrmCad_Master::SelectTabOf(const TTabSheet* Page) {
    for (int i = 0; Page && i < BtnTabSet->TabCount(); ++i) {
        if (BtnTabSet->Tabs(i)->Tag() == Page->PageIndex()) BtnTabSet->SetTabIndex(i);
    }
}

void TFrmCad_Master::SetTabVisible(TTabSheet* Page, bool Visible) {
    Page->SetTabVisible(Visible);
    RecreateTabs(PageControl->ActivePage());
}

void TFrmCad_Master::BtnTabSetTabSelected(TIceTab* Tab) {
    if (Tab->Tag() == PageControl->ActivePageIndex()) return;
    LeavePage();
    PageControl->SetActivePageIndex(Tab->Tag());
    EnterPage();
}

// What is being typed reaches its field; a text that cannot be stored keeps its page in sight.
void TFrmCad_Master::LeavePage() {
    if (!Showing() || !PageControl->CanFocus()) return;
    try {
        PageControl->SetFocus();
    } catch (...) {
        SelectTabOf(PageControl->ActivePage());
        throw;
    }
}

void TFrmCad_Master::EnterPage() {
    if (!Showing()) return;
    for (TControl* control : PageControl->ActivePage()->Controls()) {
        if (control->TabStop() && control->CanFocus()) return control->SetFocus();
    }
}

// A control outside the pages leaves them as they are.
void TFrmCad_Master::ShowPageOf(TControl* Control) {
    if (TTabSheet* page = PageControl->PageOf(Control)) PageControl->SetActivePage(page);
}
