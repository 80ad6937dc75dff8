#include "demo/FrmPedidos.h"

#include "db/UDBUtils.h"
#include "demo/Diario.h"
#include "demo/FrmProdutos.h"
#include "demo/FrmRecibo.h"
#include "forms/masters/Ficha.h"
#include "platform/rtl/DateTime.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/StdCtrls.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kWidth = 760;
constexpr int kHeight = 396;
constexpr int kGridHeight = 148;
constexpr int kGridWidth = kWidth - 48;

// The customers' own deletion mark stays out of sight: a condition on TF_DEL means the orders'.
const UnicodeString kPedidos =
    u"SELECT P.CD_PED, P.DT_PED, C.NM_CLI, V.NM_VEN, P.VL_TOTAL, P.TF_DEL\n"
    "FROM PEDIDO P\n"
    "JOIN (SELECT CD_CLI CODIGO, NM_CLI FROM CLIENTE) C ON C.CODIGO = P.CD_CLI\n"
    "JOIN VENDEDOR V ON V.CD_VEN = P.CD_VEN"_s;

const UnicodeString kPedido =
    u"SELECT P.CD_PED, P.DT_PED, P.CD_CLI, C.NM_CLI, P.CD_VEN, P.VL_TOTAL, P.OBS, P.TF_DEL\n"
    "FROM PEDIDO P\n"
    "LEFT JOIN (SELECT CD_CLI CODIGO, NM_CLI FROM CLIENTE) C ON C.CODIGO = P.CD_CLI"_s;

void LabelPedido(TDataSet* pedidos) {
    LabelAll(pedidos, {{u"CD_PED", u"Número"},
                       {u"DT_PED", u"Data"},
                       {u"CD_CLI", u"Cliente"},
                       {u"NM_CLI", u"Nome do cliente"},
                       {u"CD_VEN", u"Vendedor"},
                       {u"NM_VEN", u"Vendedor"},
                       {u"VL_TOTAL", u"Total"},
                       {u"OBS", u"Observações"}});
    pedidos->FieldByName(u"VL_TOTAL"_s)->SetTag(2);
}

}  // namespace

// ---- the grid ----

TFrmPedidos::TFrmPedidos(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmLista(AOwner, AModule, ClassWith<TFrmCadPedido>(AData), vtFilter, ktFieldProviderFlag, AData) {}

void TFrmPedidos::CreateControls() {
    TFrmLista::CreateControls();
    TFDQuery* pedidos = FData->NewQuery(this, kPedidos);
    LabelPedido(pedidos);
    pedidos->SetTag(pedidos->FieldByName(u"CD_PED"_s)->Index());
    for (const auto& own : {u"CD_PED"_s, u"DT_PED"_s}) SetPrefix(pedidos->FieldByName(own), u"P"_s);
    MainDS->SetDataSet(pedidos);
    DBGrd->AddColumn(u"CD_PED"_s, u"Número"_s, 70);
    DBGrd->AddColumn(u"DT_PED"_s, u"Data"_s, 85);
    DBGrd->AddColumn(u"NM_CLI"_s, u"Cliente"_s, 300);
    DBGrd->AddColumn(u"NM_VEN"_s, u"Vendedor"_s, 190);
    DBGrd->AddColumn(u"VL_TOTAL"_s, u"Total"_s, 110);
}

void TFrmPedidos::FormCreate(TComponent* Sender) {
    TFrmLista::FormCreate(Sender);
    CreateButton(u"BtnRecibo"_s, u"Recibo"_s, u"BTN_RECIBO"_s, -1, [this](TComponent*) { Receipt(); });
}

// For the order that stands in the grid, once the search that may be pending has found it.
void TFrmPedidos::Receipt() {
    FinishSearch();
    const TDataSet& order = *MainDS->DataSet();
    if (!order.Active() || order.IsEmpty()) {
        Application->MessageBox(u"Não existe nenhum pedido para o recibo."_s, u"Informação"_s,
                                MB_ICONINFORMATION);
        return;
    }
    if (CurrentIsDeleted()) {
        Application->MessageBox(u"Esse pedido foi excluído."_s, u"Informação"_s, MB_ICONINFORMATION);
        return;
    }
    auto* receipt = NewForm<TFrmRecibo>(this, Module, FData);
    receipt->Propor(order.FieldByName(u"NM_CLI"_s)->AsString(),
                    order.FieldByName(u"VL_TOTAL"_s)->AsCurrency(),
                    u"pedido "_s + order.FieldByName(u"CD_PED"_s)->AsString());
    receipt->ShowModal();
    receipt->Free();
}

// ---- one order ----

void TFrmCadPedido::CreateControls() {
    TFrmCadComercial::CreateControls();
    SetClientWidth(kWidth);
    SetClientHeight(kHeight);
    CreateQuery();
    CreateCustomers();
    CreateItems();
    CreatePage();
}

void TFrmCadPedido::Construct() {
    TFrmCadComercial::Construct();
    FItens->Abrir(Campo(u"CD_PED"_s)->AsInteger());
}

bool TFrmCadPedido::Editando() const {
    const TDataSetState state = MainDS->DataSet()->State();
    return state == dsEdit || state == dsInsert;
}

void TFrmCadPedido::CreateQuery() {
    TFDQuery* pedido = FData->NewQuery(this, kPedido);
    LabelPedido(pedido);
    pedido->OnNewRecord = [](TDataSet* novo) {
        novo->FieldByName(u"DT_PED"_s)->SetAsDateTime(Date());
        novo->FieldByName(u"TF_DEL"_s)->SetAsString(u"N"_s);
    };
    MainDS->SetDataSet(pedido);
    FOnConfirm = [this](TDataSet*, unsigned char) {
        FItens->Concluir();
        if (FItens->Vazio()) throw Exception(u"Entre com um item antes de prosseguir."_s);
        TakeNumber();
    };
    FOnDelete = [this](TDataSet* excluido, unsigned char) { Delete(*excluido); };
    pedido->AfterPost = [this](TDataSet*) { FItens->Gravar(Campo(u"CD_PED"_s)->AsInteger()); };
}

// Only an order that is being saved uses a number up; one that failed keeps it for the next attempt.
void TFrmCadPedido::TakeNumber() {
    if (!Campo(u"CD_PED"_s)->IsNull()) return;
    Campo(u"CD_PED"_s)->SetAsInteger(GetGeneratorID(FData->Connection(), u"GEN_PEDIDO"_s, 1));
}

void TFrmCadPedido::Delete(TDataSet& pedido) {
    const UnicodeString qual = u"pedido %1 de %2, no valor de R$ %3"_s.arg(
        Campo(u"CD_PED"_s)->AsString(), Campo(u"NM_CLI"_s)->AsString(), Campo(u"VL_TOTAL"_s)->DisplayText());
    const UnicodeString pergunta = u"Tem certeza que deseja excluir o "_s + qual + u'?';
    if (Application->MessageBox(pergunta, u"Confirmação"_s, MB_YESNO | MB_ICONQUESTION) != IDYES) Abort();
    pedido.Edit();
    Campo(u"TF_DEL"_s)->SetAsString(u"S"_s);
    pedido.Post();
    Anotar(u"Excluído o "_s + qual + u'.');
}

// The code brings the name, and a code that no customer has is refused.
void TFrmCadPedido::CreateCustomers() {
    FCustomer = FData->NewQuery(
        this, u"SELECT NM_CLI FROM CLIENTE WHERE CD_CLI = :CODIGO AND COALESCE(TF_DEL, 'N') = 'N'"_s);
    TField* code = Campo(u"CD_CLI"_s);
    code->OnValidate = [this](TField* field) {
        FCustomer->Close();
        FCustomer->ParamByName(u"CODIGO"_s)->SetValue(field->Value());
        FCustomer->Open();
        if (!field->IsNull() && FCustomer->IsEmpty())
            throw Exception(u"O cliente %1 não está cadastrado."_s.arg(field->AsString()));
    };
    code->OnChange = [this](TField*) { TakeCustomer(); };
}

void TFrmCadPedido::TakeCustomer() {
    Campo(u"NM_CLI"_s)->SetValue(FCustomer->FieldByName(u"NM_CLI"_s)->Value());
}

void TFrmCadPedido::CreateItems() {
    FItens = std::make_unique<TItensDoPedido>(this, *FData);
    FItens->AoMudar = [this] { ShowTotal(); };
}

void TFrmCadPedido::ShowTotal() {
    if (Editando()) Campo(u"VL_TOTAL"_s)->SetAsDecimal(FItens->Total());
}

void TFrmCadPedido::CreatePage() {
    TabSheet1->SetCaption(u"Pedido"_s);
    auto* sellers = new TDataSource(this);
    sellers->SetDataSet(FData->NewQuery(this, u"SELECT CD_VEN, NM_VEN FROM VENDEDOR ORDER BY NM_VEN"_s));
    sellers->DataSet()->Open();
    TFicha ficha(this, TabSheet1, MainDS);
    ficha.ReadOnlyEdit(u"CD_PED"_s, 70);
    ficha.Edit(u"DT_PED"_s, 95);
    ficha.Lookup(ficha.Edit(u"CD_CLI"_s, 80), [this] { FindCustomer(); });
    ficha.ReadOnlyEdit(u"NM_CLI"_s, 386);
    ficha.NewRow();
    ficha.LookupCombo(u"CD_VEN"_s, sellers, u"CD_VEN"_s, u"NM_VEN"_s, 250);
    ficha.Edit(u"OBS"_s, 300);
    ficha.ReadOnlyEdit(u"VL_TOTAL"_s, 130);
    ficha.NewRow();
    CreateGrid(ficha.Area(u"Itens (F2 no produto: procurar)"_s, kGridWidth, kGridHeight));
}

void TFrmCadPedido::CreateGrid(const QRect& place) {
    GrdItens = NewControl<TOrlaDBGrid>(this, TabSheet1, u"GrdItens"_s, place);
    GrdItens->SetAccessibleName(u"Itens"_s);
    GrdItens->SetDataSource(FItens->Fonte());
    GrdItens->AddColumn(u"CD_PRO"_s, u"Produto"_s, 66);
    GrdItens->AddColumn(u"NM_PRO"_s, u"Descrição"_s, 280)->SetReadOnly(true);
    GrdItens->AddColumn(u"UNIDADE"_s, u"Un."_s, 40)->SetReadOnly(true);
    GrdItens->AddColumn(u"QT_ITEM"_s, u"Quantidade"_s, 95);
    GrdItens->AddColumn(u"VL_UNIT"_s, u"Preço unitário"_s, 105);
    GrdItens->AddColumn(u"VL_ITEM"_s, u"Valor"_s, 110)->SetReadOnly(true);
    GrdItens->SetTag(1);
    GrdItens->OnKeyDown = [this](TComponent*, int& key, TShiftState shift) {
        if (key != VK_F2 || shift || GrdItens->SelectedField() != FItens->DataSet()->FindField(u"CD_PRO"_s))
            return;
        key = 0;
        FindProduct();
    };
}

// Where the record cannot be changed there is nothing to look up.
void TFrmCadPedido::FindCustomer() {
    if (!Editando()) return;
    FChosen = {};
    FChosen.OnDelivered = [this](const TResearchResult& customer) {
        Campo(u"CD_CLI"_s)->SetValue(customer.Values[0]);
    };
    FChosen.Form = NewForm<TFrmPesqCliente>(this, Module, &FChosen, UnicodeString(), FData);
}

void TFrmCadPedido::FindProduct() {
    if (!Editando()) return;
    FChosen = {};
    FChosen.OnDelivered = [this](const TResearchResult& product) {
        FItens->DataSet()->Edit();
        FItens->DataSet()->FieldByName(u"CD_PRO"_s)->SetValue(product.Values[0]);
    };
    FChosen.Form = NewForm<TFrmPesqProduto>(this, Module, &FChosen, UnicodeString(), FData);
}

// ---- the lookup of a customer ----

void TFrmPesqCliente::CreateControls() {
    TFrmProcura::CreateControls();
    SetCaption(u"Procurar cliente"_s);
    TFDQuery* customers = FData->NewQuery(this, u"SELECT NM_CLI, CIDADE, NR_CPF, CD_CLI FROM CLIENTE"_s);
    LabelAll(customers, {{u"NM_CLI", u"Nome"}, {u"CIDADE", u"Cidade"}, {u"NR_CPF", u"CPF/CNPJ"}});
    // Tells people of one name apart; stored without its dots, it is only shown, not searched.
    TField* document = customers->FieldByName(u"NR_CPF"_s);
    document->SetOrigin(u"#0"_s);
    document->OnGetText = [](TField* field, UnicodeString& text, bool) {
        text = FormatCPF(field->Value().ToText());
    };
    // Nothing is sold to those who are not active.
    SetWhere(Where() + u" AND TF_ATIVO = :ATIVO"_s);
    AddParam(u"ATIVO"_s, u"S"_s);
    MainDS->SetDataSet(customers);
    DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 290);
    DBGrd->AddColumn(u"CIDADE"_s, u"Cidade"_s, 190);
    DBGrd->AddColumn(u"NR_CPF"_s, u"CPF/CNPJ"_s, 150);
    AddResultField(u"CD_CLI"_s);
}
