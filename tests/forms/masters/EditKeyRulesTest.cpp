#include "forms/masters/EditKeyRules.h"

#include <gtest/gtest.h>

#include "platform/ui/Control.h"
#include "tests/support/TextTable.h"

namespace {

using A = QStringList;

const A kKinds{"other", "grid", "lookup", "combo", "dbmemo", "memo", "richedit", "tree", "values"};
const A kActions{"None",        "PriorColumn", "NextColumn", "ClearLookup", "Cancel",
                 "Confirm",     "PriorTab",    "NextTab",    "DropDown",    "StrokeBack",
                 "StrokeEnter", "StrokeTab",   "NextRow",    "NextControl"};
const std::map<QString, int> kKeys{{"left", VK_LEFT}, {"right", VK_RIGHT}, {"esc", VK_ESCAPE},
                                   {"up", VK_UP},     {"down", VK_DOWN},   {"prior", VK_PRIOR},
                                   {"next", VK_NEXT}, {"f12", VK_F12}};
const std::map<QString, bool TEditControl::*> kMarks{
    {"open", &TEditControl::ListShowing},  {"wants-enter", &TEditControl::WantsEnter},
    {"value", &TEditControl::HasValue},    {"editing", &TEditControl::Editing},
    {"key", &TEditControl::SettingKey},    {"modified", &TEditControl::Modified},
    {"editor", &TEditControl::EditorMode}, {"last-column", &TEditControl::LastColumn}};

// "grid editing last-column".
TEditControl Control(const QString& text) {
    const A words = text.split(' ');
    TEditControl control{.Kind = TEditControl::TKind(kKinds.indexOf(words[0]))};
    for (const QString& mark : words.sliced(1)) control.*kMarks.at(mark) = true;
    return control;
}

QString Word(TEditAction action) {
    return kActions[int(action)];
}

QString KeyDown(const A& a) {
    return Word(
        KeyDownAction(kKeys.at(a[0]), Control(a[1]), !a.contains("no confirm"), !a.contains("no pages")));
}

}  // namespace

TEST(EditKeyRules, TurnKeysIntoActions) {
    CheckTextTable(
        MASTERS_TESTS "/tables/teclas.txt",
        {{"ShortCut", [](const A& a) { return Word(ShortCutAction(kKeys.at(a[0]), Control(a[1]))); }},
         {"UpDownEnter",
          [](const A& a) {
              return A{KeyDown({"up", a[0]}), KeyDown({"down", a[0]}), Word(EnterAction(Control(a[0])))}.join(
                  ' ');
          }},
         {"KeyDown", KeyDown}});
}
