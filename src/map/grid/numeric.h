// SPDX-License-Identifier: MIT
// Numbers of the map: places and sizes in twips.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace orrerix {

// A size that may have come out negative; 0 then.
inline double NotBelowZero(double size) {
  return std::max(0.0, size);
}

// What a 32-bit float keeps of a number. The volatile copy makes the compiler round it: the
// vectorizer of GCC 12 forgets the way to float and back when it converts numbers in pairs.
inline double KeptAsFloat(double number) {
  const volatile float kept = static_cast<float>(number);
  return kept;
}

// A place or size as a whole number of twips, rounded to nearest, ties to even, and kept within 32
// bits.
inline std::int32_t WholeTwips(double twips) {
  const double whole = std::nearbyint(twips);
  return static_cast<std::int32_t>(
      std::clamp(whole, static_cast<double>(std::numeric_limits<std::int32_t>::min()),
                 static_cast<double>(std::numeric_limits<std::int32_t>::max())));
}

}  // namespace orrerix
