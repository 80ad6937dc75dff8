// Memory as the operating system gives it: in pages, each at its first use.
#pragma once
#include <cstddef>

// Has the system give all whole pages of a block at once, which costs a fraction of giving each when it is
// first written. Where it cannot, they come one by one.
void BringPages(void* memory, size_t size);
