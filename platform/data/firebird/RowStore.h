// The rows of a dataset, packed one after the other in chunks of at most 1 MiB.
//
//     RowStore store(RowLayout(statement.Columns()));
//     store.Append(message);
//     Variant name = store.Value(0, 1);
//
// A row that is replaced or removed leaves its bytes behind until the store goes: edits are few.
#pragma once
#include <memory>
#include <optional>
#include "platform/data/firebird/RowDirectory.h"
#include "platform/data/firebird/RowLayout.h"

namespace fichario {

class RowStore {
  public:
    RowStore() = default;
    explicit RowStore(RowLayout layout) : FLayout(std::move(layout)) {}

    const RowLayout& Layout() const { return FLayout; }
    int Count() const { return FDirectory.Count(); }
    // The packed row; `row` from 0 to Count() - 1.
    const uint8_t* Row(int row) const { return At(FDirectory.At(row)); }
    // Where the row stands; it keeps its place until it takes new values.
    uint64_t Address(int row) const { return FDirectory.At(row); }
    Variant Value(int row, int column) const { return FLayout.Value(Row(row), column); }
    Variant ValueOrBytes(int row, int column) const { return FLayout.ValueOrBytes(Row(row), column); }

    // Adds the row of a message behind the others.
    void Append(const uint8_t* message) {
        FDirectory.Append(Add([&](uint8_t* row) { return FLayout.Pack(message, row); }));
    }
    // Adds a row of nulls before `row`, 0 to Count(); it must hold values before it is outdated.
    void InsertNull(int row);
    // Marks a row as outdated until it becomes a copy or holds new values.
    void SetOutdated(int row);
    bool IsOutdated(int row) const { return FSomeOutdated && FLayout.IsMarked(Row(row)); }
    // Row `row` becomes a copy of a row of another store with the same columns, or holds new values.
    void CopyRow(int row, const RowStore& from, int fromRow);
    void SetValues(int row, std::span<const Variant* const> values);
    void SetValues(int row, const std::vector<Variant>& values);
    void Remove(int row) { FDirectory.Erase(row); }

    // Gives back the memory kept ready for further rows: when all are here.
    void Fit();
    // The memory it holds.
    size_t Bytes() const;

  private:
    struct Freer {
        void operator()(uint8_t* memory) const;
    };
    static constexpr int kChunkBits = 20;
    static constexpr size_t kChunk = size_t{1} << kChunkBits;

    const uint8_t* At(uint64_t address) const {
        return FChunks[address >> kChunkBits].get() + (address & (kChunk - 1));
    }
    // Room for one more row, which `pack` writes: it gets the place and returns the end. Returns the row's
    // address.
    template <class Pack>
    uint64_t Add(Pack pack) {
        if (FUsed + FLayout.MaxBytes() > FRoom || FChunks.empty()) AddChunk();
        uint8_t* row = FChunks.back().get() + FUsed;
        const uint64_t address = (uint64_t{FChunks.size() - 1} << kChunkBits) + FUsed;
        FUsed += static_cast<size_t>(pack(row) - row);
        return address;
    }
    void AddChunk();

    RowLayout FLayout;
    RowDirectory FDirectory;
    std::vector<std::unique_ptr<uint8_t, Freer>> FChunks;
    size_t FUsed = 0, FRoom = 0;  // of the last chunk
    size_t FNextChunk = 0;        // the size it was to have; 0: the next one is a first one again
    size_t FHeld = 0;
    bool FSomeOutdated = false;     // once a row was
    std::optional<uint64_t> FNull;  // the row of nulls, which all that hold nothing yet share
};

}  // namespace fichario
