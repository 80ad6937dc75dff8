// A dataset on an SQL statement.
//
//     auto* query = new TFDQuery(owner);
//     query->SetConnection(connection);
//     query->SQL()->SetText(u"SELECT ID, NM FROM CLIENTE WHERE NM STARTING WITH :NM"_s);
//     query->ParamByName(u"NM"_s)->SetAsString(u"MAR"_s);
//     query->Open();
//
// Records can be written when the statement is a single SELECT whose main table (the first of FROM) has a key
// among the columns: changed columns of that table go to it, and the record is then read again.
#pragma once
#include <map>
#include <memory>
#include <optional>
#include "platform/data/DataSet.h"
#include "platform/data/Params.h"
#include "platform/rtl/Strings.h"

class TFDCustomConnection;
namespace fichario {
class Cursor;
class PreparedQuery;
class TogetherSave;
class Transaction;
class UpdateLog;
struct InputValue;
struct WriteColumn;
}  // namespace fichario

// A dataset on a connection.
class TFDDataSet : public TDataSet {
  public:
    TFDCustomConnection* Connection() const { return FConnection; }
    // Closes the dataset.
    void SetConnection(TFDCustomConnection* connection);

  protected:
    explicit TFDDataSet(TComponent* owner) : TDataSet(owner) {}
    ~TFDDataSet() override;
    // EDatabaseError "Connection not assigned".
    TFDCustomConnection& RequireConnection() const;
    // The connection is about to close or a transaction on it to end.
    virtual void ConnectionClosing() = 0;
    virtual void TransactionEnding() = 0;
    // The host's transaction was rolled back.
    virtual void TransactionUndone() = 0;

  private:
    friend class TFDCustomConnection;
    TFDCustomConnection* FConnection = nullptr;
};

// A dataset whose records can be written to a relational database.
class TFDRdbmsDataSet : public TFDDataSet {
  public:
    // The table that posts and deletions go to: what the host set, else the statement's main table.
    UnicodeString UpdateTable() const;
    // Empty: the main table again. Only while closed.
    void SetUpdateTable(const UnicodeString& table) { FUpdateTable = table; }

  protected:
    using TFDDataSet::TFDDataSet;
    ~TFDRdbmsDataSet() override = default;
    virtual UnicodeString MainTable() const = 0;

  private:
    UnicodeString FUpdateTable;
};

class TFDCustomQuery : public TFDRdbmsDataSet {
  public:
    explicit TFDCustomQuery(TComponent* owner);

    // The statement. A change closes the dataset; parameters of the same name keep their values, fields stay.
    TStrings* SQL() { return &FSQL; }
    TFDParams& Params() { return FParams; }
    // What is set while the dataset is open counts when it is opened or refreshed.
    // EDatabaseError "Parameter 'X' not found".
    TFDParam* ParamByName(const UnicodeString& name) const { return FParams.ParamByName(name); }
    TFDParam* FindParam(const UnicodeString& name) const { return FParams.FindParam(name); }

    // Prepares the statement on the server.
    void Prepare();
    // With cached updates Post and Delete change only the rows here, until ApplyUpdates writes them: for the
    // items of a record that is not saved yet.
    //
    //     items->SetCachedUpdates(true);                           // while closed
    //     order->AfterPost = [items](TDataSet*) { items->ApplyUpdates(); };
    //     ... connection->Commit(); items->CommitUpdates();
    //
    // Blob columns of such a dataset cannot be changed, a new record's nulls are left to the table's
    // defaults, and it cannot be refreshed while something is pending.
    bool CachedUpdates() const { return FLog != nullptr; }
    void SetCachedUpdates(bool cached);
    bool UpdatesPending() const;
    // Writes what is pending: deletions first, then the rows in their order. It stays pending until
    // CommitUpdates, so that it can be written again after a rollback; new records keep the keys they got.
    // Within a transaction: what a commit outside one has done when the connection is lost, nobody can tell.
    // EDatabaseError, EFDError; the record that could not be written is then the current one.
    void ApplyUpdates();
    // What ApplyUpdates wrote is stored and pending no more; what was changed since stays so.
    void CommitUpdates();
    // Closes and opens the dataset: what is pending is lost.
    void CancelUpdates();

    // Executes a statement that is not a SELECT. Returns how many records it changed. EFDError.
    int ExecSQL();

  protected:
    ~TFDCustomQuery() override;
    void DoDescribe() override;
    bool DoOpen() override;
    void DoClose() override;
    bool DoFetch(int rows) override;
    int DoCount() override;
    bool DoHolds(const std::vector<Variant>& key) override;
    void DoPost() override;
    void DoRenew(int row) const override;
    void DoDelete() override;
    std::optional<QByteArray> DoReadBlob(int row, int column) const override;
    void DoRowMoved(uint64_t from, uint64_t to) const override;
    void ConnectionClosing() override;
    void TransactionEnding() override;
    void TransactionUndone() override;
    UnicodeString MainTable() const override;

  private:
    friend class fichario::TogetherSave;
    void SQLChanged();
    void TakeText();
    fichario::PreparedQuery& RequirePrepared() const;
    TStringArray ColumnNames() const;
    void TakeColumns();
    bool OpenOnce();
    int CountOnServer();
    bool CanBeginAgain(const EFDError& error);
    bool FetchAgain(int rows);
    void RequireWriting();
    void DeleteRecord();
    // Values of the parameters, and the kinds they are sent as.
    using TGiven = std::vector<std::pair<Variant, TFieldType>>;
    TGiven Given() const;
    std::vector<fichario::InputValue> InputsOf(const TGiven& given) const;
    bool OpenRows(std::unique_ptr<fichario::RowStore>& rows, std::unique_ptr<fichario::Cursor>& cursor,
                  int count, const TGiven& given);
    std::vector<fichario::WriteColumn>& TableColumns() const;
    std::vector<fichario::WriteColumn> DescribeTable(const UnicodeString& table) const;
    std::vector<fichario::WriteColumn>& WriteColumns() const;
    void WriteOnce(std::vector<fichario::WriteColumn>& columns) const;
    void TakeNew(fichario::WriteColumn& column) const;
    void TakeChanged(fichario::WriteColumn& column) const;
    void RequireNoPending() const;
    std::vector<Variant> ValuesOf(int row) const;
    void LogPost();
    void LogDelete();
    void WriteDeleted();
    void TakeApplied();
    bool AppliedIn(int transaction) const { return FLog && FAppliedIn == transaction; }
    void WritePending(int row);
    void Write(std::vector<fichario::WriteColumn>& columns);
    template <class Check>
    bool IsSoAnew(Check check);
    bool DoubtfulIsStored();
    bool WrittenIsStored();
    bool TakeStored(std::vector<fichario::WriteColumn>& columns) const;
    bool IsStored(const std::vector<fichario::WriteColumn>& columns) const;
    bool Holds(const fichario::RowStore& found, int place, const fichario::WriteColumn& column) const;
    void RenewRow(int row, const std::vector<fichario::WriteColumn>& columns) const;
    bool ReadAgain(int row, const std::vector<fichario::WriteColumn>& columns) const;
    fichario::RowStore ReadKeyed(const std::vector<fichario::WriteColumn>& columns) const;
    std::vector<fichario::WriteColumn> KeyedColumns(int row) const;
    void TakeRows(std::unique_ptr<fichario::RowStore> rows, std::unique_ptr<fichario::Cursor> cursor);
    std::optional<QByteArray> BlobIfHeld(int row, int column) const;
    std::optional<QByteArray> TemporaryBlob(int row, int column, int64_t id) const;
    QByteArray ReadStored(int column, int64_t id) const;
    bool IsOfOtherSet(int column) const;
    bool IsWide(int column) const;
    bool HasKey() const;
    bool StillHolds(int row, int column) const;
    void RenewForBlob(int row) const;
    fichario::RowStore ReadWritten(const std::vector<fichario::WriteColumn>& columns) const;
    void TakeValues(int row, const std::vector<fichario::WriteColumn>& columns,
                    const fichario::RowStore& written) const;

    TStringList FSQL;
    TFDParams FParams;
    TGiven FOpenedWith;  // the rows here answer to these
    mutable std::unique_ptr<fichario::PreparedQuery> FPrepared;
    std::unique_ptr<fichario::Cursor> FCursor;
    // In which the rows were read, and those by their place that were read again in another.
    std::weak_ptr<fichario::Transaction> FReadIn;
    mutable std::map<uint64_t, std::weak_ptr<fichario::Transaction>> FReadAgainIn;
    // The table being written and its columns, kept from one record to the next.
    mutable UnicodeString FColumnsTable;
    mutable std::vector<fichario::WriteColumn> FTableColumns;
    mutable int FColumnsVersion = -1;
    mutable bool FSomeAgain = false;
    mutable bool FFits = false;                 // the rows here have the columns that the statement gives now
    std::unique_ptr<fichario::UpdateLog> FLog;  // null: posts go to the table at once
    bool FTextChanged = false;
    std::vector<Variant> FDoubtfulDeletion;  // the key of the record that may be gone
    int FAppliedIn = 0;      // the transaction that ApplyUpdates wrote in, by the connection's count
    int FDoubtfulIn = 0;     // and that of the record that is in doubt
    UnicodeString FText;     // the statement that counts
    TStringArray FNames;     // of the columns that the fields are on
    bool FRemember = false;  // what the next post writes
    std::optional<std::vector<fichario::WriteColumn>> FWritten;
};

class TFDQuery : public TFDCustomQuery {
  public:
    using TFDCustomQuery::TFDCustomQuery;

  protected:
    ~TFDQuery() override = default;
};
