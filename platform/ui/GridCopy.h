// What a grid puts on the clipboard.
//
//     QGuiApplication::clipboard()->setText(RowText(*grid));
#pragma once
#include "platform/rtl/Types.h"

class TDBGrid;

// The titles and the current record of the visible columns, as the grid shows them: two lines that end with
// CR LF, cells separated by tabs (tabs and line ends inside a cell become blanks), as spreadsheets read it.
// Empty without a record.
UnicodeString RowText(TDBGrid& grid);

// The selected cell as the grid shows it.
UnicodeString CellText(TDBGrid& grid);
