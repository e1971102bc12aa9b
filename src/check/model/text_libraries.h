// SPDX-License-Identifier: MIT
// The texts of the game's resource libraries, by number.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/files/game_files.h"

namespace orrerix::check {

// One library of the game, as far as rules ask.
struct TextLibrary {
  bool IsRead = false;
  bool IsDamaged = false;  // there, but not a library
  std::string Bytes;
  std::vector<bool> HasString;                      // by number
  std::map<std::uint32_t, std::string_view> Cards;  // UTF-16 in Bytes
};

// The number of a text is its library's place in the configuration, from 1, times 65536, and its
// number there. Place 0 is the game's own library of the program's texts.
class TextLibraries {
 public:
  explicit TextLibraries(const GameFiles& files);
  TextLibraries(const TextLibraries&) = delete;
  TextLibraries& operator=(const TextLibraries&) = delete;

  // Number of lines that name libraries.
  std::size_t Count() const { return libraries_.size() - 1; }
  // The library of a place from 0 to Count().
  const TextLibrary& At(std::size_t place) const { return libraries_[place]; }

  // The library of a text number if it is read, else null.
  const TextLibrary* Of(std::uint32_t number) const;
  bool HasString(std::uint32_t number) const;
  // The raw card of a number; nothing if there is none.
  std::optional<std::string_view> Card(std::uint32_t number) const;

 private:
  std::deque<TextLibrary> libraries_;
};

}  // namespace orrerix::check
