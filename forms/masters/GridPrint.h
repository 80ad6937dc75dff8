// Printing a grid: two files in the program's folder, one with the rows and one that describes the columns,
// and the program that prints them, which nobody waits for.
//
//     PrintGrid(*this, Paisagem1->Checked());
//
// The rows are a rows file (platform/data/RowsFile.h). The description is an INI file. Section INFORMATION:
// Name (the form's caption), Model (0 portrait, 1 landscape), Count (of columns). One section FIELD_nn for
// each column in the grid's order: FieldName, DisplayLabel (the title), DisplayFormat (numbers and dates),
// DisplayWidth (characters), EditMask (only where there is one), Visible.
#pragma once

#include "platform/rtl/Types.h"

class QFontMetrics;
class TFrmGrid_Master;

// The files' names, in the program's folder, and the printing program's.
inline constexpr QStringView kPrintRows = u"repvw.dat";
inline constexpr QStringView kPrintDefinition = u"repvwi.dat";
inline constexpr QStringView kPrintProgram = u"GridReport.exe";

// Writes both files in place of old ones and starts the program with the number of the form's module.
// EInOutError, EOSError; EFDError when rows cannot be read.
void PrintGrid(TFrmGrid_Master& form, bool landscape);

// Writes the definition in place of an old one. EInOutError.
void WritePrintDefinition(TFrmGrid_Master& form, bool landscape, const UnicodeString& path);

// How many letters "A" exceed `width` pixels; 50 at most.
int WidthInLetters(const QFontMetrics& metrics, int width);
