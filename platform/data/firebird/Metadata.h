// What the database knows of tables and the message descriptions do not tell: keys, required and computed
// columns. Read once a table.
#pragma once
#include <map>
#include "platform/data/firebird/Attachment.h"

namespace fichario {

// How a text is stored.
struct TextFacts {
    enum class Kind { Char = 14, Varchar = 37, Blob = 261 };  // the server's numbers; others: no text
    Kind Stored = Kind::Varchar;
    int Characters = 0;         // of CHAR and VARCHAR
    bool Collated = false;      // by rules that may take other letters for the same
    UnicodeString Set;          // its character set; empty: no text
    int BytesPerCharacter = 1;  // at most
};

struct TableColumn {
    bool NotNull = false;
    bool HasDefault = false;
    bool Computed = false;  // or otherwise not writable
    bool Identity = false;  // the server numbers it
    int CharacterSet = 0;   // of a text, by the server's number
    TextFacts Text;
};

struct TableInfo {
    TStringArray Key;  // columns of the primary key, in its order; empty: none
    std::map<UnicodeString, TableColumn> Columns;

    bool InKey(const UnicodeString& column) const;
    // Null for a column it does not have.
    const TableColumn* Find(const UnicodeString& column) const;
};

class Metadata {
  public:
    explicit Metadata(Attachment& attachment) : FAttachment(attachment) {}

    // A table or view by the name the server keeps it under. One that does not exist has no columns.
    // EFDError.
    const TableInfo& Table(const UnicodeString& name);

  private:
    TableInfo Read(const UnicodeString& name);

    Attachment& FAttachment;
    std::map<UnicodeString, TableInfo> FTables;
};

}  // namespace fichario
