// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orrerix {

// The rows of a table that are found by their keys. It holds the numbers of rows only, a few bytes
// for each; its owner hashes and compares the keys.
class KeySet {
 public:
  using Row = std::uint32_t;

  // Makes sure that one more row can be put in without memory. `hashOf` gives the hash of a row.
  template <typename HashOf>
  void MakeRoom(const HashOf& hashOf) {
    // Half of the slots stay free: a key that is not there is found out after two or three of them.
    if (2 * (used_ + 1) <= slots_.size()) return;
    std::vector<Row> before(slots_.empty() ? kFewestSlots : 2 * slots_.size(), kFree);
    before.swap(slots_);
    used_ = 0;
    for (const Row row : before) {
      if (row != kFree && row != kGone) Put(row, hashOf(row));
    }
  }

  // Whether `isSame` says of one of the rows with such a hash that its key is the one looked for.
  template <typename IsSame>
  bool Holds(std::size_t hash, const IsSame& isSame) const {
    if (slots_.empty()) return false;
    for (std::size_t slot = First(hash); slots_[slot] != kFree; slot = Next(slot)) {
      if (slots_[slot] != kGone && isSame(slots_[slot])) return true;
    }
    return false;
  }

  // Puts a row in. Precondition: there is room, and none of the rows has the same key.
  void Put(Row row, std::size_t hash) {
    std::size_t slot = First(hash);
    while (slots_[slot] != kFree) slot = Next(slot);
    slots_[slot] = row;
    ++used_;
  }

  // Takes a row out that was put in with this hash.
  void Erase(Row row, std::size_t hash) {
    std::size_t slot = First(hash);
    while (slots_[slot] != row) slot = Next(slot);
    slots_[slot] = kGone;
  }

  void Clear() {
    slots_.clear();
    used_ = 0;
  }

 private:
  static constexpr Row kFree = 0xFFFFFFFF;
  static constexpr Row kGone = 0xFFFFFFFE;  // of a row that was taken out
  static constexpr std::size_t kFewestSlots = 16;

  std::size_t First(std::size_t hash) const { return hash & (slots_.size() - 1); }
  std::size_t Next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

  std::vector<Row> slots_;  // a power of two; a row stands where its hash says, or after that
  std::size_t used_ = 0;    // slots that are not free
};

}  // namespace orrerix
