// What was changed in a dataset's rows and is not written yet. A row is known by where its bytes stand, which
// stays as rows are inserted and removed around it.
//
//     log.TakeChanged(from, to, before);      // the row took new values, and with them another place
//     for (int row = 0; row < rows.Count(); ++row) {
//         if (const PendingRow* pending = log.Find(rows.Address(row))) Write(row, *pending);
//     }
#pragma once
#include <cstdint>
#include <unordered_map>
#include <vector>
#include "platform/rtl/Variant.h"

namespace fichario {

struct PendingRow {
    bool New = false;             // the table does not have it yet
    std::vector<Variant> Before;  // what its table holds, by column; empty for a new one
};

class UpdateLog {
  public:
    bool Empty() const { return FRows.empty() && FDeleted.empty(); }
    void Clear() { *this = {}; }
    // Everything in it was written to the table, and nothing changed since.
    bool Applied() const { return FApplied; }
    void SetApplied() { FApplied = true; }

    const PendingRow* Find(uint64_t address) const {
        const auto found = FRows.find(address);
        return found == FRows.end() ? nullptr : &found->second;
    }
    // The rows that are to be deleted, as their table holds them.
    const std::vector<std::vector<Variant>>& Deleted() const { return FDeleted; }

    void TakeInserted(uint64_t address) {
        FApplied = false;
        FRows[address] = {true, {}};
    }
    // A row moved from one place to another because it took new values; `before` are those it had.
    void TakeChanged(uint64_t from, uint64_t to, std::vector<Variant> before) {
        FApplied = false;
        const auto known = FRows.extract(from);
        FRows[to] = known.empty() ? PendingRow{false, std::move(before)} : std::move(known.mapped());
    }
    void TakeDeleted(uint64_t address, std::vector<Variant> before) {
        FApplied = false;
        const auto known = FRows.extract(address);
        if (known.empty()) return FDeleted.push_back(std::move(before));
        if (!known.mapped().New) FDeleted.push_back(known.mapped().Before);
    }

  private:
    std::unordered_map<uint64_t, PendingRow> FRows;
    std::vector<std::vector<Variant>> FDeleted;
    bool FApplied = false;
};

}  // namespace fichario
