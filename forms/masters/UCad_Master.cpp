#include "forms/masters/UCad_Master.h"

#include <QScopedValueRollback>

#include <algorithm>

#include "forms/masters/Critica.h"
#include "forms/masters/GridRoom.h"
#include "forms/masters/KeyRecord.h"
#include "forms/masters/UViz_Master.h"
#include "platform/data/Query.h"
#include "platform/data/SaveTogether.h"
#include "platform/rtl/Exceptions.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBCtrls.h"
#include "utils/funcoes/Dinheiro.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kValueTag = 2;
constexpr int kQuantityTag = 3;

// The value of the first field as a record number, 0 when it is none.
int64_t RecordNumber(const TDataSet& dataSet) {
    const TField* first = dataSet.Fields().empty() ? nullptr : dataSet.Fields().front();
    if (!dynamic_cast<const TNumericField*>(first)) return 0;
    return std::max<int64_t>(first->AsLargeInt(), 0);
}

}  // namespace

TFrmCad_Master::TFrmCad_Master(TComponent* Owner, TModuleInstance* Module, unsigned char Mode,
                               TKeyType KeyType, bool LoadWindowConfig)
    : TFrmBase(Owner, Module, Module ? Module->Info() : TModuleInfo(), false, LoadWindowConfig),
      FKeyType(KeyType),
      FOperation(Mode) {}

TFrmViz_Master* TFrmCad_Master::OwnerView() const {
    return dynamic_cast<TFrmViz_Master*>(Owner());
}

bool TFrmCad_Master::SharesDataSet() const {
    const TFrmViz_Master* view = OwnerView();
    return view && view->MainDS->DataSet() == FMainDataSet;
}

void TFrmCad_Master::Construct() {
    TFrmBase::Construct();
    CheckBinding();
    FMainDataSet = MainDS->DataSet();
    ShowMode();
    if (FKeyType == ktFieldProviderFlag && !SharesDataSet()) OpenOwnRecord();
    PrepareOwned();
    LoadBitmaps();
    BeginEditing();
    RecreateTabs(PageControl->ActivePage());
    ReposBars();
}

void TFrmCad_Master::CheckBinding() const {
    if (!MainDS->DataSet()) throw Exception(u"Dataset not assigned for the main datasource."_s);
    if (FKeyType == ktFieldProviderFlag && !OwnerView()) {
        throw Exception(u"You cannot set KeyType to ktFieldProviderFlag when owner is not TFrmVizMaster."_s);
    }
}

void TFrmCad_Master::ShowMode() {
    SetCaption(Module->Caption() + ModeSuffix(FOperation));
    if (FOperation == kExcluir) BtnConfirmar->SetCaption(u"Excluir"_s);
    if (FOperation == kVisualizar) ShowViewMode();
}

void TFrmCad_Master::ShowViewMode() {
    BtnCancelar->SetCaption(u"  &Fechar  "_s);
    BtnConfirmar->Free();
    BtnConfirmar = nullptr;
    FKeys.Confirm = nullptr;
}

void TFrmCad_Master::OpenOwnRecord() {
    auto* query = dynamic_cast<TFDQuery*>(FMainDataSet);
    if (!query) throw Exception(u"The dataset of the main datasource must be a query."_s);
    FSQL = query->SQL()->Text();
    FWhere = KeyWhere(*OwnerView()->MainDS->DataSet(), *query, FOperation == kIncluir);
    OpenWhere(*query, FWhere);
    if (FOperation != kIncluir && query->IsEmpty()) RefuseGoneRecord();
}

// Without its record the form would edit a new one. The list loses the row as well.
void TFrmCad_Master::RefuseGoneRecord() const {
    OwnerView()->MainDS->DataSet()->Refresh();
    OwnerView()->GetRecordCount();
    throw Exception(u"Este registro foi excluído por outro usuário."_s);
}

void TFrmCad_Master::PrepareOwned() {
    if (FMainDataSet->Fields().empty()) FMainDataSet->DescribeFields();
    LeaveScrollBarRoom(*this);
    for (int i = 0; i < ComponentCount(); ++i) {
        TComponent* component = Components(i);
        if (auto* field = dynamic_cast<TNumericField*>(component)) PrepareNumber(*field);
        if (auto* dataSet = dynamic_cast<TDataSet*>(component)) PrepareFields(*dataSet);
    }
}

void TFrmCad_Master::PrepareFields(const TDataSet& DataSet) {
    for (TField* field : DataSet.Fields()) {
        if (auto* number = dynamic_cast<TNumericField*>(field)) PrepareNumber(*number);
    }
}

// Exact decimals are shown in the module's format as well; their column rounds them.
void TFrmCad_Master::PrepareNumber(TNumericField& Field) {
    const bool isFloat = dynamic_cast<TFloatField*>(&Field) != nullptr;
    if (!isFloat && !dynamic_cast<TBCDField*>(&Field)) return;
    if (Field.Tag() == kValueTag || Field.Tag() == kQuantityTag) {
        Field.SetDisplayFormat(Module->DisplayFormat(int(Field.Tag())));
    }
    if (isFloat) Field.OnValidate = [this](TField* field) { FloatFieldValidate(field); };
}

void TFrmCad_Master::FloatFieldValidate(TField* Field) {
    if (FRounding || Field->IsNull()) return;
    const QScopedValueRollback guard(FRounding, true);
    const int decimals = Field->Tag() == kQuantityTag ? Module->QuantityDecimals() : Module->ValueDecimals();
    Field->SetAsFloat(ArredondaDouble(Field->AsFloat(), decimals));
}

void TFrmCad_Master::BeginEditing() {
    if (FOperation == kIncluir) {
        if (!FMainDataSet->Active()) FMainDataSet->Open();
        FMainDataSet->Append();
    } else if (FOperation == kAlterar) {
        FMainDataSet->Edit();
    } else {
        for (int i = 0; i < PageControl->PageCount(); ++i) PageControl->Pages(i)->SetEnabled(false);
    }
}

void TFrmCad_Master::CriticaBranco() {
    ::CriticaBranco(*this, [this](TControl* control) { ShowPageOf(control); });
}

void TFrmCad_Master::BtnConfirmarClick(TComponent*) {
    switch (FOperation) {
        case kIncluir:
        case kAlterar: return ConfirmRecord();
        case kExcluir: return ConfirmDeletion();
        default: return CloseConfirmed();
    }
}

// Parking the focus on the pages and taking it back makes a half-typed value reach its field.
void TFrmCad_Master::CommitActiveControl() {
    TControl* active = ActiveControl();
    PageControl->SetFocus();
    if (active && active->CanFocus()) active->SetFocus();
}

bool TFrmCad_Master::Asks(const UnicodeString& Question) {
    return Application->MessageBox(Question, u"Confirmação"_s, MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void TFrmCad_Master::ConfirmRecord() {
    CommitActiveControl();
    CriticaBranco();
    if (FOperation == kIncluir && FConfirmToPost && !Asks(u"Confirma os dados?"_s)) return;
    SaveTogether(*FMainDataSet, [this] {
        if (FOnConfirm) FOnConfirm(FMainDataSet, FOperation);
        PostRecord();
    });
    CommitItems();
    CloseConfirmed();
}

void TFrmCad_Master::PostRecord() {
    TField* deleted = FMainDataSet->FindField(u"TF_DEL"_s);
    if (deleted && deleted->AsString() == u"S") deleted->SetAsString(u"N"_s);
    FMainDataSet->Post();
    FLastID = RecordNumber(*FMainDataSet);
}

void TFrmCad_Master::ConfirmDeletion() {
    if (FOnDelete) {
        FOnDelete(FMainDataSet, FOperation);
    } else if (Asks(u"Tem certeza que deseja excluir esse registro?"_s)) {
        DeleteRecord();
    } else {
        return;
    }
    CloseConfirmed();
}

void TFrmCad_Master::DeleteRecord() {
    TField* deleted = FMainDataSet->FindField(u"TF_DEL"_s);
    if (!deleted) return FMainDataSet->Delete();
    FMainDataSet->Edit();
    deleted->SetAsString(u"S"_s);
    FMainDataSet->Post();
}

void TFrmCad_Master::CloseConfirmed() {
    FClose = true;
    Close();
}

void TFrmCad_Master::BtnCancelarClick(TComponent*) {
    Close();
}

// What the host's handlers applied inside the transaction is written now.
void TFrmCad_Master::CommitItems() const {
    for (int i = 0; i < ComponentCount(); ++i) {
        if (auto* query = dynamic_cast<TFDCustomQuery*>(Components(i))) query->CommitUpdates();
    }
}
