// Blobs whole, in segments of a size that every server takes rightly.
#pragma once
#include "platform/data/firebird/Transaction.h"

namespace fichario {

// Writes a new blob. Returns its identity, good in this transaction and, once stored in a record, as long as
// that lives.
int64_t WriteBlob(Attachment& attachment, Transaction& transaction, const QByteArray& bytes);

// The blob's content, a text in the connection's character set unless it is read `asIs`. EFDError.
QByteArray ReadBlob(Attachment& attachment, Transaction& transaction, int64_t id, bool asIs = false);

// Whether the statement made it, as CAST and LIST do, instead of finding it in a record.
bool IsTemporaryBlob(int64_t id);

}  // namespace fichario
