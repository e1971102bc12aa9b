// SPDX-License-Identifier: MIT
// Many texts that live and end together.
#pragma once

#include <memory>
#include <memory_resource>
#include <string_view>

namespace orrerix {

// Keeps copies of texts until it ends itself, one behind the other: that takes no time for each of
// them to be made and given back.
class TextStore {
 public:
  TextStore() : memory_(std::make_unique<std::pmr::monotonic_buffer_resource>()) {}

  // A copy of the text; it stays where it is, also when the store is moved. That of an empty text
  // has a place, too: to the engine a text without one is Null.
  std::string_view Keep(std::string_view text) {
    auto* kept = static_cast<char*>(memory_->allocate(text.size() + 1, 1));
    return {kept, text.copy(kept, text.size())};
  }

 private:
  std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_;
};

}  // namespace orrerix
