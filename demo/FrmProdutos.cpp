#include "demo/FrmProdutos.h"

#include "demo/FrmPreco.h"
#include "forms/base/UFrameRichText.h"
#include "forms/masters/Ficha.h"
#include "platform/ui/StdCtrls.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kWidth = 620;
constexpr int kHeight = 350;
constexpr int kMargin = 16;

const UnicodeString kUnidades = u"UN;CX;FL;KG;LT;M;M2;M3;ML;RL;SC"_s;

void LabelProduto(TDataSet* produtos) {
    LabelAll(produtos, {{u"CD_PRO", u"Código"},
                        {u"NM_PRO", u"Descrição"},
                        {u"REFERENCIA", u"Referência"},
                        {u"UNIDADE", u"Unidade"},
                        {u"VL_VENDA", u"Preço de venda"},
                        {u"QT_ESTOQUE", u"Estoque"},
                        {u"PESO", u"Peso (kg)"},
                        {u"OBS", u"Observações"}});
    produtos->FieldByName(u"VL_VENDA"_s)->SetTag(2);
    if (TField* estoque = produtos->FindField(u"QT_ESTOQUE"_s)) estoque->SetTag(3);
    if (TField* peso = produtos->FindField(u"PESO"_s)) peso->SetTag(3);
}

}  // namespace

TFrmProdutos::TFrmProdutos(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmLista(AOwner, AModule, ClassWith<TFrmCadProduto>(AData), vtFilter, ktFieldProviderFlag, AData) {}

void TFrmProdutos::CreateControls() {
    TFrmLista::CreateControls();
    TFDQuery* produtos = FData->NewQuery(
        this, u"SELECT CD_PRO, NM_PRO, REFERENCIA, UNIDADE, VL_VENDA, QT_ESTOQUE, TF_DEL\nFROM PRODUTO"_s);
    LabelProduto(produtos);
    produtos->SetTag(produtos->FieldByName(u"NM_PRO"_s)->Index());
    MainDS->SetDataSet(produtos);
    DBGrd->AddColumn(u"CD_PRO"_s, u"Código"_s, 60);
    DBGrd->AddColumn(u"NM_PRO"_s, u"Descrição"_s, 310);
    DBGrd->AddColumn(u"REFERENCIA"_s, u"Referência"_s, 100);
    DBGrd->AddColumn(u"UNIDADE"_s, u"Unidade"_s, 70);
    DBGrd->AddColumn(u"VL_VENDA"_s, u"Preço de venda"_s, 110);
    DBGrd->AddColumn(u"QT_ESTOQUE"_s, u"Estoque"_s, 100);
}

void TFrmProdutos::FormCreate(TComponent* Sender) {
    TFrmLista::FormCreate(Sender);
    CreateButton(u"BtnLocalizar"_s, u"Localizar"_s, u"ICO24_PRODUTOS"_s, -1,
                 [this](TComponent*) { GoToProduct(); });
}

// Looks among all products, whatever the list shows, and moves the list to the one that was chosen.
void TFrmProdutos::GoToProduct() {
    FChosen = {};
    FChosen.Form = NewForm<TFrmPesqProduto>(this, Module, &FChosen, UnicodeString(), FData);
}

void TFrmCadProduto::CreateControls() {
    TFrmCadComercial::CreateControls();
    SetClientWidth(kWidth);
    SetClientHeight(kHeight);
    CreateQuery();
    CreateMainPage();
    CreateTextPage();
}

void TFrmCadProduto::CreateQuery() {
    TFDQuery* produto = FData->NewQuery(
        this,
        u"SELECT CD_PRO, NM_PRO, REFERENCIA, UNIDADE, VL_VENDA, QT_ESTOQUE, PESO, OBS, TF_DEL\n"
        "FROM PRODUTO"_s);
    LabelProduto(produto);
    produto->OnNewRecord = [](TDataSet* novo) { novo->FieldByName(u"TF_DEL"_s)->SetAsString(u"N"_s); };
    MainDS->SetDataSet(produto);
}

void TFrmCadProduto::CreateMainPage() {
    TabSheet1->SetCaption(u"Cadastro"_s);
    TFicha ficha(this, TabSheet1, MainDS);
    ficha.ReadOnlyEdit(u"CD_PRO"_s, 90);
    ficha.Edit(u"NM_PRO"_s, 420);
    ficha.NewRow();
    ficha.Edit(u"REFERENCIA"_s, 160);
    ficha.Combo(u"UNIDADE"_s, ExplodeStr(kUnidades, u';'), 80);
    ficha.NewRow();
    TButton* price = ficha.Lookup(ficha.Edit(u"VL_VENDA"_s, 130), [this] { WorkOutPrice(); });
    price->SetHint(u"Calcular (F2)"_s);
    price->SetAccessibleName(u"Calcular o preço de venda"_s);
    ficha.Edit(u"QT_ESTOQUE"_s, 130);
    ficha.Edit(u"PESO"_s, 130);
}

// Where the record cannot be changed there is nothing to work out.
void TFrmCadProduto::WorkOutPrice() {
    TDataSet* produto = MainDS->DataSet();
    if (produto->State() != dsEdit && produto->State() != dsInsert) return;
    produto->UpdateRecord();
    TField* price = produto->FieldByName(u"VL_VENDA"_s);
    auto* form = NewForm<TFrmPreco>(this, Module, price->AsCurrency());
    if (form->ShowModal() == TFrmEnt_Master::kConfirmed) price->SetAsCurrency(form->Preco());
    form->Free();
}

void TFrmCadProduto::CreateTextPage() {
    auto* page = new TTabSheet(this);
    page->SetPageControl(PageControl);
    page->SetCaption(u"Observações"_s);
    auto* frame = new TFrameRichText(this);
    frame->SetParent(page);
    frame->SetBounds(kMargin, kMargin, page->ClientWidth() - 2 * kMargin, page->ClientHeight() - 2 * kMargin);
    frame->SetAnchors(akLeft | akTop | akRight | akBottom);
    frame->Editor->SetDataSource(MainDS);
    frame->Editor->SetDataField(u"OBS"_s);
    frame->Editor->SetAccessibleName(u"Observações"_s);
}

void TFrmPesqProduto::CreateControls() {
    TFrmProcura::CreateControls();
    SetCaption(u"Procurar produto"_s);
    TFDQuery* produtos = FData->NewQuery(this, u"SELECT NM_PRO, CD_PRO, UNIDADE, VL_VENDA FROM PRODUTO"_s);
    LabelProduto(produtos);
    MainDS->SetDataSet(produtos);
    DBGrd->AddColumn(u"NM_PRO"_s, u"Descrição"_s, 330);
    DBGrd->AddColumn(u"UNIDADE"_s, u"Unidade"_s, 70);
    DBGrd->AddColumn(u"VL_VENDA"_s, u"Preço de venda"_s, 110);
    AddResultField(u"CD_PRO"_s);
}
