// SPDX-License-Identifier: MIT
#include "demo/plan/random.h"

namespace orrerix::demo {

std::uint64_t Random::Next() {
  state_ += 0x9E3779B97F4A7C15u;
  std::uint64_t value = state_;
  value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
  value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
  return value ^ (value >> 31);
}

int Random::Between(int low, int high) {
  assert(low <= high);
  const auto count = static_cast<std::uint64_t>(high - low) + 1;
  return low + static_cast<int>(Next() % count);
}

double Random::Share() {
  constexpr double unit = 1.0 / 9007199254740992.0;  // 2 to the power of -53
  return static_cast<double>(Next() >> 11) * unit;
}

std::uint64_t SeedOf(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char letter : text) {
    hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001B3u;
  }
  return hash;
}

}  // namespace orrerix::demo
