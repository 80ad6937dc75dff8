// Writes one record of a table: only what changed, found by its key, noticing what others changed meanwhile.
//
//     RecordWriter writer(attachment, u"CLIENTE"_s, columns);
//     writer.Update();
#pragma once
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/RowStore.h"

namespace fichario {

// A column of the record and its values.
struct WriteColumn {
    int Column = 0;       // in the dataset's rows
    UnicodeString Name;   // the base column
    UnicodeString Label;  // for messages
    TFieldType Type = ftUnknown;
    Variant Value;         // now
    Variant OldValue;      // when the edit began; not read for blobs
    bool Write = false;    // goes into the statement
    bool Compare = false;  // its old value must still be there
    bool Key = false;
};

class RecordWriter {
  public:
    RecordWriter(Attachment& attachment, const UnicodeString& table, const std::vector<WriteColumn>& columns)
        : FAttachment(attachment), FTable(table), FColumns(columns) {}

    // Each in the host's transaction or a short one of its own. EDatabaseError when another user changed or
    // deleted the record, when there is no key column (English), or when a text cannot be stored; EFDError.
    void Update();
    void Delete();
    // Returns the key's values, read back when the server makes them.
    std::vector<Variant> Insert();

  private:
    // A statement's text and what goes into it.
    struct Work {
        UnicodeString Sql;
        std::vector<InputValue> Values;
        std::vector<const WriteColumn*> Places;
        void Bind(const WriteColumn& column, const Variant& value);
    };

    void AddConditions(Work& work) const;
    int64_t Execute(const Work& work, RowStore* returned = nullptr);
    TStringArray MissingKey() const;

    Attachment& FAttachment;
    UnicodeString FTable;
    const std::vector<WriteColumn>& FColumns;
};

}  // namespace fichario
