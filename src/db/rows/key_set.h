// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace orrerix {

// The rows of a table that are found by their keys. It holds the numbers of rows and their hashes,
// a few bytes for each; its owner hashes and compares the keys.
class KeySet {
 public:
  using Row = std::uint32_t;

  // Makes sure that one more row can be put in without memory.
  void MakeRoom() {
    // Half of the slots stay free: a key that is not there is found out after two or three of them.
    if (2 * (used_ + 1) <= slots_.size()) return;
    std::vector<Slot> before(slots_.empty() ? kFewestSlots : 2 * slots_.size());
    before.swap(slots_);
    used_ = 0;
    for (const Slot& slot : before) {
      if (slot.Number < kGone) Put(slot.Number, slot.Hash);
    }
  }

  // Whether `isSame` says of one of the rows with such a hash that its key is the one looked for.
  template <typename IsSame>
  bool Holds(std::size_t hash, const IsSame& isSame) const {
    if (slots_.empty()) return false;
    for (std::size_t slot = First(hash); slots_[slot].Number != kFree; slot = Next(slot)) {
      const Slot& held = slots_[slot];
      const bool isLike = held.Number != kGone && held.Hash == static_cast<std::uint32_t>(hash);
      if (isLike && isSame(held.Number)) return true;
    }
    return false;
  }

  // Puts a row in. Precondition: there is room, and none of the rows has the same key.
  void Put(Row row, std::size_t hash) {
    std::size_t slot = First(hash);
    while (slots_[slot].Number != kFree) slot = Next(slot);
    slots_[slot] = {row, static_cast<std::uint32_t>(hash)};
    ++used_;
  }

  // Takes a row out that was put in with this hash.
  void Erase(Row row, std::size_t hash) {
    std::size_t slot = First(hash);
    while (slots_[slot].Number != row) slot = Next(slot);
    slots_[slot].Number = kGone;
  }

  void Clear() {
    slots_.clear();
    used_ = 0;
  }

 private:
  static constexpr Row kFree = 0xFFFFFFFF;
  static constexpr Row kGone = 0xFFFFFFFE;  // of a row that was taken out
  static constexpr std::size_t kFewestSlots = 16;

  struct Slot {
    Row Number = kFree;
    std::uint32_t Hash = 0;  // its last bits
  };

  // There are fewer slots than there are such hashes.
  std::size_t First(std::size_t hash) const {
    return static_cast<std::uint32_t>(hash) & (slots_.size() - 1);
  }
  std::size_t Next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }

  std::vector<Slot> slots_;  // a power of two; a row stands where its hash says, or after that
  std::size_t used_ = 0;     // slots that are not free
};

}  // namespace orrerix
