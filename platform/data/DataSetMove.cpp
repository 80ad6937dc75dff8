// A dataset's current record: moving, fetching on demand, finding a record again.
#include <algorithm>
#include <limits>
#include "platform/data/DataEvents.h"
#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/ClientCall.h"
#include "platform/data/firebird/RowStore.h"
#include "platform/data/Locate.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPage = 64;
constexpr int kLargestBatch = 4096;

// A small result costs little, a long walk few calls.
int BatchFor(int loaded) {
    return std::clamp(loaded / 2, kPage, kLargestBatch);
}

}  // namespace

// ---- fetching ----

bool TDataSet::Busy() {
    return fichario::ClientCallRunning();
}

int TDataSet::RowCount() const {
    return FRows->Count();
}

size_t TDataSet::MemoryUsed() const {
    return FRows->Bytes();
}

bool TDataSet::IsEmpty() const {
    return RowCount() == 0;
}

int TDataSet::FetchMore(int rows) {
    if (FAllFetched || rows <= 0) return 0;
    const int before = RowCount(), result = FResult;
    const std::vector<Variant> key = CurrentKey();
    FAllFetched = !DoFetch(rows);
    const bool anew = FResult != result;  // all rows were read again, and others may have changed some
    if (anew && FRow >= 0) {
        const int near = FRow;
        Settle(near);  // whatever fails now, the record is one that is here
        Settle(FindAgain(key, near, before));
    }
    const int arrived = RowCount() - before;
    if (auto* events = Events(); events && (anew || arrived > 0))
        anew ? events->DataSetChanged() : events->RowsArrived();
    return std::max(arrived, 0);
}

void TDataSet::FetchUntil(int row) {
    while (!FAllFetched && RowCount() <= row) FetchMore(std::max(BatchFor(RowCount()), row + 1 - RowCount()));
}

void TDataSet::FetchAll() {
    FetchMore(std::numeric_limits<int>::max());
}

// Brings the rows here up to date that were posted unheard.
void TDataSet::RenewRows() const {
    for (int row = 0; row < RowCount(); ++row) {
        if (FRows->IsOutdated(row)) DoRenew(row);
    }
}

int TDataSet::RecordCount() {
    CheckActive();
    if (!FAllFetched) return DoCount();
    return RowCount() - (FState == dsInsert ? 1 : 0);
}

// ---- moving ----

// Makes `row`, or the nearest there is, current without a word.
void TDataSet::Settle(int row) {
    FRow = std::min(row, RowCount() - 1);
    FBof = FEof = FRow < 0;
}

void TDataSet::Scrolled() {
    if (auto* events = Events()) events->Scrolled();
    if (FRow >= 0) Call(AfterScroll);
}

void TDataSet::First() {
    CheckBrowseMode();
    Settle(0);
    FBof = true;
    Scrolled();
}

void TDataSet::Last() {
    CheckBrowseMode();
    FetchAll();
    Settle(RowCount() - 1);
    FEof = true;
    Scrolled();
}

void TDataSet::Next() {
    MoveBy(1);
}

void TDataSet::Prior() {
    MoveBy(-1);
}

int TDataSet::MoveBy(int distance) {
    CheckBrowseMode();
    if (FRow < 0 || distance == 0) return 0;
    const int from = FRow;
    const int64_t target = int64_t{from} + distance;
    if (distance > 0)
        FetchUntil(static_cast<int>(std::min<int64_t>(target, std::numeric_limits<int>::max() - 1)));
    Settle(static_cast<int>(std::clamp<int64_t>(target, 0, RowCount() - 1)));
    FBof = target < 0;
    FEof = target >= RowCount();
    if (FRow != from) Scrolled();
    return FRow - from;
}

void TDataSet::MoveToRow(int row) {
    CheckActive();
    if (row < 0 || row >= RowCount()) throw EDatabaseError(u"Row %1 is not here"_s.arg(row));
    if (row == FRow) return;
    CheckBrowseMode();
    Settle(row);
    Scrolled();
}

bool TDataSet::Locate(const UnicodeString& keyFields, const Variant& values, TLocateOptions options) {
    CheckBrowseMode();
    const auto make = [&] {
        return fichario::RowMatcher::Make(*this, FRows->Layout(), keyFields, values, options);
    };
    auto matcher = make();
    if (matcher) RenewRows();
    int found = matcher ? matcher->Find(*this, *FRows, 0) : -1;
    while (matcher && found < 0 && !FAllFetched) {
        const int searched = RowCount(), result = FResult;
        FetchUntil(searched);
        const bool anew = FResult != result;  // all rows came again, perhaps in another encoding
        if (anew) matcher = make();
        if (matcher) found = matcher->Find(*this, *FRows, anew ? 0 : searched);
    }
    if (found < 0) return false;
    Settle(found);
    Scrolled();
    return true;
}

// ---- refreshing ----

void TDataSet::Reload() {
    const int row = FRow, loaded = RowCount();
    const std::vector<Variant> key = CurrentKey();
    FAllFetched = !DoOpen();
    Settle(std::max(row, 0));  // whatever fails now, the record is one that is here
    if (row >= 0) Settle(FindAgain(key, row, loaded));
}

void TDataSet::Refresh() {
    CheckBrowseMode();
    Call(BeforeRefresh);
    if (!Active()) return;
    DisableControls();
    try {
        Reload();
    } catch (...) {
        EnableControls();
        throw;
    }
    EnableControls();
    Call(AfterRefresh);
    if (FRow >= 0) Call(AfterScroll);
}
