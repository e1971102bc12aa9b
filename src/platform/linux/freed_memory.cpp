// SPDX-License-Identifier: MIT
#include "platform/freed_memory.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace orrerix {

void ReturnFreedMemory() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

void KeepLargeMemoryApart() {
#ifdef __GLIBC__
  constexpr int megabyte = 1024 * 1024;
  // The library's own threshold grows with what is freed, up to 32 MB.
  mallopt(M_MMAP_THRESHOLD, 2 * megabyte);
  mallopt(M_TRIM_THRESHOLD, 4 * megabyte);
#endif
}

}  // namespace orrerix
