// Tests of screens as tables of steps (TextTable.h), so that a case is added without C++:
//
//     Case(a refused text keeps the focus) =                 what the fixture makes of it: all starts over
//     Do(press F3|type joa|click BtnNovo|Edit.Text=x) =      steps, up to the first that throws
//     See(focus|Edit.Text|:NM|state) = Edit; joa; Ana; browse
//     Box(Confirma?|Confirmação|36|6) =                      announces a box, and its answer
//     Modal(EdtTitle.Text is Nome|press Esc) =               announces a modal form, and what is done in it
//
// A name is that of a component of the active form, or of any other; "form" is the active form itself, and
// :NM the field NM. What a word in small letters means, ScreenScript.cpp lists.
#pragma once
#include "tests/support/TextTable.h"

class TComponent;
class TDataSet;

using TTextFunctions = std::map<QString, TTextFunction>;

// A function that answers nothing.
TTextFunction Does(const std::function<void(const QStringList& arguments)>& act);

// One key stroke: "F3", "Ctrl+Shift+C".
void Press(const QString& keys);

// The component of that name; throws when there is none.
TComponent* Named(const QString& name);

// Runs the table. `data` gives the dataset that fields and words like "state" are of; `own` are functions of
// this table alone.
void CheckScreenTable(const QString& path, const std::function<TDataSet*()>& data, TTextFunctions own);
