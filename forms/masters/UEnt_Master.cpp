#include "forms/masters/UEnt_Master.h"

#include <QPainter>

#include "forms/masters/GridRoom.h"
#include "platform/ui/Palette.h"
#include "utils/funcoes/Janelas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kClientWidth = 334;
constexpr int kClientHeight = 191;
constexpr int kMostClientHeight = 517;
constexpr int kButtonsTop = 4;
constexpr int kLeastButtonHeight = 21;
constexpr int kLeastButtonWidth = 65;

}  // namespace

TFrmEnt_Master::TFrmEnt_Master(TComponent* Owner, TModuleInstance* Module, const TModuleInfo& Info,
                               const UnicodeString& TagStr)
    : TFrmBase(Owner, Module, Info, false, false, TagStr) {
    SetFormStyle(fsNormal);
    SetVisible(false);
    SetBorderStyle(bsDialog);
    SetBorderIcons(biSystemMenu | biMinimize);
    SetPosition(poOwnerFormCenter);
}

void TFrmEnt_Master::CreateControls() {
    TFrmBase::CreateControls();
    SetMinWidth(0);
    SetMinHeight(0);
    SetCaption(u"FrmEnt_Master"_s);
    SetClientWidth(kClientWidth);
    SetClientHeight(kClientHeight);
    SetMinWidth(Width());
    SetMinHeight(Height());
    SetMaxHeight(Height() + kMostClientHeight - kClientHeight);
    SetColor(Cores::Trabalho);
    TBButtons = NewControl<TToolBar>(this, this, u"TBButtons"_s);
    TBButtons->SetAccessibleName(u"Ações"_s);
    TBButtons->SetButtonHeight(kLeastButtonHeight);
    TBButtons->SetButtonWidth(kLeastButtonWidth);
    TBButtons->SetGradient(Cores::Superficie, Cores::SuperficieEscura);
    TBButtons->SetAnchors(akTop | akRight);
    BtnConfirmar = AddButton(u"BtnConfirmar"_s, u"Confirmar"_s, &TFrmEnt_Master::BtnConfirmarClick);
    BtnCancelar = AddButton(u"BtnCancelar"_s, u"Cancelar"_s, &TFrmEnt_Master::BtnCancelarClick);
    OnPaint = [this](QPainter& painter) { FormPaint(painter); };
    OnResize = [this](TComponent* sender) { FormResize(sender); };
    OnShortCut = [this](TShortCutKey& key, bool& handled) { FormShortCut(key, handled); };
    OnKeyDown = [this](TComponent* sender, int& key, TShiftState shift) { FormKeyDown(sender, key, shift); };
    FKeys.Cancel = [this] { BtnCancelar->Click(); };
    FKeys.Confirm = [this] { BtnConfirmar->Click(); };
}

TToolButton* TFrmEnt_Master::AddButton(const UnicodeString& name, const UnicodeString& caption,
                                       void (TFrmEnt_Master::*click)(TComponent*)) {
    auto* button = new TToolButton(this);
    button->SetName(name);
    button->SetCaption(caption);
    button->SetImageIndex(TBButtons->ButtonCount());
    button->OnClick = [this, click](TComponent* sender) { (this->*click)(sender); };
    button->SetParent(TBButtons);
    return button;
}

void TFrmEnt_Master::Construct() {
    TFrmBase::Construct();
    LeaveScrollBarRoom(*this);
}

void TFrmEnt_Master::FormCreate(TComponent* Sender) {
    TFrmBase::FormCreate(Sender);
    if (ImgLst) std::exchange(ImgLst, nullptr)->Free();
    ImgLst = new TImageList(this, 24, 24);
    LoadBitmaps();
    TBButtons->SetImages(ImgLst);
    const int width = TBButtons->sizeHint().width();
    TBButtons->SetBounds(ClientWidth() - width, kButtonsTop, width, THeaderStrip::kButtonsHeight);
    LockSize();
}

void TFrmEnt_Master::LockSize() {
    SetMinHeight(Height());
    SetMaxHeight(Height());
    SetMinWidth(Width());
    SetMaxWidth(Width());
}

void TFrmEnt_Master::LoadBitmaps() {
    FHeader.Load(Module->ModuleResources());
    AddIcon(u"BTN_CONFIRMAR_24"_s, rtPNG, false);
    AddIcon(u"BTN_SAIR_24"_s, rtPNG, false);
}

void TFrmEnt_Master::FixButtons() {
    const TDrawLock lock(this);
    auto* passing = new TToolButton(this);
    passing->SetName(u"btnTeste1231212312312"_s);
    passing->SetParent(TBButtons);
    passing->Free();
}

void TFrmEnt_Master::FormPaint(QPainter& Painter) {
    FHeader.Paint(Painter, FHeader.Lay(0, ClientWidth(), TBButtons->Left(), TBButtons->Width()));
}

void TFrmEnt_Master::FormResize(TComponent*) {
    Repaint();
}

void TFrmEnt_Master::BtnTabSetTabSelected(TIceTab*) {
    Repaint();
}

void TFrmEnt_Master::FormShortCut(TShortCutKey& Key, bool& Handled) {
    FKeys.ShortCut(Key, Handled);
}

void TFrmEnt_Master::FormKeyDown(TComponent*, int& Key, TShiftState) {
    FKeys.KeyDown(Key);
}

// Escape has cancelled already, or belongs to a list or a grid.
void TFrmEnt_Master::FormKeyPress(TComponent*, WideChar& Key) {
    FKeys.KeyPress(Key);
}

void TFrmEnt_Master::BtnConfirmarClick(TComponent*) {
    SetModalResult(kConfirmed);
    Close();
}

void TFrmEnt_Master::BtnCancelarClick(TComponent*) {
    Close();
}
