#include "forms/masters/MasterRules.h"

#include <gtest/gtest.h>

#include "tests/support/TextTable.h"

namespace {

using A = QStringList;

unsigned char Mode(const QString& word) {
    return word == "include"  ? kIncluir
           : word == "change" ? kAlterar
           : word == "delete" ? kExcluir
                              : kVisualizar;
}

// What is said of the case is true, all else false.
QString Refusal(const A& a) {
    const auto refusal =
        RefuseOpening({Mode(a[0]), a.contains("form"), a.contains("records"),
                       a.contains("flagged") ? ktFieldProviderFlag : ktNone, a.contains("key")});
    return refusal ? A{"error", "information", "exception"}[refusal->Kind] + ": " + refusal->Text : "opens";
}

QString Update(const A& a) {
    const TOwnerUpdate update = OwnerUpdateAfter({Mode(a[0]), a.contains("confirmed"), a.contains("shared"),
                                                  a.contains("view"), a.contains("list") ? vtList : vtFilter,
                                                  a.contains("id") ? 7 : 0, a.contains("soft")});
    const A steps{"nothing",       "reopen own",   "reopen own at last",
                  "owner at last", "filter owner", "reopen owner"};
    return steps[update.Step] + (update.RefreshOwner ? ", refresh" : "");
}

}  // namespace

TEST(MasterRules, SayWhatOpensAndWhatFollows) {
    CheckTextTable(MASTERS_TESTS "/tables/regras.txt", {{"Open", Refusal}, {"Left", Update}});
}
