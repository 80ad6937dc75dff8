// Writes one record of a table: only what changed, found by its key, noticing what others changed meanwhile.
//
//     RecordWriter writer(attachment, u"CLIENTE"_s, columns);
//     writer.Update();
#pragma once
#include "platform/data/firebird/InputMessage.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/WriteColumn.h"
#include "platform/rtl/FunctionRef.h"

namespace fichario {

// A statement and what goes into it.
struct WriteWork {
    UnicodeString Sql;
    StatementLease Prepared;  // once it has been executed
    std::vector<InputValue> Values;
    std::vector<const WriteColumn*> Places;
    void Bind(const WriteColumn& column, const Variant& value);
};

// The last insertion, for the next one that names the same columns.
struct Insertion {
    UnicodeString Table;
    const WriteColumn* Columns = nullptr;  // where they stand, which Work refers to
    std::vector<char> Named;               // for each column, whose value it gets
    WriteWork Work;
    RowStore Returned;  // the key's values that the server made
};

class RecordWriter {
  public:
    // `table` and `columns` must outlive this.
    RecordWriter(Attachment& attachment, const UnicodeString& table, const std::vector<WriteColumn>& columns)
        : FAttachment(attachment), FTable(table), FColumns(columns) {}

    // Each in the host's transaction or a short one of its own. EFDError, also when another user changed or
    // deleted the record or a text cannot be stored; EDatabaseError (English) when there is no key column or
    // those there are find several records, of which none is changed then.
    void Update();
    void Delete();
    // Returns the key's values when the server made one of them, which are read back; else nothing. `last`
    // must be of the same dataset's columns.
    std::vector<Variant> Insert();
    std::vector<Variant> Insert(Insertion& last);

    // After a failure: the connection was lost during the commit, which may have been done.
    bool InDoubt() const { return FInDoubt; }
    // The key of the insert that is in doubt.
    const std::vector<Variant>& DoubtfulKey() const { return FDoubtfulKey; }

  private:
    static char NamedBy(const WriteColumn& column);
    bool IsSameAs(const Insertion& insertion) const;
    void WriteAnew(Insertion& insertion) const;
    UnicodeString InsertSql() const;
    TStringArray KeyConditions(WriteWork& work) const;
    TStringArray OldConditions(WriteWork& work) const;
    void AddConditions(WriteWork& work) const;
    UnicodeString LostOf(const WriteColumn& column, const Variant& value) const;
    bool CanCompare(const WriteColumn& column) const;
    void CheckCharacters(const WriteWork& work) const;
    bool KeyIsWhole() const;
    int64_t ChangeOne(FunctionRef<int64_t()> run);
    [[noreturn]] void TellWhatHappened() const;
    int64_t Execute(WriteWork& work, RowStore* returned = nullptr);
    void Commit(WriteScope& write);
    TStringArray MissingKey() const;
    std::vector<Variant> KeyOf(const RowStore& returned) const;

    Attachment& FAttachment;
    const UnicodeString& FTable;
    const std::vector<WriteColumn>& FColumns;
    bool FInDoubt = false;
    std::vector<Variant> FDoubtfulKey;
};

}  // namespace fichario
