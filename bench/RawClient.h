// The bare client library on a connection of ours: the least that each piece of work can cost. Statements are
// prepared once per connection, as in the layer that is measured against them, unless a function says
// otherwise.
#pragma once
#include "platform/data/firebird/Attachment.h"

// Executes a SELECT and fetches all its rows into one buffer, looking at none. `firstOnly` stops after that
// many rows when it is above 0. Returns how many rows came.
int64_t FetchRaw(fichario::Attachment& attachment, const UnicodeString& sql, int firstOnly = 0);

// The first page as a program without kept statements comes to it: prepares a SELECT, executes it, fetches
// `rows` rows, closes and frees.
void OpenRaw(fichario::Attachment& attachment, const UnicodeString& sql, int rows);

// As FetchRaw, and makes every field of every row a value of its type: whole numbers, exact decimals, moments
// in days, texts in UTF-16.
int64_t FetchTyped(fichario::Attachment& attachment, const UnicodeString& sql);

// Inserts `rows` records (ClienteTable.h) with keys from `firstKey` on, in the connection's own transaction.
void InsertRaw(fichario::Attachment& attachment, int firstKey, int rows);
