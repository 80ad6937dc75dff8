// The client library's object interface and error numbers, with the vendor's own warnings silenced. Only
// sources of this folder include it.
#pragma once
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#pragma GCC diagnostic ignored "-Wunused-parameter"
#pragma GCC diagnostic ignored "-Wdeprecated-copy"
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#pragma GCC diagnostic ignored "-Woverloaded-virtual"
#include <firebird/Interface.h>
#include <ibase.h>
#pragma GCC diagnostic pop
