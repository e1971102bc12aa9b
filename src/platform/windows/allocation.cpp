// SPDX-License-Identifier: MIT
// Every "new" of a program takes its memory from mimalloc. Part of the programs alone: tests have
// allocations of their own, which fail on demand.
#define MI_STATIC_LIB
#include <mimalloc-new-delete.h>
