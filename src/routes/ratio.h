// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace orrerix {

// A quotient of whole numbers that is compared exactly. The divisor is above 0.
struct Ratio {
  std::int64_t Numerator = 0;
  std::int64_t Divisor = 1;

  friend bool operator==(const Ratio& a, const Ratio& b) {
    return Product(a.Numerator, b.Divisor) == Product(b.Numerator, a.Divisor);
  }
  friend bool operator>(const Ratio& a, const Ratio& b) {
    return Product(a.Numerator, b.Divisor) > Product(b.Numerator, a.Divisor);
  }

 private:
  __extension__ using Wide = __int128;
  static constexpr Wide Product(std::int64_t a, std::int64_t b) { return static_cast<Wide>(a) * b; }
};

}  // namespace orrerix
