// Under which name a statement speaks of the table of each of its columns. The message description does not
// say it.
#pragma once
#include "platform/data/firebird/Columns.h"

namespace Firebird {
class IStatement;
class ThrowStatusWrapper;
}  // namespace Firebird

namespace fichario {

// Fills BaseAlias; columns for which the answer has no room keep it empty.
void ReadAliases(Firebird::ThrowStatusWrapper& status, Firebird::IStatement& statement, ColumnList& columns);

}  // namespace fichario
