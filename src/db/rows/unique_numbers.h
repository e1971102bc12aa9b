// SPDX-License-Identifier: MIT
// Numbers for the fields whose default is GenUniqueID().
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace orrerix {

// Draws positive 32-bit numbers at random, none of them twice.
class UniqueNumbers {
 public:
  using Source = std::function<std::uint32_t()>;

  // The engine's own random numbers.
  static std::uint32_t DrawAtRandom();

  explicit UniqueNumbers(Source source = DrawAtRandom) : source_(std::move(source)) {}

  // A number that was neither drawn nor taken before. The source is asked again for one that was.
  std::int64_t Draw();

  // Notes a number that came from elsewhere; false if it is known.
  bool Take(std::int64_t number);

 private:
  bool Insert(std::uint32_t number);
  void Grow();

  Source source_;
  std::vector<std::uint32_t> places_;  // a hash table whose size is a power of two; 0 is free
  std::size_t count_ = 0;
};

}  // namespace orrerix
