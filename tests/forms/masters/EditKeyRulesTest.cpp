#include "forms/masters/EditKeyRules.h"

#include <gtest/gtest.h>

#include "platform/ui/Control.h"

namespace {

using C = TEditControl;
using A = TEditAction;

TEST(EditKeyRules, ShortCuts) {
    const C plain, lookup{.Kind = C::Lookup, .HasValue = true};
    const struct {
        const char* Case;
        int Key;
        C Active;
        A Expected;
    } cases[] = {
        {"left on a grid", VK_LEFT, {.Kind = C::Grid}, A::PriorColumn},
        {"right on a grid", VK_RIGHT, {.Kind = C::Grid, .EditorMode = true}, A::NextColumn},
        {"left on an edit", VK_LEFT, plain, A::None},
        {"escape on a grid being edited", VK_ESCAPE, {.Kind = C::Grid, .Editing = true}, A::None},
        {"escape on a grid", VK_ESCAPE, {.Kind = C::Grid}, A::Cancel},
        {"escape on an edit", VK_ESCAPE, {.Editing = true}, A::Cancel},
        {"escape on a combo's open list", VK_ESCAPE, {.Kind = C::Combo, .ListShowing = true}, A::Cancel},
        {"escape on an open lookup",
         VK_ESCAPE,
         {.Kind = C::Lookup, .ListShowing = true, .HasValue = true, .Editing = true},
         A::None},
        {"escape on a lookup being edited",
         VK_ESCAPE,
         {.Kind = C::Lookup, .HasValue = true, .Editing = true},
         A::ClearLookup},
        {"escape on a lookup for a key",
         VK_ESCAPE,
         {.Kind = C::Lookup, .HasValue = true, .SettingKey = true},
         A::ClearLookup},
        {"escape on a lookup only shown", VK_ESCAPE, lookup, A::Cancel},
        {"escape on an empty lookup", VK_ESCAPE, {.Kind = C::Lookup, .Editing = true}, A::Cancel},
        {"another key", VK_F12, plain, A::None}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        EXPECT_EQ(ShortCutAction(c.Key, c.Active), c.Expected);
    }
}

TEST(EditKeyRules, ArrowsAndEnter) {
    const struct {
        const char* Case;
        C Active;
        A Up, Down, Enter;
    } cases[] = {
        {"edit", {}, A::StrokeBack, A::StrokeEnter, A::NextControl},
        {"closed combo", {.Kind = C::Combo}, A::StrokeBack, A::DropDown, A::NextControl},
        {"open combo", {.Kind = C::Combo, .ListShowing = true}, A::None, A::None, A::None},
        {"closed lookup", {.Kind = C::Lookup}, A::StrokeBack, A::DropDown, A::NextControl},
        {"open lookup", {.Kind = C::Lookup, .ListShowing = true}, A::None, A::None, A::None},
        {"memo of a field", {.Kind = C::DBMemo, .WantsEnter = true}, A::None, A::None, A::None},
        {"memo of a field without Enter", {.Kind = C::DBMemo}, A::None, A::None, A::NextControl},
        {"memo", {.Kind = C::Memo, .WantsEnter = true}, A::StrokeBack, A::StrokeEnter, A::None},
        {"rich edit", {.Kind = C::RichEdit, .WantsEnter = true}, A::None, A::None, A::None},
        {"rich edit without Enter", {.Kind = C::RichEdit}, A::StrokeBack, A::StrokeEnter, A::NextControl},
        {"tree", {.Kind = C::Tree}, A::None, A::None, A::NextControl},
        {"grid", {.Kind = C::Grid}, A::None, A::None, A::StrokeTab},
        {"grid with an open cell", {.Kind = C::Grid, .EditorMode = true}, A::None, A::None, A::None},
        {"grid, new row untouched, last column",
         {.Kind = C::Grid, .Editing = true, .LastColumn = true},
         A::None,
         A::None,
         A::NextControl},
        {"grid, row changed, last column",
         {.Kind = C::Grid, .Editing = true, .Modified = true, .LastColumn = true},
         A::None,
         A::None,
         A::StrokeTab},
        {"grid, browsing, last column",
         {.Kind = C::Grid, .LastColumn = true},
         A::None,
         A::None,
         A::StrokeTab}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        EXPECT_EQ(KeyDownAction(VK_UP, c.Active, true, true), c.Up);
        EXPECT_EQ(KeyDownAction(VK_DOWN, c.Active, true, true), c.Down);
        EXPECT_EQ(EnterAction(c.Active), c.Enter);
    }
}

TEST(EditKeyRules, ConfirmAndPagesOnlyWhereTheyAre) {
    EXPECT_EQ(KeyDownAction(VK_F12, {}, true, true), A::Confirm);
    EXPECT_EQ(KeyDownAction(VK_F12, {}, false, true), A::None);
    EXPECT_EQ(KeyDownAction(VK_PRIOR, {.Kind = C::Grid}, true, true), A::PriorTab);
    EXPECT_EQ(KeyDownAction(VK_NEXT, {.Kind = C::DBMemo}, true, true), A::NextTab);
    EXPECT_EQ(KeyDownAction(VK_NEXT, {}, true, false), A::None);
}

}  // namespace
