// SPDX-License-Identifier: MIT
#include "platform/freed_memory.h"

namespace orrerix {

// The heap there gives memory back by itself.
void ReturnFreedMemory() {}
void KeepLargeMemoryApart() {}

}  // namespace orrerix
