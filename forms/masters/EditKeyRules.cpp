#include "forms/masters/EditKeyRules.h"

#include "platform/ui/Control.h"

namespace {

bool IsList(const TEditControl& control) {
    return control.Kind == TEditControl::Lookup || control.Kind == TEditControl::Combo;
}

// Controls in which the arrows move within the text or the rows.
bool KeepsArrows(const TEditControl& control) {
    switch (control.Kind) {
        case TEditControl::Grid:
        case TEditControl::DBMemo:
        case TEditControl::Tree: return true;
        case TEditControl::RichEdit: return control.WantsEnter;
        case TEditControl::Lookup:
        case TEditControl::Combo: return control.ListShowing;
        default: return false;
    }
}

TEditAction EscapeAction(const TEditControl& active) {
    if (active.Kind == TEditControl::Grid && active.Editing) return TEditAction::None;
    if (active.Kind == TEditControl::Lookup) {
        if (active.ListShowing) return TEditAction::None;
        if (active.HasValue && (active.Editing || active.SettingKey)) return TEditAction::ClearLookup;
    }
    return TEditAction::Cancel;
}

TEditAction UpAction(const TEditControl& active) {
    const bool stays = KeepsArrows(active) || active.Kind == TEditControl::Values;
    return stays ? TEditAction::None : TEditAction::StrokeBack;
}

TEditAction DownAction(const TEditControl& active) {
    if (IsList(active) && !active.ListShowing) return TEditAction::DropDown;
    return KeepsArrows(active) ? TEditAction::None : TEditAction::StrokeEnter;
}

TEditAction GridEnterAction(const TEditControl& grid) {
    if (grid.EditorMode) return TEditAction::None;
    const bool rowDone = grid.Editing && !grid.Modified && grid.LastColumn;
    return rowDone ? TEditAction::NextControl : TEditAction::StrokeTab;
}

}  // namespace

TEditAction ShortCutAction(int key, const TEditControl& active) {
    const bool onGrid = active.Kind == TEditControl::Grid;
    switch (key) {
        case VK_LEFT: return onGrid ? TEditAction::PriorColumn : TEditAction::None;
        case VK_RIGHT: return onGrid ? TEditAction::NextColumn : TEditAction::None;
        case VK_ESCAPE: return EscapeAction(active);
        default: return TEditAction::None;
    }
}

TEditAction KeyDownAction(int key, const TEditControl& active, bool hasConfirm, bool hasPages) {
    switch (key) {
        case VK_F12: return hasConfirm ? TEditAction::Confirm : TEditAction::None;
        case VK_PRIOR: return hasPages ? TEditAction::PriorTab : TEditAction::None;
        case VK_NEXT: return hasPages ? TEditAction::NextTab : TEditAction::None;
        case VK_UP: return UpAction(active);
        case VK_DOWN: return DownAction(active);
        default: return TEditAction::None;
    }
}

TEditAction EnterAction(const TEditControl& active) {
    switch (active.Kind) {
        case TEditControl::Grid: return GridEnterAction(active);
        case TEditControl::Values: return TEditAction::NextRow;
        case TEditControl::Lookup:
        case TEditControl::Combo: return active.ListShowing ? TEditAction::None : TEditAction::NextControl;
        case TEditControl::DBMemo:
        case TEditControl::Memo:
        case TEditControl::RichEdit: return active.WantsEnter ? TEditAction::None : TEditAction::NextControl;
        default: return TEditAction::NextControl;
    }
}
