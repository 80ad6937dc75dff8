#include "forms/browse/CriterioPesquisa.h"

#include <gtest/gtest.h>

#include "tests/support/TextTable.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using A = QStringList;

QString Criterion(const TSearchInput& input) {
    const TSearchCriterion found = MakeCriterion(input);
    return QStringList(found.Values.begin(), found.Values.end()).join(u", "_s) +
           (found.Range ? u" range"_s : u""_s);
}

QString Numbers(const A& a) {
    return Criterion(
        {.Kind = skNumber, .Text = a.value(1), .Second = a[0], .Largest = a.value(2).toDouble()});
}

QString PickItem(const A& a) {
    const auto item = SplitPickItem(a[0]);
    return item.Shown + u" is "_s + item.Value;
}

}  // namespace

TEST(CriterioPesquisa, TurnsTheSearchBoxIntoValues) {
    CheckTextTable(
        BROWSE_TESTS "/tables/criterios.txt",
        {{u"Text"_s, [](const A& a) { return Criterion({.Text = a[0]}); }},
         {u"List"_s,
          [](const A& a) { return Criterion({.Text = a[0], .PickList = true, .PickedValue = a[1]}); }},
         {u"Dates"_s,
          [](const A& a) { return Criterion({.Kind = skDate, .FirstDate = a[0], .LastDate = a[1]}); }},
         {u"Numbers"_s, Numbers},
         {u"Order"_s, [](const A& a) { return SearchOrder(a[0], a[1]); }},
         {u"Count"_s, [](const A& a) { return CountText(a[0].toInt()); }},
         {u"PickItem"_s, PickItem}});
}
