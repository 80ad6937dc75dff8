#include "platform/data/SaveTogether.h"

#include <QScopeGuard>

#include "platform/data/Connection.h"
#include "platform/data/EditBuffer.h"
#include "platform/data/Query.h"

namespace fichario {

// One record saved together: what it takes to go back, and to know what a lost commit has done.
class TogetherSave {
  public:
    TogetherSave(TFDCustomConnection& connection, TDataSet& dataSet)
        : FConnection(connection),
          FQuery(dynamic_cast<TFDCustomQuery*>(&dataSet)),
          FDataSet(dataSet),
          FTyped(dataSet.Typed()) {}

    void Run(const std::function<void()>& work) {
        FConnection.StartTransaction();
        try {
            if (FQuery && FQuery->DoubtfulIsStored()) CommitItems(FQuery->FDoubtfulIn);
            Remember(true);
            const auto forget = qScopeGuard([this] { Remember(false); });
            work();
        } catch (...) {
            GoBack();
            throw;
        }
        Commit();
    }

  private:
    void Commit() {
        try {
            FConnection.EndTransaction(true);
        } catch (const EFDError& error) {
            if (!error.ConnectionUsable && StoredAfterAll()) return CommitItems(FConnection.FTransactions);
            GoBack();
            throw;
        }
    }
    bool StoredAfterAll() {
        Undo();
        if (!FQuery || !FQuery->FWritten) return false;
        FTyped.Edits.Doubtful = FQuery->FWritten;
        FQuery->FDoubtfulIn = FConnection.FTransactions;
        return FQuery->WrittenIsStored();
    }
    // What the host's work changes in the record before the post goes with what was typed: what it changed
    // elsewhere, as in items taken into account, stays changed as well.
    void Remember(bool remember) {
        FDataSet.FKeepPosted = remember ? &FTyped : nullptr;
        if (FQuery) FQuery->FRemember = remember;
    }
    // What other datasets of the connection applied in the transaction is stored with it.
    void CommitItems(int transaction) {
        for (TFDDataSet* dataSet : FConnection.FDataSets) {
            auto* query = dynamic_cast<TFDCustomQuery*>(dataSet);
            if (query && query->AppliedIn(transaction)) query->CommitUpdates();
        }
    }
    void GoBack() {
        Undo();
        FDataSet.TypeAgain(FTyped);
    }
    // The first exception tells the cause; what fails on the way back would only hide it.
    void Undo() {
        try {
            if (FConnection.InTransaction()) FConnection.Rollback();
        } catch (const Exception&) {
        }
    }

    TFDCustomConnection& FConnection;
    TFDCustomQuery* FQuery;
    TDataSet& FDataSet;
    TypedRecord FTyped;
};

}  // namespace fichario

void SaveTogether(TDataSet& dataSet, const std::function<void()>& work) {
    auto* own = dynamic_cast<TFDDataSet*>(&dataSet);
    TFDCustomConnection* connection = own ? own->Connection() : nullptr;
    if (!connection || connection->InTransaction()) return work();
    fichario::TogetherSave(*connection, dataSet).Run(work);
}
