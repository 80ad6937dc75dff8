// The server's error numbers that code of this room decides by.
#pragma once
#include <cstdint>

namespace fichario {

constexpr int64_t kSqlError = 335544569;             // the statement's text is none that it takes
constexpr int64_t kReadOnlyTransaction = 335544361;  // a write in the transaction that only reads
constexpr int64_t kConnectionLost = 335544856;       // the server or somebody on it ended the connection

constexpr int64_t kTransliteration = 335544565;  // a character that one of two character sets lacks
constexpr int64_t kTruncation = 335544914;       // a text longer than its place
constexpr int64_t kInvalidRole = 335545091;      // the role does not exist or is not granted
constexpr int64_t kNotValid = 335544347;         // a value that a column may not have, such as a missing one
constexpr int64_t kDuplicateKey = 335544665;     // a key that is there already, by its constraint
constexpr int64_t kDuplicateIndex = 335544349;   // the same by a unique index alone
constexpr int64_t kNoTarget = 335544838;         // a foreign key's record is not there
constexpr int64_t kOutOfRange = 335544916;       // a number beyond its column
constexpr int64_t kChangedByOthers = 335544878;  // another transaction changed the record
constexpr int64_t kKeyTooLong = 335544434;       // a value sought is longer than any key of an index

}  // namespace fichario
