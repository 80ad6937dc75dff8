#include "platform/data/firebird/RowStore.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include "platform/system/Pages.h"

namespace fichario {

void RowStore::Freer::operator()(uint8_t* memory) const {
    std::free(memory);
}

namespace {

// A small result takes little; each chunk is so many times as large as the one before.
constexpr size_t kFirstChunk = size_t{1} << 14;
constexpr size_t kGrowth = 4;

}  // namespace

// A row larger than a chunk gets one of its own size: an address only needs each row to begin inside the
// first 1 MiB.
void RowStore::AddChunk() {
    FNextChunk = std::clamp(FNextChunk * kGrowth, kFirstChunk, kChunk);
    FRoom = std::max(FNextChunk, FLayout.MaxBytes());
    auto* memory = static_cast<uint8_t*>(std::malloc(FRoom));
    if (!memory) throw std::bad_alloc();
    FChunks.emplace_back(memory);
    if (FNextChunk > kFirstChunk) BringPages(memory, FNextChunk);
    FUsed = 0;
    FHeld += FRoom;
}

void RowStore::Fit() {
    FDirectory.Fit();
    if (FChunks.empty()) return;
    const size_t size = std::max<size_t>(FUsed, 1);
    auto* memory = static_cast<uint8_t*>(std::realloc(FChunks.back().get(), size));
    if (!memory) return;
    static_cast<void>(FChunks.back().release());
    FChunks.back().reset(memory);
    FHeld -= FRoom - size;
    FRoom = size;
    FNextChunk = 0;
}

void RowStore::InsertNull(int row) {
    if (!FNull) FNull = Add([&](uint8_t* at) { return FLayout.PackNull(at); });
    FDirectory.Insert(row, *FNull);
}

void RowStore::SetOutdated(int row) {
    FLayout.Mark(FChunks[FDirectory.At(row) >> kChunkBits].get() + (FDirectory.At(row) & (kChunk - 1)));
    FSomeOutdated = true;
}

void RowStore::CopyRow(int row, const RowStore& from, int fromRow) {
    const uint8_t* source = from.Row(fromRow);
    const size_t bytes = from.FLayout.Bytes(source);
    FDirectory.Set(row, Add([&](uint8_t* at) { return std::copy_n(source, bytes, at); }));
}

void RowStore::SetValues(int row, std::span<const Variant* const> values) {
    FDirectory.Set(row, Add([&](uint8_t* at) { return FLayout.PackValues(values, at); }));
}

void RowStore::SetValues(int row, const std::vector<Variant>& values) {
    std::vector<const Variant*> places;
    places.reserve(values.size());
    for (const Variant& value : values) places.push_back(&value);
    SetValues(row, places);
}

size_t RowStore::Bytes() const {
    return FHeld + FDirectory.Bytes();
}

}  // namespace fichario
