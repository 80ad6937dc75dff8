#include "forms/masters/UViz_Master.h"

#include "db/Filtro.h"
#include "forms/base/UWaitScreen.h"
#include "forms/browse/UPesquisa.h"
#include "forms/masters/GridPrint.h"
#include "forms/masters/MasterRules.h"
#include "forms/masters/UVizFields.h"
#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/rtl/Exceptions.h"
#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSmallestFont = 6;
constexpr int kLargestFont = 12;
constexpr int kRestored = 1;  // modal result of the field dialog

UnicodeString ResearchItems() {
    return u"|;|"_s;
}

TStringArray Items(const UnicodeString& text) {
    const QStringList parts = text.split(ResearchItems());
    return {parts.begin(), parts.end()};
}

}  // namespace

TFrmViz_Master::TFrmViz_Master(TComponent* Owner, TModuleInstance* Module, TClassCad_Master CadForm,
                               TVizsualizationType VisType, TKeyType KeyType)
    : TFrmGrid_Master(Owner, Module, true, VisType, KeyType), FCadForm(std::move(CadForm)) {}

void TFrmViz_Master::Construct() {
    TFrmGrid_Master::Construct();
    if (VisType() != vtList) return;
    if (BtnBuscar) std::exchange(BtnBuscar, nullptr)->Free();
    Pesquisa1->SetVisible(false);
    TBMenu->SetMenu(nullptr);
    TBMenu->SetMenu(MainMenu1);
}

void TFrmViz_Master::FormCreate(TComponent* Sender) {
    TFrmGrid_Master::FormCreate(Sender);
    FSaveGrid = true;
    LoadBitmaps();
    TBButtons->SetImages(ImgLst);
    FixToolBarSize();
    PlaceGrid();
    SetLeastSize();
    const bool softDelete = MainDataSet()->FindField(u"TF_DEL"_s) != nullptr;
    ExibirRegistrosExcludos1->SetVisible(softDelete);
    N1->SetVisible(softDelete);
    LoadGridConfig();
    SaveGridConfig();
}

void TFrmViz_Master::FormDestroy(TComponent* Sender) {
    if (FSaveGrid) SaveGridConfig();
    TFrmGrid_Master::FormDestroy(Sender);
}

void TFrmViz_Master::WndProc(TMessage& Message) {
    if (Message.Msg == MSG_PESQUISA) return CmdSearchResult(Message);
    TFrmGrid_Master::WndProc(Message);
}

void TFrmViz_Master::CmdSearchResult(TMessage&) {
    GoToSearchResult();
}

void TFrmViz_Master::GoToSearchResult() {
    GoToRecord(Items(Module->ResearchFields), Items(Module->ResearchValues));
}

void TFrmViz_Master::GoToRecord(const TStringArray& Fields, const TStringArray& Values) {
    std::vector<TField*> keys;
    for (const UnicodeString& name : Fields) keys.push_back(MainDataSet()->FieldByName(name));
    if (VisType() == vtFilter) {
        Filtro(MainDataSet(), keys, Values, {}, FWhere, Params, ParamValues, KeyType(), FShowDeleted);
    } else {
        const QStringList names(Fields.begin(), Fields.end());
        MainDataSet()->Locate(names.join(u';'), Variant::Array({Values.begin(), Values.end()}), 0);
    }
    GetRecordCount();
}

bool TFrmViz_Master::HasRecords() const {
    return MainDataSet()->Active() && !MainDataSet()->IsEmpty();
}

bool TFrmViz_Master::CurrentIsDeleted() const {
    const TField* deleted = MainDataSet()->FindField(u"TF_DEL"_s);
    return deleted && HasRecords() && deleted->AsString() == u"S";
}

void TFrmViz_Master::CreateCad(unsigned char Mode) {
    FinishSearch();
    const TOpening opening{Mode, bool(FCadForm), HasRecords(), KeyType(), !PrimaryKey.empty()};
    if (const auto refusal = RefuseOpening(opening)) {
        if (refusal->Kind == TRefusal::Excecao) throw Exception(refusal->Text);
        const bool error = refusal->Kind == TRefusal::Erro;
        Application->MessageBox(refusal->Text, error ? u"Erro"_s : u"Informação"_s,
                                error ? MB_ICONERROR : MB_ICONINFORMATION);
        Abort();
    }
    FCadForm(this, Module, Mode, KeyType(), true);
}

void TFrmViz_Master::RequireRight(const UnicodeString& Right, const UnicodeString& Refusal) const {
    if (!Module->GetRight(Right)) throw Exception(Refusal);
}

void TFrmViz_Master::BtnNovoClick(TComponent*) {
    RequireRight(u"New"_s, u"Desculpe mais você não tem direitos suficientes para incluir um registro."_s);
    CreateCad(kIncluir);
}

void TFrmViz_Master::BtnAlterarClick(TComponent*) {
    FinishSearch();
    if (CurrentIsDeleted()) {
        const int answer = Application->MessageBox(
            u"Para efetuar alguma alteração, você deve restaurar o registro. Deseja restaurar o registro selecionado?"_s,
            u"Confirmação"_s, MB_YESNO | MB_ICONQUESTION);
        if (answer == IDNO) return;
    }
    OpenForChange();
}

void TFrmViz_Master::OpenForChange() {
    CreateCad(Module->GetRight(u"Edit"_s) ? kAlterar : kVisualizar);
}

void TFrmViz_Master::DBGrdDblClick(TComponent*) {
    OpenForChange();
}

void TFrmViz_Master::BtnExcluirClick(TComponent*) {
    RequireRight(u"Delete"_s, u"Desculpe mais você não tem direitos suficientes para excluir um registro."_s);
    FinishSearch();
    if (CurrentIsDeleted()) throw Exception(u"Esse registro já foi excluído."_s);
    CreateCad(kExcluir);
}

void TFrmViz_Master::BtnImprimirClick(TComponent*) {
    FinishSearch();
    if (!HasRecords()) {
        Application->MessageBox(u"Não existe nenhum registro a ser impresso."_s, u"Informação"_s,
                                MB_ICONINFORMATION);
        Abort();
    }
    auto* wait = NewForm<TFrmWaitScreen>(Application);
    Module->Interface()->ExecuteProcEx(
        wait, [this] { PrintGrid(); }, this);
}

void TFrmViz_Master::PrintGrid() {
    ::PrintGrid(*this, Paisagem1->Checked());
}

void TFrmViz_Master::DBGrdKeyPress(TComponent*, WideChar& Key) {
    if (Key != VK_RETURN) return;
    Key = 0;
    FinishSearch();
    if (HasRecords()) {
        if (BtnAlterar && BtnAlterar->Enabled()) BtnAlterar->Click();
    } else if (BtnNovo && BtnNovo->Enabled() && BtnNovo->Visible() && Module->GetRight(u"New"_s)) {
        BtnNovo->Click();
    }
}

void TFrmViz_Master::FormKeyDown(TComponent* Sender, int& Key, TShiftState Shift) {
    TFrmGrid_Master::FormKeyDown(Sender, Key, Shift);
    if (Key != VK_INSERT || !BtnNovo || !BtnNovo->Visible()) return;
    Key = 0;
    BtnNovo->Click();
}

void TFrmViz_Master::ExibirRegistrosExcludos1Click(TComponent*) {
    TMenuItem* item = ExibirRegistrosExcludos1;
    item->SetChecked(!item->Checked());
    FShowDeleted = item->Visible() && item->Checked();
    if (VisType() == vtFilter) return Locate({});
    MainDataSet()->Close();
    MainDataSet()->Open();
    GetRecordCount();
}

void TFrmViz_Master::AumentarFonte1Click(TComponent*) {
    if (DBGrd->FontSize() < kLargestFont) DBGrd->SetFontSize(DBGrd->FontSize() + 1);
}

void TFrmViz_Master::DiminuirFonte1Click(TComponent*) {
    if (DBGrd->FontSize() > kSmallestFont) DBGrd->SetFontSize(DBGrd->FontSize() - 1);
}

void TFrmViz_Master::RestaurarCampos1Click(TComponent*) {
    const int answer = Application->MessageBox(
        u"Você tem certeza que deseja restaurar a configuração padrão dessa janela?"_s, u"Confirmação"_s,
        MB_YESNO | MB_ICONQUESTION);
    if (answer != IDYES) return;
    FSaveGrid = false;
    ClearProps();
    Application->MessageBox(u"A restauração foi efetuada com sucesso."_s, u"Informação"_s,
                            MB_ICONINFORMATION);
    if (FFormCampos) FFormCampos->SetModalResult(kRestored);
    Close();
}

void TFrmViz_Master::Campos1Click(TComponent*) {
    FinishSearch();
    SaveGridConfig();
    FFormCampos = NewForm<TFrmVizFields>(this, [this] { RestaurarCampos1Click(nullptr); });
    const bool restored = FFormCampos->ShowModal() == kRestored;
    if (!restored) SaveGridConfig();
    std::exchange(FFormCampos, nullptr)->Free();
}

void TFrmViz_Master::Filtros1Click(TComponent*) {
    NewForm<TFrmPesquisa>(this, Module, Module->Info(), false, true, UnicodeString());
}

void TFrmViz_Master::Paisagem1Click(TComponent* Sender) {
    auto* item = static_cast<TMenuItem*>(Sender);
    item->SetChecked(true);
    SetIntWindowProp(u"ModelPrint"_s, item == Paisagem1 ? 1 : 0);
}

void TFrmViz_Master::Sair1Click(TComponent*) {
    Close();
}

void TFrmViz_Master::SaveGridConfig() {
    ::SaveGridConfig(*this);
}

void TFrmViz_Master::LoadGridConfig() {
    (GetIntWindowProp(u"ModelPrint"_s, 0) != 0 ? Paisagem1 : Retrato1)->SetChecked(true);
    if (LoadGridColumns(*this, PickLists)) FollowOrderColumn();
    const int order = StoredOrderColumn(*this);
    if (order >= 0 && DBGrd->OnTitleClick) DBGrd->OnTitleClick(DBGrd->Columns()[order]);
}

// The columns have other fields and titles now: the ordering column is the one that shows the ordering field,
// or the one at its old place when no column shows it any more.
void TFrmViz_Master::FollowOrderColumn() {
    int index = FOrderFieldIndex;
    for (int i = 0; i < DBGrd->Columns().Count(); ++i) {
        if (DBGrd->Columns()[i]->Field() == FOrderField) index = i;
    }
    TakeOrderColumn(index);
}
