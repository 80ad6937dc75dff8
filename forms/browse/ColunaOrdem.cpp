// The ordering column of the grid master: how it is chosen, its mark, and what keeps it when columns move or
// fields go.
#include "forms/browse/CriterioPesquisa.h"
#include "forms/browse/UGrid_Master.h"
#include "platform/data/DataSet.h"
#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kOrderMark = u"»"_s;

}  // namespace

// Keeps the ordering field that of its column: a statement with other columns makes other fields, and the
// whole dataset may go.
class TFrmGrid_Master::TOrderLink : public TDataLink {
  public:
    explicit TOrderLink(TFrmGrid_Master& form) : FForm(form) { SetDataSource(form.MainDS); }

    void ActiveChanged() override {
        const int index = FForm.FOrderFieldIndex;
        if (index < 0 || index >= FForm.DBGrd->Columns().Count()) return;
        const UnicodeString& name = FForm.DBGrd->Columns()[index]->FieldName();
        FForm.FOrderField = DataSet() ? DataSet()->FindField(name) : nullptr;
    }
    void FieldGone(TField* field) override {
        if (FForm.FOrderField == field) FForm.FOrderField = nullptr;
    }

  private:
    TFrmGrid_Master& FForm;
};

void TFrmGrid_Master::WatchOrderField() {
    FOrderLink = std::make_unique<TOrderLink>(*this);
}

void TFrmGrid_Master::GetOrderField() {
    const int count = DBGrd->Columns().Count();
    if (count == 0) return;
    const int wanted = int(MainDataSet()->Tag());
    int index = 0;
    if (wanted >= 0 && wanted < MainDataSet()->FieldCount()) {
        const TField* field = MainDataSet()->Fields()[wanted];
        for (int i = count - 1; i >= 0; --i) {
            if (DBGrd->Columns()[i]->Field() == field) index = i;
        }
    }
    SetOrderFieldIndex(index);
}

bool TFrmGrid_Master::CanOrderBy(int Index) const {
    const TField* field = DBGrd->Columns()[Index]->Field();
    return !field || field->Origin() != u"#0";
}

void TFrmGrid_Master::SetOrderFieldIndex(int Index) {
    if (Index < 0 || Index >= DBGrd->Columns().Count()) {
        throw Exception(
            u"Você precisa definir qual campo de ordem padrão. Informe o campo na propriedade \"Tag\" do DataSet principal."_s);
    }
    TColumn* column = DBGrd->Columns()[Index];
    if (!CanOrderBy(Index)) Abort();
    if (FOrderFieldIndex >= 0 && FOrderFieldIndex < DBGrd->Columns().Count()) {
        DBGrd->Columns()[FOrderFieldIndex]->Title().SetCaption(FOrderDesc);
    }
    TakeOrderColumn(Index);
    CbPesquisa->SetVisible(false);
    EdtPesquisa->SetEditMask({});
    if (FVisType == vtFilter) MainDataSet()->Close();
    ClearSearch();
    GetRecordCount();
    if (SearchKindOf(FOrderField) == skDate) {
        ShowDateSearch();
    } else {
        ShowTextSearch(column);
    }
}

void TFrmGrid_Master::TakeOrderColumn(int Index) {
    FOrderFieldIndex = Index;
    FOrderField = DBGrd->Columns()[Index]->Field();
    SetColumnTitle(Index, DBGrd->Columns()[Index]->Title().Caption());
}

void TFrmGrid_Master::OrderByNeighbour(int Step) {
    const int count = DBGrd->Columns().Count();
    for (int i = 1; i < count; ++i) {
        const int index = (FOrderFieldIndex + (Step > 0 ? i : count - i)) % count;
        TColumn* column = DBGrd->Columns()[index];
        if (!column->Visible() || !CanOrderBy(index)) continue;
        DBGrd->SetFocus();
        if (DBGrd->OnTitleClick) DBGrd->OnTitleClick(column);
        return;
    }
}

UnicodeString TFrmGrid_Master::GetColumnTitle(int Index) const {
    return Index == FOrderFieldIndex ? FOrderDesc : DBGrd->Columns()[Index]->Title().Caption();
}

void TFrmGrid_Master::SetColumnTitle(int Index, const UnicodeString& Title) {
    const bool ordering = Index == FOrderFieldIndex;
    if (ordering) FOrderDesc = Title;
    DBGrd->Columns()[Index]->Title().SetCaption(ordering ? kOrderMark + Title : Title);
}

void TFrmGrid_Master::DBGrdTitleClick(TColumn* Column) {
    if (std::exchange(FColumnMoved, false)) return;
    SetOrderFieldIndex(Column->Index());
}

// The ordering column went along or made way; its field may be gone, so it is followed by its place.
void TFrmGrid_Master::DBGrdColumnMoved(int FromIndex, int ToIndex) {
    FColumnMoved = true;
    if (FOrderFieldIndex == FromIndex) {
        FOrderFieldIndex = ToIndex;
    } else if (FromIndex < FOrderFieldIndex && FOrderFieldIndex <= ToIndex) {
        --FOrderFieldIndex;
    } else if (ToIndex <= FOrderFieldIndex && FOrderFieldIndex < FromIndex) {
        ++FOrderFieldIndex;
    }
    PostMessage(this, MSG_ATIVADO);
}

void TFrmGrid_Master::CmdSetMovedOff() {
    FColumnMoved = false;
}
