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
    bool New = false;              // the table does not have it yet
    std::vector<Variant> Before;   // what its table holds, by column; empty for a new one
    std::vector<Variant> Applied;  // what was written of it last, in a transaction whose end is not known
    bool ChangedSince = false;
};

class UpdateLog {
  public:
    bool Empty() const;
    void Clear() { *this = {}; }

    const PendingRow* Find(uint64_t address) const {
        const auto found = FRows.find(address);
        return found == FRows.end() ? nullptr : &found->second;
    }
    // The rows that are to be deleted; new ones among them were written, which may be undone.
    const std::vector<PendingRow>& Deleted() const { return FDeleted; }

    void TakeInserted(uint64_t address) { FRows[address].New = true; }
    // A row moved from one place to another because it took new values; `before` are those it had.
    void TakeChanged(uint64_t from, uint64_t to, std::vector<Variant> before);
    void TakeDeleted(uint64_t address, std::vector<Variant> before);

    // What was written is undone, and will be written again.
    void ForgetApplied();
    // The deletions, or the row with its new values, were written.
    void TakeDeletionsApplied() { FDeletionsApplied = FDeleted.size(); }
    void TakeApplied(uint64_t address, std::vector<Variant> values);
    // What was written is stored: only what was changed since stays pending.
    void TakeStored();

  private:
    std::unordered_map<uint64_t, PendingRow> FRows;
    std::vector<PendingRow> FDeleted;
    size_t FDeletionsApplied = 0;  // the first ones
};

}  // namespace fichario
