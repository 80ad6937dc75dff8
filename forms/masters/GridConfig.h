// How a user arranged a grid, kept as window properties of its form: font size, ordering column, and for each
// column its field, title, alignment, visibility and width.
//
//     SaveGridConfig(*this);
//     if (LoadGridColumns(*this, pickLists)) …        // the stored layout is on screen
//
// Properties ("nn" is the column's index in two digits): "FontSize", "GridCount", "OrderField", "GRDF_nn"
// field name, "GRDL_nn" title, "GRDA_nn" alignment (0 left, 1 right, 2 centre), "GRDV_nn" visible, "GRDS_nn"
// width in pixels. The width is written for visible columns only, so a hidden column keeps the width of its
// last appearance. The print orientation "ModelPrint" (0 portrait, 1 landscape) is the view master's menu.
#pragma once

#include <utility>
#include <vector>

#include "platform/rtl/Types.h"

class TFrmGrid_Master;

// Pick lists of a grid by the field that they belong to: field name, list text.
using TPickLists = std::vector<std::pair<UnicodeString, UnicodeString>>;

// Writes the properties from the grid.
void SaveGridConfig(TFrmGrid_Master& form);

// Sets the grid's font size and, when the stored layout fits the grid, its columns; returns whether it did. A
// layout of another column count, or one that names a field the dataset lacks, is deleted and the grid's own
// stays. Pick lists follow their fields; `pickLists` receives them.
bool LoadGridColumns(TFrmGrid_Master& form, TPickLists& pickLists);

// Index of the column that the grid was last ordered by, -1 when the stored name is no column's. The stored
// name is compared as it stands with the upper-case field names.
int StoredOrderColumn(TFrmGrid_Master& form);

// The stored width of a column in pixels, its present one when none is stored.
int StoredColumnWidth(TFrmGrid_Master& form, int index);
