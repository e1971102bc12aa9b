// SPDX-License-Identifier: MIT
// Many texts that live and end together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace orrerix {

// Keeps copies of texts until it is destroyed. They are allocated in blocks and freed together.
class TextStore {
 public:
  // A copy of the text; it stays where it is, also when the store is moved. That of an empty text
  // has a place, too: to the engine a text without one is Null.
  std::string_view Keep(std::string_view text) {
    if (text.size() >= free_.size()) MakeRoom(text.size() + 1);
    char* kept = free_.data();
    free_ = free_.subspan(text.copy(kept, text.size()));
    return {kept, text.size()};
  }

 private:
  void MakeRoom(std::size_t size) {
    constexpr std::size_t most = 1 << 16;
    const std::size_t room = std::max(size, nextRoom_);
    free_ = {blocks_.emplace_back(std::make_unique_for_overwrite<char[]>(room)).get(), room};
    nextRoom_ = std::min(2 * nextRoom_, most);
  }

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::span<char> free_;  // at the end of the last block
  std::size_t nextRoom_ = 1 << 10;
};

}  // namespace orrerix
