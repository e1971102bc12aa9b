// SPDX-License-Identifier: MIT
// Many short runs of values that live and end together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace orrerix {

// Keeps copies of runs until it is destroyed. They are allocated in blocks and freed together.
template <typename T>
class RunStore {
 public:
  // A copy of the run; it stays where it is, also when the store is moved. That of an empty run has
  // a place, too.
  std::span<const T> Keep(std::span<const T> run) {
    if (run.size() >= free_.size()) MakeRoom(run.size() + 1);
    const std::span<T> kept = free_.first(run.size());
    std::copy(run.begin(), run.end(), kept.begin());
    free_ = free_.subspan(run.size());
    return kept;
  }

 private:
  void MakeRoom(std::size_t size) {
    constexpr std::size_t most = (1 << 16) / sizeof(T);
    const std::size_t room = std::max(size, nextRoom_);
    free_ = {blocks_.emplace_back(std::make_unique_for_overwrite<T[]>(room)).get(), room};
    nextRoom_ = std::min(2 * nextRoom_, most);
  }

  std::vector<std::unique_ptr<T[]>> blocks_;
  std::span<T> free_;  // at the end of the last block
  std::size_t nextRoom_ = (1 << 9) / sizeof(T);
};

}  // namespace orrerix
