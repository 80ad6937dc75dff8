// What a grid screen searches for: the decisions behind the search box, without the box.
//
//     TSearchInput input{.Kind = skNumber, .Second = u"10"_s, .Text = u"20"_s};
//     TSearchCriterion c = MakeCriterion(input);      // c.Values == {"10", "20"}, c.Range
#pragma once

#include "platform/rtl/Types.h"

class TField;

// How a column is searched, by the class of its field.
enum TSearchKind { skText, skNumber, skDate };
TSearchKind SearchKindOf(const TField* field);

// The state of the search box. A box that shows its hint counts as empty.
struct TSearchInput {
    TSearchKind Kind = skText;
    UnicodeString Text = {};    // the search edit: the text, or the end of a numeric range
    UnicodeString Second = {};  // the second search edit: the start of a numeric range, or the single number
    UnicodeString FirstDate = {};  // short date texts of the two pickers
    UnicodeString LastDate = {};
    bool PickList = false;           // the column offers a list of values
    UnicodeString PickedValue = {};  // the value behind the list's chosen item
    double Largest = 0;              // the greatest number that the column can hold; 0: no limit
};

// One value, or the two ends of a range, as texts for the filter builder.
struct TSearchCriterion {
    TStringArray Values;
    bool Range = false;
};

// A date column gives the range of the two pickers; a numeric one the range of both boxes, the single number
// of the second box alone, or, with both empty, the whole span; a text that is not a number is taken as 0, a
// number that the column cannot hold as the nearest one that it can, since the server refuses others. A list
// gives the value chosen, any other column the text typed.
TSearchCriterion MakeCriterion(const TSearchInput& input);

// The ORDER BY items: `before`, when it is not blank, and the column's SQL name.
UnicodeString SearchOrder(const UnicodeString& before, const UnicodeString& column);

// What the count label reads: "Nenhum registro", "1 Registro", "27 Registros".
UnicodeString CountText(int count);

// One line of a column's pick list, "shown;value"; without ";" the shown text is the value too.
struct TPickItem {
    UnicodeString Shown;
    UnicodeString Value;
};
TPickItem SplitPickItem(const UnicodeString& line);
