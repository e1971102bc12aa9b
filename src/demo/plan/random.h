// SPDX-License-Identifier: MIT
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace orrerix::demo {

// SplitMix64. The same seed gives the same numbers with every compiler and library, which the
// distributions of <random> do not promise.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next();

  // A whole number from `low` to `high`, both included.
  int Between(int low, int high);

  // A real number from 0 up to, and not including, 1.
  double Share();
  double Between(double low, double high) { return low + (high - low) * Share(); }

  // True in `percent` of 100 calls on the average.
  bool Chance(int percent) { return Between(1, 100) <= percent; }

  template <typename T>
  const T& Pick(const std::vector<T>& choices) {
    assert(!choices.empty());
    return choices[static_cast<std::size_t>(Between(0, static_cast<int>(choices.size()) - 1))];
  }

 private:
  std::uint64_t state_;
};

// A seed from a text, so that each thing draws from its own stream and a change in one place leaves
// the others as they were (FNV-1a).
std::uint64_t SeedOf(std::string_view text);

}  // namespace orrerix::demo
