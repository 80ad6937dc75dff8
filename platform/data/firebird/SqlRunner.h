// Whole statements in one call, for this layer's own needs.
#pragma once
#include <limits>
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/RowStore.h"

namespace fichario {

// The rows of a SELECT, `most` of them at most, read in the transaction that reads happen in; none when a
// text can match nothing. `wide`: the columns that a wide statement (WideText.h) gives.
RowStore ReadRows(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                  const ColumnList* wide = nullptr, int most = std::numeric_limits<int>::max());

// Executes any other statement in the host's transaction or a short one of its own. `returned` gets the row
// of a RETURNING. Returns how many records changed. EDatabaseError, EFDError.
int64_t ExecuteSql(Attachment& attachment, const UnicodeString& sql, const std::vector<InputValue>& values,
                   RowStore* returned = nullptr);

}  // namespace fichario
