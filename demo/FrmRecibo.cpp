#include "demo/FrmRecibo.h"

#include "demo/FrmPreviaRecibo.h"
#include "demo/LinhasEntrada.h"
#include "platform/ui/Application.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;
using namespace entrada;

namespace {

constexpr int kWidth = 560;
constexpr int kLookupWidth = 28;
constexpr int kBesideGap = 4;
constexpr int kAmountWidth = 140;
constexpr int kDateWidth = 132;

constexpr int kNameLength = 80;
constexpr int kAmountLength = 16;
constexpr int kReferenceLength = 160;
constexpr int kTownLength = 40;

// A row's captions; its edits stand kLabelHeight lower.
QRect Place(int row, int left, int width) {
    return {left, kTop + row * kRowHeight, width, kEditHeight};
}

UnicodeString Missing(const TEdit& edit) {
    if (!edit.Text().trimmed().isEmpty()) return {};
    return u"Entre com um valor para o campo \"%1\" antes de prosseguir."_s.arg(edit.AccessibleName());
}

}  // namespace

TFrmRecibo::TFrmRecibo(TComponent* AOwner, TModuleInstance* AModule, TDM_Comercial* AData)
    : TFrmEnt_Master(AOwner, AModule, AModule->Info(), {}), FData(AData) {}

void TFrmRecibo::CreateControls() {
    TFrmEnt_Master::CreateControls();
    SetCaption(u"Recibo"_s);
    SetClientWidth(kWidth);
    SetClientHeight(kTop + 4 * kRowHeight);
    CreatePayer();
    CreateAmount();
    CreateRest();
    OnCloseQuery = [this](TComponent*, bool& canClose) {
        canClose = ModalResult() == kConfirmed || NothingTyped() ||
                   Application->MessageBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s,
                                           MB_YESNO | MB_ICONQUESTION) == IDYES;
    };
}

TEdit* TFrmRecibo::Add(const UnicodeString& name, const UnicodeString& caption, const QRect& place,
                       int length) {
    TEdit* edit = NewEdit(this, name, caption, place);
    edit->SetMaxLength(length);
    return edit;
}

void TFrmRecibo::CreatePayer() {
    const int width = kWidth - 2 * kMargin - kBesideGap - kLookupWidth;
    FPagador = Add(u"EdtPagador"_s, u"&Pagador"_s, Place(0, kMargin, width), kNameLength);
    FPagador->OnKeyDown = [this](TComponent*, int& key, TShiftState shift) {
        if (key != VK_F2 || shift) return;
        key = 0;
        FindPayer();
    };
    const QRect place = Place(0, kMargin + width + kBesideGap, kLookupWidth).translated(0, kLabelHeight);
    auto* button = NewControl<TButton>(this, this, u"BtnPagador"_s, place);
    button->SetCaption(u"…"_s);
    button->SetHint(u"Procurar (F2)"_s);
    button->SetAccessibleName(u"Procurar Pagador"_s);
    button->SetTabStop(false);
    button->OnClick = [this](TComponent*) { FindPayer(); };
}

void TFrmRecibo::CreateAmount() {
    FValor = Add(u"EdtValor"_s, u"&Valor (R$)"_s, Place(1, kMargin, kAmountWidth), kAmountLength);
    FValor->SetAlignment(taRightJustify);
    FValor->OnChange = [this](TComponent*) { ShowWords(); };
    const int left = kMargin + kAmountWidth + kMargin;
    FExtenso = NewControl<TLabel>(this, this, u"LbExtenso"_s);
    FExtenso->SetAutoSize(false);
    FExtenso->SetWordWrap(true);
    FExtenso->SetBounds(left, Place(1, 0, 0).top() + kLabelHeight - 6, kWidth - left - kMargin,
                        kEditHeight + 12);
}

void TFrmRecibo::CreateRest() {
    FReferente =
        Add(u"EdtReferente"_s, u"&Referente a"_s, Place(2, kMargin, kWidth - 2 * kMargin), kReferenceLength);
    const int date = kWidth - kMargin - kDateWidth;
    FCidade = Add(u"EdtCidade"_s, u"&Cidade"_s, Place(3, kMargin, date - 2 * kMargin), kTownLength);
    auto* label = NewControl<TLabel>(this, this, u"LbData"_s, Place(3, date, kDateWidth));
    label->SetCaption(u"&Data"_s);
    FEmissao = NewControl<TDateTimePicker>(this, this, u"DpData"_s,
                                           Place(3, date, kDateWidth).translated(0, kLabelHeight));
    FEmissao->SetAccessibleName(u"Data"_s);
    FEmissao->SetDate(Date());
    label->SetFocusControl(FEmissao);
}

// Receipts are written in one town, as a rule.
void TFrmRecibo::FormCreate(TComponent* Sender) {
    TFrmEnt_Master::FormCreate(Sender);
    FCidade->SetText(GetStrWindowProp(u"Cidade"_s, {}));
    ShowWords();
}

void TFrmRecibo::Propor(const UnicodeString& pagador, Currency valor, const UnicodeString& referente) {
    FPagador->SetText(pagador);
    FValor->SetText(ValorEmAlgarismos(valor));
    FReferente->SetText(referente);
    ShowWords();
}

void TFrmRecibo::ShowWords() {
    const bool empty = FValor->Text().trimmed().isEmpty();
    const UnicodeString fault = empty ? UnicodeString() : RecusaDoValor(FValor->Text());
    const bool readable = !empty && fault.isEmpty();
    FExtenso->SetFontColor(fault.isEmpty() ? Cores::Dica : Cores::Erro);
    FExtenso->SetCaption(readable ? ValorPorExtenso(*LeValor(FValor->Text())) : fault);
}

void TFrmRecibo::FindPayer() {
    FPayer = {};
    FPayer.OnDelivered = [this](const TResearchResult& payer) {
        FPagador->SetText(payer.Values[0].ToText());
    };
    auto* lookup = NewForm<TFrmPesqPagador>(this, Module, &FPayer, FPagador->Text(), FData);
    FPayer.Form = lookup;
    lookup->ShowModal();
    lookup->Free();
}

TRecibo TFrmRecibo::Typed() const {
    return {.Pagador = FPagador->Text().simplified(),
            .Valor = LeValor(FValor->Text()).value_or(Currency()),
            .Referente = FReferente->Text().simplified(),
            .Cidade = FCidade->Text().simplified(),
            .Data = FEmissao->Date()};
}

bool TFrmRecibo::NothingTyped() const {
    return FPagador->Text().isEmpty() && FValor->Text().isEmpty() && FReferente->Text().isEmpty();
}

bool TFrmRecibo::Refused(TEdit* edit, const UnicodeString& fault) {
    if (fault.isEmpty()) return false;
    Application->MessageBox(fault, u"Aviso"_s, MB_ICONWARNING);
    edit->SetFocus();
    edit->SelectAll();
    return true;
}

bool TFrmRecibo::Valid() {
    return !Refused(FPagador, Missing(*FPagador)) && !Refused(FValor, RecusaDoValor(FValor->Text())) &&
           !Refused(FReferente, Missing(*FReferente)) && !Refused(FCidade, Missing(*FCidade));
}

void TFrmRecibo::BtnConfirmarClick(TComponent* Sender) {
    if (!Valid()) return;
    SetStrWindowProp(u"Cidade"_s, Typed().Cidade);
    auto* preview = NewForm<TFrmPreviaRecibo>(this, Module, Typed());
    const bool printed = preview->ShowModal() == TFrmPreviaRecibo::kImpresso;
    preview->Free();
    if (printed) TFrmEnt_Master::BtnConfirmarClick(Sender);
}

TFrmPesqPagador::TFrmPesqPagador(TComponent* AOwner, TModuleInstance* AModule, TResearchResult* AResult,
                                 const UnicodeString& AStart, TDM_Comercial* AData)
    : TFrmProcura(AOwner, AModule, AResult, AStart, AData) {
    SetFormStyle(fsNormal);
    SetVisible(false);
}

void TFrmPesqPagador::CreateControls() {
    TFrmProcura::CreateControls();
    SetCaption(u"Procurar cliente"_s);
    TFDQuery* customers = FData->NewQuery(this, u"SELECT NM_CLI, CIDADE FROM CLIENTE"_s);
    Label(customers, u"NM_CLI"_s, u"Nome"_s);
    Label(customers, u"CIDADE"_s, u"Cidade"_s);
    MainDS->SetDataSet(customers);
    DBGrd->AddColumn(u"NM_CLI"_s, u"Nome"_s, 380);
    DBGrd->AddColumn(u"CIDADE"_s, u"Cidade"_s, 270);
    AddResultField(u"NM_CLI"_s);
}
