// How the registration master closes: what would be lost is asked for, and the opener's list is brought up to
// date.
#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"
#include "platform/data/Query.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Whether closing would lose something of the dataset. Text that still waits in a control counts: it is
// written to its field first, and text that the field refuses is a change as well.
bool HasChanges(TDataSet& dataSet) {
    const auto* query = dynamic_cast<TFDCustomQuery*>(&dataSet);
    if (query && query->UpdatesPending()) return true;
    if (dataSet.State() != dsEdit && dataSet.State() != dsInsert) return false;
    try {
        dataSet.UpdateRecord();
    } catch (const Exception&) {
        return true;
    }
    return dataSet.Modified();
}

void Reopen(TDataSet& dataSet) {
    dataSet.Close();
    dataSet.Open();
}

}  // namespace

void TFrmCad_Master::FormCloseQuery(TComponent*, bool& CanClose) {
    if (!ModeEdits(FOperation) || !IsModified()) return;
    CanClose = Asks(u"Você tem certeza que deseja cancelar?"_s);
}

void TFrmCad_Master::FormClose(TComponent* Sender, TCloseAction& Action) {
    TFrmBase::FormClose(Sender, Action);
    if (!FClose && FMainDataSet->State() != dsInactive) FMainDataSet->Cancel();
    Application->OnActiveControlChange = nullptr;
    try {
        UpdateOwner();
    } catch (const EAbort&) {
    } catch (const Exception& e) {
        // The record itself is safe; a view that cannot be read now must not keep the form open.
        Application->MessageBox(ListBehindText(Closing(), e.Message), u"Aviso"_s, MB_ICONWARNING);
    }
}

bool TFrmCad_Master::IsModified() const {
    if (HasChanges(*FMainDataSet)) return true;
    for (int i = 0; i < ComponentCount(); ++i) {
        auto* dataSet = dynamic_cast<TDataSet*>(Components(i));
        if (dataSet && HasChanges(*dataSet)) return true;
    }
    return false;
}

TClosing TFrmCad_Master::Closing() const {
    const TFrmViz_Master* view = OwnerView();
    return {FOperation,
            FClose,
            SharesDataSet(),
            view != nullptr,
            view ? view->VisType() : vtFilter,
            FLastID,
            FMainDataSet->FindField(u"TF_DEL"_s) != nullptr};
}

void TFrmCad_Master::UpdateOwner() {
    TFrmViz_Master* view = OwnerView();
    const TOwnerUpdate update = OwnerUpdateAfter(Closing());
    BringUpToDate(update.Step, view);
    if (!view) return;
    TDataSet* shown = view->MainDS->DataSet();
    if (update.RefreshOwner && shown->Active()) shown->Refresh();
    view->GetRecordCount();
}

void TFrmCad_Master::BringUpToDate(TOwnerUpdate::TStep Step, TFrmViz_Master* View) {
    switch (Step) {
        case TOwnerUpdate::Nothing: return;
        case TOwnerUpdate::ReopenOwn: return Reopen(*FMainDataSet);
        case TOwnerUpdate::ReopenOwnAtLast: Reopen(*FMainDataSet); return FMainDataSet->Last();
        case TOwnerUpdate::OwnerAtLast:
            View->MainDS->DataSet()->Refresh();
            return View->MainDS->DataSet()->Last();
        case TOwnerUpdate::FilterOwner: return FilterOwner(*View);
        case TOwnerUpdate::ReopenOwner: return Reopen(*View->MainDS->DataSet());
    }
}

void TFrmCad_Master::FilterOwner(TFrmViz_Master& View) {
    View.GoToRecord({FMainDataSet->Fields().front()->FieldName()}, {IntToStr(FLastID)});
}
