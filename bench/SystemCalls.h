// How often this process, the client library included, has sent to a server and asked for local time. The C
// library's functions are met on their way: a program's own definition comes before a library's.
#pragma once
#include <cstdint>

int64_t SendsSoFar();
int64_t LocalTimesSoFar();
