// Writes one record of a table: only what changed, found by its key, noticing what others changed meanwhile.
//
//     RecordWriter writer(attachment, u"CLIENTE"_s, columns);
//     writer.Update();
#pragma once
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/WriteColumn.h"

namespace fichario {

// The text of the last insertion, for the next one that names the same columns.
struct InsertText {
    UnicodeString Table;
    std::vector<char> Named;  // for each column, whose value it gets
    UnicodeString Sql;
};

class RecordWriter {
  public:
    // `last` may be null; else it must be of the same dataset's columns.
    RecordWriter(Attachment& attachment, const UnicodeString& table, const std::vector<WriteColumn>& columns,
                 InsertText* last = nullptr)
        : FAttachment(attachment), FTable(table), FColumns(columns), FLast(last) {}

    // Each in the host's transaction or a short one of its own. EDatabaseError when another user changed or
    // deleted the record, when there is no key column (English), or when a text cannot be stored; EFDError.
    void Update();
    void Delete();
    // Returns the key's values, read back when the server makes them.
    std::vector<Variant> Insert();

    // After a failure: the connection was lost during the commit, which may have been done.
    bool InDoubt() const { return FInDoubt; }
    // The key of the insert that is in doubt.
    const std::vector<Variant>& DoubtfulKey() const { return FDoubtfulKey; }

  private:
    // A statement's text and what goes into it.
    struct Work {
        UnicodeString Sql;
        std::vector<InputValue> Values;
        std::vector<const WriteColumn*> Places;
        void Bind(const WriteColumn& column, const Variant& value);
    };

    Work InsertWork() const;
    UnicodeString InsertSql(const std::vector<char>& named) const;
    void AddConditions(Work& work) const;
    UnicodeString LostOf(const WriteColumn& column, const Variant& value) const;
    bool CanCompare(const WriteColumn& column) const;
    void CheckCharacters(const Work& work) const;
    template <class Run>
    int64_t NamingFields(Run run) const;
    int64_t Execute(const Work& work, RowStore* returned = nullptr);
    void Commit(WriteScope& write);
    TStringArray MissingKey() const;
    std::vector<Variant> KeyOf(const RowStore& returned) const;

    Attachment& FAttachment;
    UnicodeString FTable;
    const std::vector<WriteColumn>& FColumns;
    InsertText* FLast;
    bool FInDoubt = false;
    std::vector<Variant> FDoubtfulKey;
};

}  // namespace fichario
