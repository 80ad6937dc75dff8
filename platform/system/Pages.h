// Memory as the operating system gives it: in pages, each at its first use.
#pragma once
#include <cstddef>

constexpr size_t kLargePage = size_t{2} << 20;

// Memory of `size` bytes, which free() gives back; null when there is none. All its pages are there at once,
// which costs a fraction of giving each when it is first written; blocks of kLargePage and more are made of
// large pages, which a scan crosses faster. Where the system cannot do either, the pages come one by one.
void* TakePages(size_t size);
