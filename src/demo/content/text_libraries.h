// SPDX-License-Identifier: MIT
// The texts of the demo game and their numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "demo/format/pe_writer.h"

namespace orrerix::demo {

// The game's resource libraries, in the order in which the configuration lists them: the order
// is part of every text number.
enum class Library : std::size_t { Names, Cards, Equipment, Misc, People };

struct LibraryFile {
  Library Place;
  std::string_view Name;     // file name in the folder of the program
  std::string_view Purpose;  // comment after the name in the configuration
};

const std::vector<LibraryFile>& LibraryFiles();

// Hands out text numbers while the game is being written, and keeps the texts for the libraries.
// A text number is the library's place, counted from 1, times 65536, plus the number within it.
class TextLibraries {
 public:
  // The number of a name; the same text in the same library gets the same number again.
  int Name(Library library, std::string_view utf8);

  // The number of the first of several cards that follow one another. Cards are given as their
  // complete text. Throws std::length_error when a library has no number left.
  int Cards(Library library, const std::vector<std::string>& cards);

  // The number of a card that many things share: the same card gets the same number again.
  int SharedCard(Library library, const std::string& card);

  std::string Image(Library library) const;

 private:
  struct Content {
    ResourceLibraryWriter Writer;
    std::map<std::string, int, std::less<>> KnownNames;
    std::map<std::string, int, std::less<>> KnownCards;
    int LastName = 0;
    int LastCard = 0;
  };

  Content& ContentOf(Library library) { return contents_[static_cast<std::size_t>(library)]; }

  std::array<Content, 5> contents_;
};

}  // namespace orrerix::demo
