// What a user is told of a record that could not be written, in the labels of its fields.
#pragma once
#include "platform/data/Errors.h"
#include "platform/data/firebird/WriteColumn.h"

namespace fichario {

// The error of a statement on `table`, naming the fields whose values caused it, where they are known.
EFDError NamingFields(const EFDError& error, const UnicodeString& table,
                      const std::vector<WriteColumn>& columns);

// The error of a record that was not found as it had been read: it is gone.
EFDError DeletedByOthers(const std::vector<WriteColumn>& columns);
// The same: the columns with these labels hold something else.
EFDError ChangedByOthers(const std::vector<WriteColumn>& columns, const TStringArray& labels);

}  // namespace fichario
