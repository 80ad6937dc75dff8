#include "forms/masters/EditKeys.h"

#include <QTreeView>

#include "platform/data/DataSet.h"
#include "platform/ui/DBCtrls.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/KeyHub.h"
#include "platform/ui/RichEdit.h"
#include "platform/ui/ValueList.h"
#include "utils/funcoes/Teclas.h"

namespace {

void DescribeData(TEditControl& state, const TDataSet* dataSet) {
    if (!dataSet) return;
    state.Editing = dataSet->State() == dsEdit || dataSet->State() == dsInsert;
    state.SettingKey = dataSet->State() == dsSetKey;
    state.Modified = dataSet->Modified();
}

bool IsLastColumn(const TDBGrid& grid) {
    for (int i = grid.SelectedIndex() + 1; i < grid.Columns().Count(); ++i) {
        if (grid.Columns()[i]->Visible()) return false;
    }
    return true;
}

void DescribeGrid(TEditControl& state, const TDBGrid& grid) {
    state.Kind = TEditControl::Grid;
    state.EditorMode = grid.EditorMode();
    state.LastColumn = IsLastColumn(grid);
    DescribeData(state, grid.DataSet());
}

void DescribeLookup(TEditControl& state, const TDBLookupComboBox& lookup) {
    state.Kind = TEditControl::Lookup;
    state.ListShowing = lookup.ListVisible();
    state.HasValue = !lookup.KeyValue().IsNull() && !lookup.KeyValue().IsUnassigned();
    if (lookup.Field()) DescribeData(state, lookup.Field()->DataSet());
}

void DescribeMemo(TEditControl& state, TEditControl::TKind kind, const TMemo& memo) {
    state.Kind = kind;
    state.WantsEnter = memo.WantReturns();
}

void ClearLookup(TDBLookupComboBox& lookup) {
    if (dynamic_cast<TNumericField*>(lookup.Field())) {
        lookup.Field()->Clear();
    } else {
        lookup.SetKeyValue(Variant::Null());
    }
}

void NextRow(TValueListEditor& list) {
    list.SetRow(list.Row() + 1);
}

void DropDown(TControl* control) {
    if (auto* lookup = dynamic_cast<TDBLookupComboBox*>(control)) {
        lookup->DropDown();
    } else if (auto* combo = dynamic_cast<TComboBox*>(control)) {
        combo->SetDroppedDown(true);
    }
}

}  // namespace

TEditControl DescribeControl(TControl* control) {
    TEditControl state;
    if (auto* grid = dynamic_cast<TDBGrid*>(control)) {
        DescribeGrid(state, *grid);
    } else if (auto* lookup = dynamic_cast<TDBLookupComboBox*>(control)) {
        DescribeLookup(state, *lookup);
    } else if (auto* combo = dynamic_cast<TComboBox*>(control)) {
        state.Kind = TEditControl::Combo;
        state.ListShowing = combo->DroppedDown();
    } else if (auto* dbMemo = dynamic_cast<TDBMemo*>(control)) {
        DescribeMemo(state, TEditControl::DBMemo, *dbMemo);
    } else if (auto* memo = dynamic_cast<TMemo*>(control)) {
        DescribeMemo(state, TEditControl::Memo, *memo);
    } else if (auto* rich = dynamic_cast<TDBRichEdit*>(control)) {
        state.Kind = TEditControl::RichEdit;
        state.WantsEnter = rich->WantReturns();
    } else if (dynamic_cast<TValueListEditor*>(control)) {
        state.Kind = TEditControl::Values;
    } else if (control && qobject_cast<QTreeView*>(control->Widget())) {
        state.Kind = TEditControl::Tree;
    }
    return state;
}

void TEditKeys::ShortCut(TShortCutKey& key, bool& handled) {
    const TEditAction action = ShortCutAction(key.Key, DescribeControl(FForm->ActiveControl()));
    if (action == TEditAction::None) return;
    handled = true;
    Execute(action);
}

void TEditKeys::KeyDown(int& key) {
    const TEditControl active = DescribeControl(FForm->ActiveControl());
    const TEditAction action = KeyDownAction(key, active, bool(Confirm), bool(Pages));
    if (action == TEditAction::None) return;
    key = 0;
    Execute(action);
}

void TEditKeys::KeyPress(WideChar& key) {
    const TEditControl active = DescribeControl(FForm->ActiveControl());
    const TEditAction action = key == VK_RETURN ? EnterAction(active) : TEditAction::None;
    if (action != TEditAction::None) {
        key = 0;
        return Execute(action);
    }
    if (active.Kind == TEditControl::Grid) key = UpeCase(key);
}

void TEditKeys::Execute(TEditAction action) {
    switch (action) {
        case TEditAction::None: return;
        case TEditAction::PriorColumn: return MoveColumn(-1);
        case TEditAction::NextColumn: return MoveColumn(1);
        case TEditAction::ClearLookup:
            return ClearLookup(dynamic_cast<TDBLookupComboBox&>(*FForm->ActiveControl()));
        case TEditAction::Cancel: return Cancel();
        case TEditAction::Confirm: return Confirm();
        case TEditAction::PriorTab: return Pages(false);
        case TEditAction::NextTab: return Pages(true);
        case TEditAction::DropDown: return ::DropDown(FForm->ActiveControl());
        case TEditAction::StrokeBack: return InjectKey(VK_TAB, ssShift);
        case TEditAction::StrokeEnter: return InjectKey(VK_RETURN, 0);
        case TEditAction::StrokeTab: return InjectKey(VK_TAB, 0);
        case TEditAction::NextRow: return NextRow(dynamic_cast<TValueListEditor&>(*FForm->ActiveControl()));
        case TEditAction::NextControl: return FForm->DoTabKey(true);
    }
}

// The grid itself goes past invisible columns.
void TEditKeys::MoveColumn(int step) {
    auto& grid = dynamic_cast<TDBGrid&>(*FForm->ActiveControl());
    grid.SetSelectedIndex(grid.SelectedIndex() + step);
}
