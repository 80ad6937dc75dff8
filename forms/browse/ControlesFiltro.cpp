// The controls of the filter dialog, and which handler hears what.
#include "forms/base/DialogBand.h"
#include "forms/browse/UPesquisa.h"
#include "platform/rtl/DateTime.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/StdCtrls.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kHeader = TDialogBand::kHeight;
constexpr int kFieldsWidth = 200;
constexpr int kValuesLeft = kMargin + kFieldsWidth + kMargin;
constexpr int kValuesWidth = 200;
constexpr int kRow = 50;  // caption and control
constexpr int kUnderCaption = 18;
constexpr int kFieldsHeight = 3 * kRow + kEditHeight + kUnderCaption;
constexpr int kButtonWidth = 96;
constexpr int kListTop = kHeader + kMargin + kFieldsHeight + kMargin;
constexpr int kListHeight = 112;
constexpr int kClientWidth = kValuesLeft + kValuesWidth + kMargin + kButtonWidth + kMargin;

}  // namespace

void TFrmPesquisa::CreateControls() {
    TFrmBase::CreateControls();
    TForm::SetCaption(u"Pesquisa"_s);
    SetBorderStyle(bsDialog);
    SetBorderIcons(biSystemMenu);
    SetClientWidth(kClientWidth);
    SetClientHeight(kListTop + kUnderCaption + kListHeight + kMargin);
    CreateHeader();
    CreateFields();
    CreateValues();
    CreateList();
    Wire();
}

TLabel* TFrmPesquisa::AddLabel(const UnicodeString& name, const UnicodeString& text, int left, int top,
                               TControl* control) {
    auto* label = NewControl<TLabel>(this, this, name, QRect(left, top, 10, 16));
    label->SetCaption(text);
    label->SetFocusControl(control);
    return label;
}

void TFrmPesquisa::CreateHeader() {
    const bool hosted = Module && Module->Interface();
    const TDialogBand band =
        NewDialogBand(*this, hosted ? Module->Interface()->HostResources() : UnicodeString(), u"BTN_BUSCAR"_s,
                      u"Escolha o campo, o operador e o valor e adicione o filtro. A tela mostra os "
                      u"registros que atendem a "
                      "todos os filtros da lista."_s);
    Image1 = band.Image;
    LbDescriaco = band.Text;
}

void TFrmPesquisa::CreateFields() {
    const int top = kHeader + kMargin;
    LstCampos = NewControl<TListBox>(
        this, this, u"LstCampos"_s,
        QRect(kMargin, top + kUnderCaption, kFieldsWidth, kFieldsHeight - kUnderCaption));
    Label1 = AddLabel(u"Label1"_s, u"&Campos"_s, kMargin, top, LstCampos);
}

void TFrmPesquisa::CreateValues() {
    const auto row = [](int index) {
        return QRect(kValuesLeft, kHeader + kMargin + index * kRow + kUnderCaption, kValuesWidth,
                     kEditHeight);
    };
    const auto captionTop = [](int index) { return kHeader + kMargin + index * kRow; };
    CbOperador = NewControl<TComboBox>(this, this, u"CbOperador"_s, row(0));
    CbOperador->Items()->Assign(TStringArray{u"Igual"_s, u"Diferente"_s, u"Maior"_s, u"Menor"_s,
                                             u"Maior ou Igual"_s, u"Menor ou Igual"_s, u"Começa com..."_s,
                                             u"Contém"_s, u"Intervalo"_s, u"Nulo"_s, u"Não Nulo"_s});
    CbOperador->SetItemIndex(0);
    Label2 = AddLabel(u"Label2"_s, u"&Operador"_s, kValuesLeft, captionTop(0), CbOperador);
    EValor1 = NewControl<TMaskEdit>(this, this, u"EValor1"_s, row(1));
    DpValor1 = NewControl<TDateTimePicker>(this, this, u"DpValor1"_s, row(1));
    EValor2 = NewControl<TMaskEdit>(this, this, u"EValor2"_s, row(2));
    DpValor2 = NewControl<TDateTimePicker>(this, this, u"DpValor2"_s, row(2));
    Label3 = AddLabel(u"Label3"_s, u"&Valor"_s, kValuesLeft, captionTop(1), EValor1);
    Label4 = AddLabel(u"Label4"_s, u"Valor &Final"_s, kValuesLeft, captionTop(2), EValor2);
    for (TControl* first : {static_cast<TControl*>(EValor1), static_cast<TControl*>(DpValor1)}) {
        first->SetAccessibleName(u"Valor"_s);
    }
    DpValor2->SetAccessibleName(u"Valor Final"_s);
    DpValor1->SetDate(Date());
    DpValor2->SetDate(Date());
    CbOrdem = NewControl<TComboBox>(this, this, u"CbOrdem"_s, row(3));
    CbOrdem->Items()->Assign(TStringArray{u"Sem ordem"_s, u"Ascendente"_s, u"Descendente"_s});
    CbOrdem->SetItemIndex(0);
    Label5 = AddLabel(u"Label5"_s, u"O&rdem"_s, kValuesLeft, captionTop(3), CbOrdem);
}

void TFrmPesquisa::CreateList() {
    const int buttonsLeft = kValuesLeft + kValuesWidth + kMargin;
    const auto button = [&](const UnicodeString& name, const UnicodeString& caption, int top) {
        auto* made =
            NewControl<TButton>(this, this, name, QRect(buttonsLeft, top, kButtonWidth, kEditHeight));
        made->SetCaption(caption);
        return made;
    };
    Adicionar = button(u"Adicionar"_s, u"&Adicionar"_s, kHeader + kMargin + kUnderCaption);
    Adicionar->SetDefault(true);
    LstFiltros = NewControl<TListBox>(
        this, this, u"LstFiltros"_s,
        QRect(kMargin, kListTop + kUnderCaption, buttonsLeft - 2 * kMargin, kListHeight));
    Label6 = AddLabel(u"Label6"_s, u"Fi&ltros"_s, kMargin, kListTop, LstFiltros);
    Remover = button(u"Remover"_s, u"R&emover"_s, kListTop + kUnderCaption);
    Limpar = button(u"Limpar"_s, u"Li&mpar"_s, kListTop + kUnderCaption + kEditHeight + 8);
}

void TFrmPesquisa::Wire() {
    LstCampos->OnClick = [this](TComponent* sender) { LstCamposClick(sender); };
    CbOperador->OnChange = [this](TComponent* sender) { CbOperadorChange(sender); };
    EValor1->OnExit = [this](TComponent* sender) { EValor1Exit(sender); };
    EValor2->OnExit = [this](TComponent* sender) { EValor1Exit(sender); };
    Adicionar->OnClick = [this](TComponent* sender) { AdicionarClick(sender); };
    Remover->OnClick = [this](TComponent* sender) { RemoverClick(sender); };
    Limpar->OnClick = [this](TComponent* sender) { LimparClick(sender); };
}
