// SPDX-License-Identifier: MIT
// The game's names and info texts: out of its libraries, and by number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "import/import_state.h"
#include "import/universe.h"

namespace orrerix {

// A library's place in the table of resources counts from 1; a text's number is that times this,
// plus the number inside the library.
inline constexpr std::int32_t kNumbersPerLibrary = 65536;

// Reads one library (a path of the game's kind) into `ids_info` and `ids_name`, each number raised
// by `offset`. One that cannot be loaded gives a message, and its numbers stay unresolved.
void ReadHTML_STRData(Import& import, const std::string& path, std::int32_t offset);

// The name of a number, cut to 255 characters; `fallback` and the number in brackets if there is
// none.
std::string GetName(Universe& universe, std::int32_t number, std::string_view fallback);

// The info text of a number; the number and its low half if there is none.
std::string GetInfo(Universe& universe, std::int32_t number);

// GetInfo under the name that the info boxes ask by.
std::string GetChangeInfo(Universe& universe, std::int32_t number);

// Reads the strings of "nameresources.dll" of one build into a table `Names` by walking the file
// itself. A tool for maintenance: no stage of the import calls it.
void XTractNames(Import& import);

}  // namespace orrerix
