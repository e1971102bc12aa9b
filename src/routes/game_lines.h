// SPDX-License-Identifier: MIT
// Lines of the game's files that an import does not keep.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/game_path.h"

namespace orrerix {

// A line "key = value" under a header, each part trimmed and without its comment; raw bytes.
struct GameLine {
  std::string_view Section;
  std::string_view Key;
  std::string_view Value;
};

// Gives all such lines of a file in their order; packed files are unpacked. A file that is missing
// or cannot be read has none.
void ForEachGameLine(const GameFolder& game, const std::string& path,
                     const std::function<void(const GameLine&)>& take);

}  // namespace orrerix
