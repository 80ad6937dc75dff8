#include "platform/data/UpdateLog.h"

#include <algorithm>

namespace fichario {

namespace {

bool IsInTable(const PendingRow& row) {
    return !row.New;
}

// The row as it is once what was written of it is stored.
void Settle(PendingRow& row) {
    if (row.Applied.empty()) return;
    row.New = false;
    row.Before = std::move(row.Applied);
    row.Applied.clear();
}

}  // namespace

bool UpdateLog::Empty() const {
    return FRows.empty() && std::none_of(FDeleted.begin(), FDeleted.end(), IsInTable);
}

void UpdateLog::TakeChanged(uint64_t from, uint64_t to, std::vector<Variant> before) {
    const auto known = FRows.extract(from);
    PendingRow& row = FRows[to];
    if (known.empty()) {
        row.Before = std::move(before);
    } else {
        row = std::move(known.mapped());
    }
    row.ChangedSince = true;
}

void UpdateLog::TakeDeleted(uint64_t address, std::vector<Variant> before) {
    const auto known = FRows.extract(address);
    if (known.empty()) {
        FDeleted.push_back({false, std::move(before), {}, false});
    } else if (!known.mapped().New || !known.mapped().Applied.empty()) {
        FDeleted.push_back(std::move(known.mapped()));
    }
}

void UpdateLog::ForgetApplied() {
    FDeletionsApplied = 0;
    std::erase_if(FDeleted, [](const PendingRow& row) { return row.New; });
    for (PendingRow& row : FDeleted) row.Applied.clear();
    for (auto& [address, row] : FRows) row.Applied.clear();
}

void UpdateLog::TakeApplied(uint64_t address, std::vector<Variant> values) {
    PendingRow& row = FRows[address];
    row.Applied = std::move(values);
    row.ChangedSince = false;
}

void UpdateLog::TakeStored() {
    FDeleted.erase(FDeleted.begin(), FDeleted.begin() + static_cast<std::ptrdiff_t>(FDeletionsApplied));
    FDeletionsApplied = 0;
    for (PendingRow& row : FDeleted) Settle(row);
    std::erase_if(FRows,
                  [](const auto& row) { return !row.second.Applied.empty() && !row.second.ChangedSince; });
    for (auto& [address, row] : FRows) Settle(row);
}

}  // namespace fichario
