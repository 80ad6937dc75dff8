// Where each row of a store stands, in order: 32 bits a row, 64 once the store has outgrown them.
#pragma once
#include <cstdint>
#include <limits>
#include <vector>

namespace fichario {

class RowDirectory {
  public:
    int Count() const { return static_cast<int>(FIsWide ? FWide.size() : FNarrow.size()); }

    uint64_t At(int row) const {
        const auto index = static_cast<size_t>(row);
        return FIsWide ? FWide[index] : FNarrow[index];
    }

    void Append(uint64_t address) { Insert(Count(), address); }

    // Before row `row`, 0 to Count().
    void Insert(int row, uint64_t address) {
        Widen(address);
        if (FIsWide) {
            FWide.insert(FWide.begin() + row, address);
        } else {
            FNarrow.insert(FNarrow.begin() + row, static_cast<uint32_t>(address));
        }
    }

    void Set(int row, uint64_t address) {
        Widen(address);
        const auto index = static_cast<size_t>(row);
        if (FIsWide) {
            FWide[index] = address;
        } else {
            FNarrow[index] = static_cast<uint32_t>(address);
        }
    }

    void Erase(int row) {
        if (FIsWide) {
            FWide.erase(FWide.begin() + row);
        } else {
            FNarrow.erase(FNarrow.begin() + row);
        }
    }

    // Gives back what is kept for further rows.
    void Fit() {
        FNarrow.shrink_to_fit();
        FWide.shrink_to_fit();
    }

    size_t Bytes() const {
        return FNarrow.capacity() * sizeof(uint32_t) + FWide.capacity() * sizeof(uint64_t);
    }

  private:
    void Widen(uint64_t address) {
        if (FIsWide || address <= std::numeric_limits<uint32_t>::max()) return;
        FWide.assign(FNarrow.begin(), FNarrow.end());
        FNarrow = {};
        FIsWide = true;
    }

    std::vector<uint32_t> FNarrow;
    std::vector<uint64_t> FWide;
    bool FIsWide = false;
};

}  // namespace fichario
