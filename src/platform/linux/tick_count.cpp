// SPDX-License-Identifier: MIT
#include "platform/tick_count.h"

#include <chrono>

namespace orrerix {
std::uint32_t GetTickCount() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint32_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
}

}  // namespace orrerix
