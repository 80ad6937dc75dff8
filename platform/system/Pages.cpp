#include "platform/system/Pages.h"

#include <sys/mman.h>
#include <unistd.h>
#include <cstdint>
#include <cstdlib>

namespace {

void Bring(void* memory, size_t size) {
    static const auto page = static_cast<uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto place = reinterpret_cast<uintptr_t>(memory);
    const uintptr_t begin = (place + page - 1) / page * page;
    const uintptr_t end = (place + size) / page * page;
    if (end > begin) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE);
}

void* TakeLargePages(size_t size) {
    const size_t whole = (size + kLargePage - 1) / kLargePage * kLargePage;
    void* memory = std::aligned_alloc(kLargePage, whole);
    if (memory) madvise(memory, whole, MADV_HUGEPAGE);
    return memory;
}

}  // namespace

void* TakePages(size_t size) {
    void* memory = size < kLargePage ? std::malloc(size) : TakeLargePages(size);
    if (memory) Bring(memory, size);
    return memory;
}
