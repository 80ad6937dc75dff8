// Finding a record of a dataset again: by its key, or by where its row stands.
#include <algorithm>

#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/RowStore.h"

using namespace Qt::Literals::StringLiterals;

std::vector<int> TDataSet::KeyColumns() const {
    std::vector<int> columns;
    for (int i = 0; i < FieldCount(); ++i) {
        if (FieldOfColumn(i)->ProviderFlags() & pfInKey) columns.push_back(i);
    }
    return columns;
}

std::vector<Variant> TDataSet::CurrentKey() const {
    std::vector<Variant> key;
    if (FRow < 0 || FRow >= RowCount()) return key;
    for (const int column : KeyColumns()) key.push_back(FRows->ValueOrBytes(FRow, column));
    return key;
}

// The row with that key from `first` on, the nearest to `near`; -1 when there is none.
int TDataSet::FindKey(const std::vector<Variant>& key, int near, int first) const {
    const std::vector<int> columns = KeyColumns();
    if (columns.empty() || columns.size() != key.size()) return -1;
    const auto matches = [&](int row) {
        if (row < first || row >= RowCount()) return false;
        for (size_t i = 0; i < columns.size(); ++i) {
            if (!(FRows->ValueOrBytes(row, columns[i]) == key[i])) return false;
        }
        return true;
    };
    const int farthest = std::max(near - first, RowCount() - near);
    for (int distance = 0; distance <= farthest; ++distance) {
        if (matches(near - distance)) return near - distance;
        if (matches(near + distance)) return near + distance;
    }
    return -1;
}

// The row with that key, near which it was when `loaded` rows were here; `near` when it is gone. Records that
// others put before it may have moved it behind the rows that were here.
int TDataSet::FindAgain(const std::vector<Variant>& key, int near, int loaded) {
    FetchUntil(loaded - 1);
    int found = FindKey(key, near, 0);
    if (found < 0 && !FAllFetched && DoHolds(key)) {
        while (found < 0 && !FAllFetched) {
            const int searched = RowCount();
            FetchUntil(searched);
            found = FindKey(key, searched, searched);
        }
    }
    return found < 0 ? near : found;
}

// ---- bookmarks ----

TBookmark TDataSet::GetBookmark() const {
    if (FRow < 0) return {};
    return {CurrentKey(), FResult, FRows->Address(FRow), FRow};
}

int TDataSet::RowOf(const TBookmark& bookmark) const {
    if (!Active() || bookmark.Row < 0) return -1;
    if (!bookmark.Key.empty()) return FindKey(bookmark.Key, bookmark.Row, 0);
    for (int row = 0; bookmark.Result == FResult && row < RowCount(); ++row) {
        if (FRows->Address(row) == bookmark.Place) return row;
    }
    return -1;
}

bool TDataSet::BookmarkValid(const TBookmark& bookmark) const {
    return RowOf(bookmark) >= 0;
}

void TDataSet::GotoBookmark(const TBookmark& bookmark) {
    CheckBrowseMode();
    const int row = RowOf(bookmark);
    if (row < 0) throw EDatabaseError(u"Bookmark not found"_s);
    MoveToRow(row);
}
