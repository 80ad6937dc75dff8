#include "platform/data/Connection.h"
#include "platform/data/Query.h"

using namespace Qt::Literals::StringLiterals;

TFDDataSet::~TFDDataSet() {
    if (FConnection) std::erase(FConnection->FDataSets, this);
}

void TFDDataSet::SetConnection(TFDCustomConnection* connection) {
    if (connection == FConnection) return;
    ConnectionClosing();
    if (FConnection) std::erase(FConnection->FDataSets, this);
    FConnection = connection;
    if (FConnection) FConnection->FDataSets.push_back(this);
}

TFDCustomConnection& TFDDataSet::RequireConnection() const {
    if (!FConnection) throw EDatabaseError(u"Connection not assigned"_s);
    return *FConnection;
}

UnicodeString TFDRdbmsDataSet::UpdateTable() const {
    return FUpdateTable.isEmpty() ? MainTable() : FUpdateTable;
}
