// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace orrerix {

// Milliseconds since the system started, in 32 bits: the count wraps every 49.7 days.
std::uint32_t GetTickCount();

// Whether a paced display is due: more than 750 ms since `last`, or the count has wrapped.
inline bool IsDue(std::uint32_t now, std::uint32_t last) {
  return now < last || now - last > 750;
}

}  // namespace orrerix
