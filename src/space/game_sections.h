// SPDX-License-Identifier: MIT
// Sections of one of the game's files, plain or packed.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/game_path.h"

namespace orrerix {

struct GameSection {
  std::string Name;                                          // in lower case
  std::vector<std::pair<std::string, std::string>> Entries;  // key in lower case, value

  // The value of a key's first line; empty if there is none.
  std::string_view Value(std::string_view key) const;
};

// The sections of a file below the game's DATA folder ("solar\solararch.ini"); none if it is not
// there, cannot be read or is damaged. Bytes are taken as they are: for nicknames and numbers.
std::vector<GameSection> ReadGameSections(const GameFolder& game, std::string_view path);

// The same out of a text.
std::vector<GameSection> SectionsOf(std::string_view text);

}  // namespace orrerix
