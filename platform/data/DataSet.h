// The records of a statement, one of which is current.
//
//     query->Open();
//     for (query->First(); !query->Eof(); query->Next()) Use(query->FieldByName(u"NM"_s)->AsString());
//
//     if (query->Locate(u"ID"_s, 7, 0)) { query->Edit(); … query->Post(); }
//
// Rows come from the server on demand, the first page at Open, and stay here packed; a value is decoded when
// it is read. A new record is a row like the others, at its place, until it is posted or cancelled. Controls
// hear of everything through data sources and links (DataSource.h, DataLink.h).
#pragma once
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/data/Errors.h"
#include "platform/rtl/Component.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TDataSource;
class TField;
struct TFieldDescription;
namespace fichario {
class DataEvents;
class EditBuffer;
class RowMatcher;
class RowStore;
class TogetherSave;
struct TypedRecord;
struct WriteColumn;
}  // namespace fichario

// A record to come back to. Empty for none.
struct TBookmark {
    std::vector<Variant> Key;
    int Result = -1;  // and without a key, the row's place in that result
    uint64_t Place = 0;
    int Row = -1;  // where it was
};

class TDataSet : public TComponent {
  public:
    explicit TDataSet(TComponent* owner);

    // ---- life ----
    bool Active() const { return FState != dsInactive; }
    void SetActive(bool active);
    // Runs the statement and brings its first rows; the first record becomes current. Nothing when already
    // active. EDatabaseError, EFDError; the dataset then stays closed.
    void Open();
    // Drops a pending edit and the rows. Fields stay. Nothing when not active. A dataset that is freed closes
    // without calling its events.
    void Close();
    // Posts or cancels a pending edit (CheckBrowseMode), runs the statement again and returns to the record
    // with the same key, or, when that is gone, to the same place.
    void Refresh();
    TDataSetState State() const { return FState; }

    // ---- moving; each first posts or cancels a pending edit (CheckBrowseMode) ----
    void First();
    void Last();  // brings all rows
    void Next();
    void Prior();
    // Moves `distance` records, back when negative, stopping at either end. Returns how many it moved.
    int MoveBy(int distance);
    // Makes a row that is here current. `row` from 0 to RowCount() - 1; EDatabaseError otherwise.
    void MoveToRow(int row);
    // An attempt was made to move before the first or behind the last record. Both hold when there is none.
    bool Bof() const { return FBof; }
    bool Eof() const { return FEof; }
    bool IsEmpty() const;
    // The current record's number from 1; 0 when there is none.
    int RecNo() const { return FRow + 1; }
    // How many records the statement has, those not yet fetched included: free when all rows are here, else
    // one count on the server, or by reading to the end where the statement cannot be counted.
    int RecordCount();
    // The current record, by its key, or, in a dataset without one, good until its rows
    // are read anew.
    TBookmark GetBookmark() const;
    // Whether it is among the rows that are here.
    bool BookmarkValid(const TBookmark& bookmark) const;
    // EDatabaseError when it is not.
    void GotoBookmark(const TBookmark& bookmark);
    // Goes to the first record whose fields equal the values.
    //   keyFields  one field name, or several separated by ';'
    //   values     one value, or an array with one for each field
    //   options    loCaseInsensitive: capitals are not told apart (accents always are); loPartialKey: the
    //              fields' texts only begin with the values
    // Fetches as it goes. False, staying where it was, when there is none or a value cannot be converted to
    // its field's kind. EDatabaseError for an unknown field.
    bool Locate(const UnicodeString& keyFields, const Variant& values, TLocateOptions options = 0);

    // ---- rows that are here, for grids ----
    int RowCount() const;
    bool AllFetched() const { return FAllFetched; }
    // Brings up to `rows` more. Returns how many came.
    int FetchMore(int rows);
    // The bytes that the rows here hold.
    size_t MemoryUsed() const;
    // Brings all rows and writes them into a file, in place of an old one, in the format that RowsFile.h
    // tells. A pending edit is left alone and not in it. EDatabaseError when not active,
    // EInOutError.
    void SaveToFile(const UnicodeString& path);

    // A call to a server is under way, of whichever dataset, and the program paints meanwhile: rows must not
    // be read until it ends.
    static bool Busy();

    // ---- editing ----
    void Append();  // a new record at the end
    void Insert();  // a new record before the current one
    void Edit();    // nothing when already editing or inserting; Insert when there is no record
    // Writes the record. EDatabaseError, EFDError: the edit goes on with all that was typed.
    void Post();
    void Cancel();
    void Delete();
    // A value differs from what it was when the edit began (for a new record: after OnNewRecord).
    bool Modified() const;
    // Posts a modified record, cancels an unmodified one. EDatabaseError when not active.
    void CheckBrowseMode();
    // Has the controls write what was typed into their fields.
    void UpdateRecord();

    // ---- fields ----
    const std::vector<TField*>& Fields() const { return FFields; }
    int FieldCount() const { return static_cast<int>(FFields.size()); }
    // Upper and lower case are the same. EDatabaseError "Field 'X' not found".
    TField* FieldByName(const UnicodeString& name) const;
    // Null when there is none.
    TField* FindField(const UnicodeString& name) const;
    // Prepares the statement without running it and makes the fields that are missing.
    void DescribeFields();

    // ---- controls ----
    // Between the two, which nest, controls hear nothing; at the end they draw anew.
    void DisableControls();
    void EnableControls();
    bool ControlsDisabled() const { return FDisabled > 0; }

    // ---- events ----
    // What a handler of a Before… event has closed, or brought to another state, goes no further.
    std::function<void(TDataSet*)> BeforeOpen, AfterOpen, BeforeClose, AfterClose, BeforeInsert, AfterInsert,
        BeforeEdit, AfterEdit, BeforePost, AfterPost, BeforeCancel, AfterCancel, BeforeDelete, AfterDelete,
        BeforeRefresh, AfterRefresh, AfterScroll, OnNewRecord;

  protected:
    ~TDataSet() override;

    // ---- what a dataset of a kind does ----
    virtual void DoDescribe() = 0;  // prepares and calls SetColumns
    virtual bool DoOpen() = 0;  // runs and brings the first rows: SetColumns, SetRows; false: those were all.
                                // When it throws, the result that was open before is still whole
    virtual void DoClose() = 0;          // drops the result; never throws
    virtual bool DoFetch(int rows) = 0;  // appends up to `rows` to Rows(); false at the end of the data
    virtual int DoCount() = 0;           // counts on the server
    virtual bool DoHolds(const std::vector<Variant>& key) = 0;  // whether a record of that key is among the
                                                                // statement's; false when nobody can tell
    virtual void DoPost() = 0;  // writes the record being edited; renews its row or marks it outdated
    virtual void DoRenew(int row) const = 0;  // reads the record of an outdated row again; never throws
    virtual void DoDelete() = 0;              // deletes the current record on the server
    // The content of a row's blob, which is not null; nothing when it has become null. The row is read again
    // when it holds another one by now. EUnreadableText when that cannot be.
    virtual std::optional<QByteArray> DoReadBlob(int row, int column) const = 0;

    // A row took new values, and with them another place.
    virtual void DoRowMoved(uint64_t, uint64_t) const {}

    // Takes over what the statement's columns are: keeps the fields whose name and class match, makes the
    // missing ones, frees those it made that no longer match. EDatabaseError for a field of the host's that
    // is not there.
    void SetColumns(const TStringArray& names, const std::vector<TFieldDescription>& described);
    void SetRows(std::unique_ptr<fichario::RowStore> rows);
    fichario::RowStore& Rows() const { return *FRows; }
    int CurrentRow() const { return FRow; }
    // Another number whenever the fields may tell something else of their columns.
    int FieldsVersion() const { return FFieldsVersion; }
    // The columns of the key, in their order.
    std::vector<int> KeyColumns() const;
    std::vector<Variant> CurrentKey() const;
    // The field on a column of the rows.
    TField* FieldOfColumn(int column) const { return FFields[static_cast<size_t>(column)]; }
    // The value being edited, when it was set; the row's own otherwise; blobs with their content.
    Variant EditedValue(int column) const;
    // The value that the record being edited has got for the column, null when none, and whether it differs
    // from the one before.
    const Variant* Assigned(int column) const;
    bool IsChanged(int column) const;
    // Higher, the later a column of the record being edited was set.
    int Turn(int column) const;
    // A changed blob's content when it was changed first; unassigned when it cannot be read or is unchanged.
    Variant BlobBefore(int column) const;
    // Reads an outdated row again first. EUnreadableText with the field's label.
    Variant RowValue(int row, int column) const;
    // The same, but a text that cannot be read gives its bytes, a memo that cannot null.
    Variant RowValueOrBytes(int row, int column) const;
    Variant SavedValue(int row, int column) const;
    // The record being edited as it may be stored already (EditBuffer.h).
    std::optional<std::vector<fichario::WriteColumn>>& Doubtful() const;
    // Whether there are controls that read a record as soon as it changes.
    bool Heard() const { return FHearing > 0; }
    void FetchAll();
    void CheckActive() const;
    // Closes while the kind can still act: the destructor of a kind calls it first.
    void ShutDown();

  private:
    friend class TField;
    friend class TDataSource;
    friend class TRowReading;
    friend class fichario::RowMatcher;
    friend class fichario::TogetherSave;
    using TEvent = std::function<void(TDataSet*)>;

    // Moving (DataSetMove.cpp)
    void Settle(int row);
    void Scrolled();
    void FetchUntil(int row);
    void RenewRows() const;
    void Reload();

    // Finding again (DataSetAgain.cpp)
    int FindKey(const std::vector<Variant>& key, int near, int first) const;
    int FindAgain(const std::vector<Variant>& key, int near, int loaded);
    int RowOf(const TBookmark& bookmark) const;

    // Editing (DataSetEdit.cpp)
    void BeginInsert(bool atEnd);
    void DropInserted();
    void FetchInPlace(int row);
    void EndEditing();
    void CheckEditing() const;
    fichario::TypedRecord Typed() const;
    void TypeAgain(const fichario::TypedRecord& typed);
    bool Editing() const { return FState == dsEdit || FState == dsInsert; }

    // Fields (DataSetFields.cpp)
    void AddField(TField* field);
    void RemoveField(TField* field);
    void FieldFreed(TField* field);
    TField* TakeField(const UnicodeString& name, TFieldType type);
    void DropUnmatched(const std::vector<TField*>& matched);
    void DropNew(const std::vector<TField*>& matched);
    Variant BlobValue(int row, int column) const;
    std::optional<QByteArray> BlobBytes(int row, int column) const;
    Variant ColumnValue(const TField* field) const;
    Variant OldColumnValue(const TField* field) const;
    void KeepBlob(int column);
    void StoreColumn(TField* field, Variant&& value);
    void FieldsChanged();
    void AskFocus(TField* field);

    void Drop();
    void SetState(TDataSetState state);
    void Call(const TEvent& event);
    // Null when nobody is to hear of a change.
    fichario::DataEvents* Events() const { return FDisabled > 0 || !Heard() ? nullptr : FEvents.get(); }
    void AddSource(TDataSource* source);
    void RemoveSource(TDataSource* source);

    TDataSetState FState = dsInactive;
    std::vector<TField*> FFields;
    std::unique_ptr<fichario::RowStore> FRows;
    std::unique_ptr<fichario::EditBuffer> FEdits;
    fichario::TypedRecord* FKeepPosted = nullptr;   // where the next post leaves the record as it was typed
    std::shared_ptr<fichario::DataEvents> FEvents;  // the data sources that hear of changes
    int FHearing = 0;                               // how many of them there are
    int FResult = 0;                                // counts the results that were taken over
    int FFieldsVersion = 0;
    int FRow = -1;        // current row, -1: none
    int FReadRow = -1;    // the row that fields read instead (TRowReading), -1: none
    int FRowBefore = -1;  // current row before the insert began
    int FDisabled = 0;
    bool FActiveBefore = false;  // when controls were disabled
    bool FBof = true;
    bool FEof = true;
    bool FAllFetched = true;
    // Contents read lately, by the row's place and the column.
    mutable std::map<std::pair<uint64_t, int>, QByteArray> FBlobs;
};

// A scope in which the dataset's fields read from `row`, one of the rows that are here, without moving: for
// painting. A row that is not here reads as null.
//
//     { TRowReading reading(dataSet, row); text = field->DisplayText(); }
class TRowReading {
  public:
    TRowReading(TDataSet* dataSet, int row) : FDataSet(dataSet), FBefore(dataSet->FReadRow) {
        dataSet->FReadRow = row;
    }
    ~TRowReading() { FDataSet->FReadRow = FBefore; }
    TRowReading(const TRowReading&) = delete;
    TRowReading& operator=(const TRowReading&) = delete;

  private:
    TDataSet* FDataSet;
    int FBefore;
};
