// The view master's controls, menus and measures.
#include <algorithm>
#include <QPainter>

#include "forms/masters/UViz_Master.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kTopHeight = 25;
constexpr int kMenuWidth = 300;
constexpr int kLeastButtonHeight = 21;
constexpr int kLeastButtonWidth = 57;
constexpr int kGridTop = 81;
constexpr int kSearchTop = 44;
constexpr int kMargin = 8;
constexpr int kClientWidth = 780;
constexpr int kClientHeight = 480;
constexpr int kRowsInSight = 15;

}  // namespace

void TFrmViz_Master::CreateControls() {
    TFrmGrid_Master::CreateControls();
    SetClientWidth(kClientWidth);
    SetClientHeight(kClientHeight);
    CreateTop();
    CreateButtons();
    CreateMenu();
    DBGrd->SetTop(kGridTop);
    DBGrd->OnDblClick = [this](TComponent* sender) { DBGrdDblClick(sender); };
    DBGrd->OnKeyPress = [this](TComponent* sender, WideChar& key) { DBGrdKeyPress(sender, key); };
    PnPesquisa->SetTop(kSearchTop);
    LbPesqInt->SetFontColor(Cores::Trabalho);  // it stands on the blue bar
    PnPesquisa->SetAnchors(akTop | akRight);
    OnPaint = [this](QPainter& painter) { FormPaint(painter); };
}

void TFrmViz_Master::CreateTop() {
    PnTopo = NewControl<TPanel>(this, this, u"PnTopo"_s);
    PnTopo->SetAlign(alTop);
    PnTopo->SetHeight(kTopHeight);
    LbRegCount = NewControl<TLabel>(this, PnTopo, u"LbRegCount"_s);
    LbRegCount->SetCaption(u"Listando 200 Registros"_s);
    LbRegCount->SetAlignment(taRightJustify);
    LbRegCount->SetTop((kTopHeight - LbRegCount->Height()) / 2);
    LbRegCount->SetAnchors(akTop | akRight);
    PnMenu = NewControl<TPanel>(this, PnTopo, u"PnMenu"_s);
    PnMenu->SetAlign(alLeft);
    PnMenu->SetWidth(kMenuWidth);
    TBMenu = NewControl<TToolBar>(this, PnMenu, u"TBMenu"_s);
    TBMenu->SetAccessibleName(u"Menu"_s);
}

void TFrmViz_Master::CreateButtons() {
    TBButtons = NewControl<TToolBar>(this, this, u"TBButtons"_s);
    TBButtons->SetAccessibleName(u"Ações"_s);
    TBButtons->SetTop(kTopHeight);
    TBButtons->SetButtonHeight(kLeastButtonHeight);
    TBButtons->SetButtonWidth(kLeastButtonWidth);
    TBButtons->SetGradient(Cores::Superficie, Cores::SuperficieEscura);
    const auto button = [this](const UnicodeString& name, const UnicodeString& caption,
                               void (TFrmViz_Master::*click)(TComponent*)) {
        auto* made = new TToolButton(this);
        made->SetName(name);
        made->SetCaption(caption);
        made->SetImageIndex(TBButtons->ButtonCount());
        if (click) made->OnClick = [this, click](TComponent* sender) { (this->*click)(sender); };
        made->SetLeft(TBButtons->ButtonCount() * kLeastButtonWidth);
        made->SetParent(TBButtons);
        return made;
    };
    BtnNovo = button(u"BtnNovo"_s, u"Novo"_s, &TFrmViz_Master::BtnNovoClick);
    BtnAlterar = button(u"BtnAlterar"_s, u"Alterar"_s, &TFrmViz_Master::BtnAlterarClick);
    BtnExcluir = button(u"BtnExcluir"_s, u"Excluir"_s, &TFrmViz_Master::BtnExcluirClick);
    BtnImprimir = button(u"BtnImprimir"_s, u"Imprimir"_s, &TFrmViz_Master::BtnImprimirClick);
    BtnBuscar = button(u"BtnBuscar"_s, u"Pesquisa"_s, &TFrmViz_Master::Filtros1Click);
}

void TFrmViz_Master::CreateMenu() {
    MainMenu1 = new TMainMenu(this);
    MainMenu1->SetName(u"MainMenu1"_s);
    CreateArquivo();
    CreateEditar();
    CreateExibir();
    CreatePesquisaAjuda();
    TBMenu->SetMenu(MainMenu1);
    const int height = TBMenu->sizeHint().height();
    TBMenu->SetBounds(0, (kTopHeight - height) / 2, kMenuWidth, height);
}

TMenuItem* TFrmViz_Master::AddItem(TMenuItem* parent, const char16_t* name, const char16_t* caption,
                                   TMenuHandler click) {
    auto* item = new TMenuItem(this);
    item->SetName(QString::fromUtf16(name));
    item->SetCaption(QString::fromUtf16(caption));
    if (click) item->OnClick = [this, click](TComponent* sender) { (this->*click)(sender); };
    return parent->Add(item);
}

void TFrmViz_Master::CreateArquivo() {
    TMenuItem* arquivo = AddItem(MainMenu1->Items(), u"Arquivo1", u"Arquivo");
    TMenuItem* modelo = AddItem(arquivo, u"ModeloImpresso1", u"Modelo Impressão");
    Retrato1 = AddItem(modelo, u"Retrato1", u"Retrato", &TFrmViz_Master::Paisagem1Click);
    Paisagem1 = AddItem(modelo, u"Paisagem1", u"Paisagem", &TFrmViz_Master::Paisagem1Click);
    Retrato1->SetRadioItem(true);
    Paisagem1->SetRadioItem(true);
    Retrato1->SetChecked(true);
    Imprimir1 = AddItem(arquivo, u"Imprimir1", u"Imprimir...", &TFrmViz_Master::BtnImprimirClick);
    N2 = AddItem(arquivo, u"N2", u"-");
    Sair1 = AddItem(arquivo, u"Sair1", u"&Sair...", &TFrmViz_Master::Sair1Click);
    Sair1->SetShortCut(ShortCut(VK_F4, ssCtrl));
}

void TFrmViz_Master::CreateEditar() {
    TMenuItem* editar = AddItem(MainMenu1->Items(), u"Editar1", u"Editar");
    Novo1 = AddItem(editar, u"Novo1", u"Novo...", &TFrmViz_Master::BtnNovoClick);
    Alterar1 = AddItem(editar, u"Alterar1", u"Alterar...", &TFrmViz_Master::BtnAlterarClick);
    Excluir1 = AddItem(editar, u"Excluir1", u"Excluir...", &TFrmViz_Master::BtnExcluirClick);
}

void TFrmViz_Master::CreateExibir() {
    TMenuItem* exibir = AddItem(MainMenu1->Items(), u"Exibir1", u"Exibir");
    AumentarFonte1 =
        AddItem(exibir, u"AumentarFonte1", u"Aumentar Fonte...", &TFrmViz_Master::AumentarFonte1Click);
    DiminuirFonte1 =
        AddItem(exibir, u"DiminuirFonte1", u"Diminuir Fonte...", &TFrmViz_Master::DiminuirFonte1Click);
    N1 = AddItem(exibir, u"N1", u"-");
    ExibirRegistrosExcludos1 = AddItem(exibir, u"ExibirRegistrosExcludos1", u"Exibir Registros Excluídos...",
                                       &TFrmViz_Master::ExibirRegistrosExcludos1Click);
    N3 = AddItem(exibir, u"N3", u"-");
    Campos1 = AddItem(exibir, u"Campos1", u"Campos...", &TFrmViz_Master::Campos1Click);
    RestaurarCampos1 =
        AddItem(exibir, u"RestaurarCampos1", u"Restaurar Padrão...", &TFrmViz_Master::RestaurarCampos1Click);
}

void TFrmViz_Master::CreatePesquisaAjuda() {
    Pesquisa1 = AddItem(MainMenu1->Items(), u"Pesquisa1", u"Pesquisa");
    Filtros1 = AddItem(Pesquisa1, u"Filtros1", u"Filtros...", &TFrmViz_Master::Filtros1Click);
    Ajuda1 = AddItem(MainMenu1->Items(), u"Ajuda1", u"Ajuda");
    picosdeAjuda1 = AddItem(Ajuda1, u"picosdeAjuda1", u"&Tópicos de Ajuda...");
    Ajuda1->SetVisible(false);
}

void TFrmViz_Master::FixToolBarSize() {
    TBButtons->SetBounds(0, PnTopo->Height(), TBButtons->sizeHint().width(), THeaderStrip::kButtonsHeight);
    const int searchLeft = std::min(PnPesquisa->Left(), PnPesquisa2->Left());
    const int search = PnPesquisa->Left() + PnPesquisa->Width() - searchLeft;
    const int frame = Width() - ClientWidth();
    SetMinWidth(FHeader.EfectWidth() + TBButtons->Width() + search + FSizeOffset + 4 + frame);
    Repaint();
}

// The search panel stands in the middle of the blue bar, the grid fills what is left below the strip.
void TFrmViz_Master::PlaceGrid() {
    PnPesquisa->SetTop(THeaderStrip::kHeight / 2 + TBButtons->Top() - PnPesquisa->Height() / 2);
    FixPesqPanel();
    DBGrd->SetTop(kGridTop);
    const int strip = THeaderStrip::kButtonsBarHeight + TBButtons->Top() + TBButtons->Height() + 2;
    DBGrd->SetHeight(ClientHeight() - strip);
    DBGrd->SetAnchors(akLeft | akTop | akRight | akBottom);
    LbRegCount->SetLeft(ClientWidth() - LbRegCount->Width() - kMargin);
}

void TFrmViz_Master::SetLeastSize() {
    SetMinHeight(kRowsInSight * DBGrd->RowHeight() + DBGrd->Top() + 16);
}

void TFrmViz_Master::FormPaint(QPainter& Painter) {
    FHeader.Paint(Painter, FHeader.Lay(TBButtons->Top(), ClientWidth(), 0, TBButtons->Width()));
}
