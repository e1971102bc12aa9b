// SPDX-License-Identifier: MIT
#include "platform/tick_count.h"

#include <windows.h>

namespace orrerix {

std::uint32_t GetTickCount() {
  return ::GetTickCount();
}

}  // namespace orrerix
