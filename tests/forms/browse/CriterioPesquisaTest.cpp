#include "forms/browse/CriterioPesquisa.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

TEST(CriterioPesquisa, TurnsTheSearchBoxIntoValues) {
    struct Case {
        const char* what;
        TSearchInput input;
        TStringArray values;
        bool range;
    };
    const Case cases[] = {
        {"text", {.Text = u"ma"_s}, {u"ma"_s}, false},
        {"empty text lists all", {}, {u""_s}, false},
        {"list", {.Text = u"x"_s, .PickList = true, .PickedValue = u"S"_s}, {u"S"_s}, false},
        {"dates",
         {.Kind = skDate, .FirstDate = u"01/02/2024"_s, .LastDate = u"29/02/2024"_s},
         {u"01/02/2024"_s, u"29/02/2024"_s},
         true},
        {"single number", {.Kind = skNumber, .Second = u"10,5"_s}, {u"10,5"_s}, false},
        {"range", {.Kind = skNumber, .Text = u"20"_s, .Second = u"10"_s}, {u"10"_s, u"20"_s}, true},
        {"not a number is 0",
         {.Kind = skNumber, .Text = u"abc"_s, .Second = u"1,2,3"_s},
         {u"0"_s, u"0"_s},
         true},
        {"both boxes empty span all numbers",
         {.Kind = skNumber, .Largest = 2147483647},
         {u"-2147483647"_s, u"2147483647"_s},
         true},
        {"what the column cannot hold",
         {.Kind = skNumber, .Text = u"9E20"_s, .Second = u"-5000000000"_s, .Largest = 32767},
         {u"-32767"_s, u"32767"_s},
         true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const TSearchCriterion found = MakeCriterion(c.input);
        EXPECT_EQ(found.Values, c.values);
        EXPECT_EQ(found.Range, c.range);
    }
}

TEST(CriterioPesquisa, PutsTheHostsOrderFirst) {
    EXPECT_EQ(SearchOrder({}, u"NM_CLI"_s), u"NM_CLI"_s);
    EXPECT_EQ(SearchOrder(u"  "_s, u"NM_CLI"_s), u"NM_CLI"_s);
    EXPECT_EQ(SearchOrder(u"CIDADE"_s, u"C.NM_CLI"_s), u"CIDADE, C.NM_CLI"_s);
}

TEST(CriterioPesquisa, WordsTheCount) {
    EXPECT_EQ(CountText(0), u"Nenhum registro"_s);
    EXPECT_EQ(CountText(1), u"1 Registro"_s);
    EXPECT_EQ(CountText(5000), u"5000 Registros"_s);
}

TEST(CriterioPesquisa, SplitsPickListLines) {
    EXPECT_EQ(SplitPickItem(u"SIM;S"_s).Value, u"S"_s);
    EXPECT_EQ(SplitPickItem(u"SIM;S"_s).Shown, u"SIM"_s);
    EXPECT_EQ(SplitPickItem(u"Aberto"_s).Value, u"Aberto"_s);
}
