#include "forms/browse/UPesq_Master.h"

#include <QPainter>
#include <QStringList>

#include "forms/browse/MedidasPesquisa.h"
#include "platform/data/DataSet.h"
#include "platform/ui/Application.h"
#include "platform/ui/Palette.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kClientWidth = 680;
constexpr int kClientHeight = 400;
constexpr int kSearchLeft = 48;
constexpr int kSearchTop = 16;
constexpr int kButtonsTop = 4;
constexpr int kLeastButtonWidth = 65;
constexpr int kRowsInSight = 15;
constexpr int kMargin = 16;
const UnicodeString kItemEnd = u"|;|"_s;

}  // namespace

TFrmPesq_Master::TFrmPesq_Master(TComponent* AOwner, TModuleInstance* AModule, TVizsualizationType AVisType,
                                 TResearchResult* AResult, const UnicodeString& StartStr,
                                 const UnicodeString& SQLCondition, int ATag)
    : TFrmGrid_Master(AOwner, AModule, false, AVisType, ktNone), FResult(AResult), FStartStr(StartStr) {
    SetTag(ATag);
    SetWhere(SQLCondition);
}

void TFrmPesq_Master::AddResultField(const UnicodeString& FieldName) {
    FResultFields.push_back(FieldName);
}

void TFrmPesq_Master::CreateControls() {
    TFrmGrid_Master::CreateControls();
    SetClientWidth(kClientWidth);
    SetClientHeight(kClientHeight);
    CreateStrip();
    DBGrd->OnDblClick = [this](TComponent* sender) { BtnRetornarClick(sender); };
    OnPaint = [this](QPainter& painter) { FormPaint(painter); };
}

void TFrmPesq_Master::CreateStrip() {
    ImgIcon = NewControl<TImage>(this, this, u"ImgIcon"_s, QRect(kMargin, kSearchTop, 24, 24));
    Label1 = NewControl<TLabel>(this, this, u"Label1"_s);
    Label1->SetCaption(u"Enter retorna o registro"_s);
    Label2 = NewControl<TLabel>(this, this, u"Label2"_s);
    Label2->SetCaption(u"Esc fecha sem retornar"_s);
    TBButtons = NewControl<TToolBar>(this, this, u"TBButtons"_s);
    TBButtons->SetAccessibleName(u"Ações"_s);
    TBButtons->SetButtonWidth(kLeastButtonWidth);
    TBButtons->SetGradient(Cores::Superficie, Cores::SuperficieEscura);
    BtnRetornar = AddButton(u"BtnRetornar"_s, u"Retornar"_s, &TFrmPesq_Master::BtnRetornarClick);
    BtnCancela = AddButton(u"BtnCancela"_s, u"Cancelar"_s, &TFrmPesq_Master::BtnCancelaClick);
}

TToolButton* TFrmPesq_Master::AddButton(const UnicodeString& name, const UnicodeString& caption,
                                        void (TFrmPesq_Master::*click)(TComponent*)) {
    auto* button = new TToolButton(this);
    button->SetName(name);
    button->SetCaption(caption);
    button->SetImageIndex(TBButtons->ButtonCount());
    button->OnClick = [this, click](TComponent* sender) { (this->*click)(sender); };
    button->SetParent(TBButtons);
    return button;
}

void TFrmPesq_Master::LoadBitmaps() {
    FHeader.Load(Module->ModuleResources());
    ImgIcon->SetResource(Module->ModuleResources(), u"IMG_LUPA"_s);
    AddIcon(u"BTN_ANTERIOR"_s, rtPNG, false);
    AddIcon(u"BTN_SAIR_24"_s, rtPNG, false);
}

void TFrmPesq_Master::FormCreate(TComponent* Sender) {
    TFrmGrid_Master::FormCreate(Sender);
    if (ImgLst) std::exchange(ImgLst, nullptr)->Free();
    ImgLst = new TImageList(this, 24, 24);
    LoadBitmaps();
    TBButtons->SetImages(ImgLst);
    PlaceControls();
    SetMinWidth(TBButtons->Width() + PnPesquisa->Width() + FHeader.EfectWidth() + kMargin);
    SetMinHeight(kRowsInSight * DBGrd->RowHeight() + DBGrd->Top() + kMargin);
    if (EdtPesquisa->Visible()) SetActiveControl(EdtPesquisa);
}

void TFrmPesq_Master::PlaceControls() {
    PnPesquisa->SetAnchors(akLeft | akTop);
    PnPesquisa2->SetAnchors(akLeft | akTop);
    LbPesqInt->SetAnchors(akLeft | akTop);
    LbPesqInt->SetFontColor(Cores::Trabalho);
    const int right = PnPesquisa->Width() == kRangeEndWidth ? kSearchWidth - kRangeEndWidth : 0;
    PnPesquisa->SetLeft(kSearchLeft + right);
    PnPesquisa->SetTop(kSearchTop);
    FixPesqPanel();
    const int width = TBButtons->ButtonCount() * TBButtons->ButtonWidth() + 2;
    TBButtons->SetBounds(ClientWidth() - width, kButtonsTop, width, THeaderStrip::kButtonsHeight);
    TBButtons->SetAnchors(akTop | akRight);
    for (TLabel* label : {Label1, Label2}) {
        label->SetFontColor(Cores::Trabalho);
        label->SetLeft(kSearchLeft + kSearchWidth + kMargin);
        label->SetTop(label == Label1 ? 10 : 28);
    }
    DBGrd->SetBounds(0, THeaderStrip::kHeight, ClientWidth(), ClientHeight() - THeaderStrip::kHeight);
}

// The hints give way where the window is narrow.
void TFrmPesq_Master::FormResize(TComponent* Sender) {
    TFrmGrid_Master::FormResize(Sender);
    const int room = TBButtons->Left() - FHeader.EfectWidth();
    for (TLabel* label : {Label1, Label2}) label->SetVisible(label->Left() + label->Width() < room);
    Repaint();
}

void TFrmPesq_Master::FormPaint(QPainter& Painter) {
    FHeader.Paint(Painter, FHeader.Lay(0, ClientWidth(), TBButtons->Left(), TBButtons->Width()));
}

void TFrmPesq_Master::FormDestroy(TComponent* Sender) {
    TFrmGrid_Master::FormDestroy(Sender);
    if (!FResult) return;
    FResult->Form = nullptr;
    if (FResult->Delivered && FResult->OnDelivered) FResult->OnDelivered(*FResult);
}

void TFrmPesq_Master::FormKeyPress(TComponent* Sender, WideChar& Key) {
    if (!ListIsOpen() && (Key == VK_ESCAPE || Key == VK_RETURN)) {
        const bool cancels = std::exchange(Key, WideChar(0)) == VK_ESCAPE;
        return cancels ? BtnCancelaClick(Sender) : BtnRetornarClick(Sender);
    }
    TFrmGrid_Master::FormKeyPress(Sender, Key);
}

void TFrmPesq_Master::DBGrdTitleClick(TColumn* Column) {
    TFrmGrid_Master::DBGrdTitleClick(Column);
    if (EdtPesquisa->CanFocus()) {
        EdtPesquisa->SetFocus();
    } else if (DpPesq1->CanFocus()) {
        DpPesq1->SetFocus();
    }
}

void TFrmPesq_Master::EdtPesquisaEnter(TComponent* Sender) {
    TFrmGrid_Master::EdtPesquisaEnter(Sender);
    const std::vector<TField*>& fields = MainDataSet()->Fields();
    if (FOrderFieldIndex < 0 || FOrderFieldIndex >= int(fields.size())) return;
    if (!dynamic_cast<const TStringField*>(fields[size_t(FOrderFieldIndex)])) return;
    EdtPesquisa->SetText(FStartStr);
    EdtPesquisa->CaretToEnd();
}

void TFrmPesq_Master::BtnRetornarClick(TComponent*) {
    while (LookingForRecords && !Releasing()) Wait(1);
    if (Releasing() || !FResult || FResult->Delivered) return;
    if (FResultFields.empty()) {
        throw Exception(
            u"Nenhum campo foi informado para a lista de resultados. Favor utilizar o método \"AddResultField\" para adicionar os resultados."_s);
    }
    if (!MainDataSet()->Active() || MainDataSet()->IsEmpty())
        throw Exception(u"Nenhum resultado foi retornado para a pesquisa."_s);
    DeliverRecord();
    TellOpener();
    Close();
}

void TFrmPesq_Master::DeliverRecord() {
    TResultArray values;
    for (const UnicodeString& name : FResultFields)
        values.push_back(MainDataSet()->FieldByName(name)->Value());
    FResult->Count = int(values.size());
    FResult->Values = std::move(values);
    FResult->Delivered = true;
}

// A grid of the same records moves to the one that was returned.
void TFrmPesq_Master::TellOpener() {
    auto* opener = dynamic_cast<TFrmGrid_Master*>(Opener());
    if (!opener || opener->PrimaryKey.empty()) return;
    QStringList names, values;
    for (const UnicodeString& name : opener->PrimaryKey) {
        const TField* field = MainDataSet()->FindField(name);
        if (!field) return;
        names << name;
        values << field->AsString();
    }
    opener->Module->ResearchFields = names.join(kItemEnd);
    opener->Module->ResearchValues = values.join(kItemEnd);
    PostMessage(opener, MSG_PESQUISA);
}

void TFrmPesq_Master::BtnCancelaClick(TComponent*) {
    Close();
}
