// What a key means on an edit form, decided from the key and the state of the active control; knows no
// widget.
//
// Enter and Down go to the next control, Up to the previous one, F12 confirms, Escape cancels, Page Up and
// Page Down turn the pages, Left and Right walk over grid columns. `EditKeys.h` reads the state from a form
// and carries the action out.
//
//     TEditControl combo{.Kind = TEditControl::Combo, .ListShowing = false};
//     KeyDownAction(VK_DOWN, combo)      // TEditAction::DropDown
#pragma once

// The active control, as far as keys depend on it.
struct TEditControl {
    enum TKind {
        Other,     // any other control, or none
        Grid,      // a data grid
        Lookup,    // a data-aware lookup combo box
        Combo,     // a combo box, data-aware or not
        DBMemo,    // a data-aware memo
        Memo,      // a memo without data
        RichEdit,  // a data-aware rich edit
        Tree,      // a tree view
        Values     // a list of named values
    };
    TKind Kind = Other;
    bool ListShowing = false;  // lookup and combo: the list is open
    bool WantsEnter = false;   // memo and rich edit: Enter makes a new line
    bool HasValue = false;     // lookup: a value is chosen
    bool Editing = false;      // its dataset is in edit or insert state
    bool SettingKey = false;   // its dataset is in set-key state
    bool Modified = false;     // its dataset holds changes
    bool EditorMode = false;   // grid: the cell's editor is open
    bool LastColumn = false;   // grid: the last column is selected
};

enum class TEditAction {
    None,         // the key goes on to the control
    PriorColumn,  // the grid's previous visible column
    NextColumn,   // the grid's next visible column
    ClearLookup,  // empty the lookup
    Cancel,       // as the cancel button
    Confirm,      // as the confirm button
    PriorTab,     // the previous page, from the first to the last
    NextTab,      // the next page, from the last to the first
    DropDown,     // open the list
    StrokeBack,   // inject Shift+Tab: the previous control
    StrokeEnter,  // inject Enter: the next control, by way of KeyPressAction
    StrokeTab,    // inject Tab: the grid's next column
    NextRow,      // the list's next row; the last one stays
    NextControl   // act on Tab as the form's own dialog key
};

// Before any control sees the key (VK_LEFT, VK_RIGHT, VK_ESCAPE). Anything but None handles it.
TEditAction ShortCutAction(int key, const TEditControl& active);

// The form's key-down. `hasConfirm`: there is a confirm button; `hasPages`: the form has pages. Anything but
// None swallows the key.
TEditAction KeyDownAction(int key, const TEditControl& active, bool hasConfirm, bool hasPages);

// Enter (character 13) at the form's key-press. Anything but None swallows it.
TEditAction EnterAction(const TEditControl& active);
