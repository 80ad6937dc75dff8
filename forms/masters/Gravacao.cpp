#include "forms/masters/Gravacao.h"

#include <vector>

#include "platform/data/Connection.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"

namespace {

bool Editing(const TDataSet& dataSet) {
    return dataSet.State() == dsEdit || dataSet.State() == dsInsert;
}

// What was typed into a record, to be typed again.
class TTyped {
  public:
    explicit TTyped(TDataSet& dataSet) : FDataSet(dataSet), FInsert(dataSet.State() == dsInsert) {
        for (const TField* field : dataSet.Fields()) FValues.push_back(field->Value());
    }

    // The record was posted and rolled back: the rows shown are read again without it.
    void TypeAgain() {
        FDataSet.Refresh();
        if (FInsert) {
            FDataSet.Append();
        } else {
            FDataSet.Edit();
        }
        for (size_t i = 0; i < FValues.size(); ++i) {
            TField* field = FDataSet.Fields()[i];
            const bool writable = !field->ReadOnly() && !field->Description().ReadOnly;
            if (writable && !(field->Value() == FValues[i])) field->SetValue(FValues[i]);
        }
    }

  private:
    TDataSet& FDataSet;
    bool FInsert;
    std::vector<Variant> FValues;
};

TFDCustomConnection* FreeConnection(const TDataSet& dataSet) {
    const auto* own = dynamic_cast<const TFDDataSet*>(&dataSet);
    TFDCustomConnection* connection = own ? own->Connection() : nullptr;
    return connection && !connection->InTransaction() ? connection : nullptr;
}

// The first exception tells the cause; what fails on the way back would only hide it.
void GoBack(TFDCustomConnection& connection, TDataSet& dataSet, TTyped& typed) {
    try {
        if (connection.InTransaction()) connection.Rollback();
        if (!Editing(dataSet)) typed.TypeAgain();
    } catch (const Exception&) {
    }
}

}  // namespace

void SaveTogether(TDataSet& dataSet, const std::function<void()>& work) {
    TFDCustomConnection* connection = FreeConnection(dataSet);
    if (!connection) return work();
    TTyped typed(dataSet);
    connection->StartTransaction();
    try {
        work();
        connection->Commit();
    } catch (...) {
        GoBack(*connection, dataSet, typed);
        throw;
    }
}
