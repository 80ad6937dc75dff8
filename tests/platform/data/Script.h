// Tests of datasets as tables of steps (tests/support/TextTable.h), so that a case is added without C++:
//
//     Case(moving away posts) =                       a database of its own for what follows
//     Open(SELECT * FROM CLIENTE ORDER BY ID) =       the current dataset; Query does not open it yet
//     Do(edit|NM=Zé|QTD=int 3|next) =                 steps, up to the first that throws
//     See(ID|NM|state) = 2; Bia; browse               fields, and in small letters what else is known
//     Rows(ID|NM) = 1=Zé 2=Bia 3=bruno                walks through all records
//     Sql(SELECT NM FROM CLIENTE WHERE ID = 1) = Zé   a value, or how many records were changed
//     Other(start) =                                  the same by another user
//
// Param, Locate, Move, Fetch and Required are the dataset's own; Swap goes back to the dataset before the
// current one. An error after which the connection cannot be used is "throws lost: " and its message.
#pragma once
#include "tests/platform/data/TestDatabase.h"
#include "tests/support/TextTable.h"

// "int 3", "float 1.5", "moment 31/12/2000 12:00", "day 36526" since 30/12/1899, … as a value of that kind,
// "null", "all int 1;b", or the text itself.
Variant ValueOf(const QString& written);
// The same set into a parameter by the setter of its kind.
void SetParam(TFDParam& param, const QString& written);

class ScriptTest : public DataTest {
  protected:
    // Runs tables/<table>.txt. `more` are functions that this table alone knows.
    void Run(const char* table, std::map<QString, TTextFunction> more = {});
    // The steps of a Do.
    void Do(const QStringList& steps);

    TFDQuery* FQuery = nullptr;
    TFDQuery* FBefore = nullptr;  // the one before it

  private:
    void Begin();
    void Prepare(const QString& sql);
    void DoOne(const QString& step);
    QString Seen(const QString& what) const;
    QString Rows(const QStringList& fields);
    QString Answer(TFDConnection& connection, const QStringList& arguments);

    TFDConnection* FOther = nullptr;
};
