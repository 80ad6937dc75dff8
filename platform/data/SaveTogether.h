// Saving a record together with all that the host does for it.
//
//     SaveTogether(*FMainDataSet, [&] { FOnConfirm(FMainDataSet, mode); FMainDataSet->Post(); });
//
// What the host does before the post and in the dataset's AfterPost (the items of an order) and the post
// itself are one transaction.
#pragma once

#include <functional>

class TDataSet;

// Runs `work`, which posts `dataSet`, inside a transaction of its connection and commits. When anything
// throws, all of it is rolled back, the record is in insert or edit state again with everything typed and
// what `work` set before it posted, also when there is no server to ask any more, and the exception goes on.
//
// A connection lost during the commit tells nothing: the record is looked for over a new one, and when it is
// stored all is well. When nobody can be asked now, the next call looks first, and writes nothing twice.
//
// A dataset without a connection, or a transaction that the host has begun itself, is left to the host: then
// `work` just runs.
void SaveTogether(TDataSet& dataSet, const std::function<void()>& work);
