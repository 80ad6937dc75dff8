// The client's description of a message, as columns.
#pragma once
#include "platform/data/firebird/Attachment.h"
#include "platform/data/firebird/Columns.h"

namespace Firebird {
class IMessageMetadata;
class ThrowStatusWrapper;
}  // namespace Firebird

namespace fichario {

// The columns or parameters of a message. EDatabaseError for a type this layer does not read.
ColumnList ColumnsOf(Firebird::ThrowStatusWrapper& status, Firebird::IMessageMetadata& format,
                     const Attachment& attachment);

}  // namespace fichario
