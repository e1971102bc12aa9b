// SPDX-License-Identifier: MIT
// Many texts that live and end together.
#pragma once

#include <string_view>

#include "db/values/run_store.h"

namespace orrerix {

// Keeps copies of texts until it is destroyed. They are allocated in blocks and freed together.
class TextStore {
 public:
  // A copy of the text; it stays where it is, also when the store is moved. That of an empty text
  // has a place, too: to the engine a text without one is Null.
  std::string_view Keep(std::string_view text) {
    const auto kept = characters_.Keep({text.data(), text.size()});
    return {kept.data(), kept.size()};
  }

 private:
  RunStore<char> characters_;
};

}  // namespace orrerix
