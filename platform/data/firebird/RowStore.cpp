#include "platform/data/firebird/RowStore.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace fichario {

void RowStore::Freer::operator()(uint8_t* memory) const {
    std::free(memory);
}

// A row larger than a chunk gets one of its own size: an address only needs each row to begin inside the
// first 1 MiB.
void RowStore::AddChunk() {
    const size_t size = std::max(kChunk, FLayout.MaxBytes());
    auto* memory = static_cast<uint8_t*>(std::malloc(size));
    if (!memory) throw std::bad_alloc();
    FChunks.emplace_back(memory);
    FUsed = 0;
    FHeld += size;
}

void RowStore::InsertNull(int row) {
    FDirectory.Insert(row, Add([&](uint8_t* at) { return FLayout.PackNull(at); }));
}

void RowStore::CopyRow(int row, const RowStore& from, int fromRow) {
    const uint8_t* source = from.Row(fromRow);
    const size_t bytes = from.FLayout.Bytes(source);
    FDirectory.Set(row, Add([&](uint8_t* at) { return std::copy_n(source, bytes, at); }));
}

void RowStore::SetValues(int row, const std::vector<Variant>& values) {
    FDirectory.Set(row, Add([&](uint8_t* at) { return FLayout.PackValues(values, at); }));
}

size_t RowStore::Bytes() const {
    return FHeld + FDirectory.Bytes();
}

}  // namespace fichario
