#include "platform/system/Pages.h"

#include <sys/mman.h>
#include <unistd.h>
#include <cstdint>

void BringPages(void* memory, size_t size) {
    static const auto page = static_cast<uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto place = reinterpret_cast<uintptr_t>(memory);
    const uintptr_t begin = (place + page - 1) / page * page;
    const uintptr_t end = (place + size) / page * page;
    if (end > begin) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE);
}
