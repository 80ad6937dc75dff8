// Search texts that a connection's character set cannot hold.
#pragma once
#include <functional>
#include <QStringView>
#include "platform/rtl/Types.h"

namespace fichario {

// The first character of a text that cannot be sent, whole; empty: none.
using TForeignOf = std::function<UnicodeString(QStringView text)>;

// A SELECT whose literals hold characters that cannot be sent, made sendable: in literals each becomes the
// control character SUBSTITUTE, which no stored text holds, so that the search finds nothing instead of
// failing. All else, other statements too, stays as it is: what is stored is never changed.
UnicodeString Searchable(QStringView sql, const TForeignOf& foreignOf);

}  // namespace fichario
