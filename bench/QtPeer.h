// The same work by Qt's own Firebird driver. Where the driver is not installed, HasQtPeer() is false.
#pragma once
#include "bench/ClienteTable.h"

bool HasQtPeer();

// All rows into a QSqlQueryModel.
void QtAllRows(Place place, int rows);
// Prepares, executes and reads the first `page` rows.
void QtFirstPage(Place place, int rows, int page);
// Every field of every row as a QVariant, forward only.
void QtEveryValue(Place place, int rows);
// A match over a loaded model that finds nothing, blind to case. Returns the seconds it took.
double QtLocateNothing(Place place, int rows);
void QtCount(Place place, int rows);
// Inserts `count` records with keys from `firstKey` on, prepared, in one transaction.
void QtInsert(Place place, int rows, int firstKey, int count);
