// SPDX-License-Identifier: MIT
// Reads one file of the game into the universe database.
#pragma once

#include <string>
#include <string_view>

#include "import/import_state.h"

namespace orrerix {

// Cuts the file (a path of the game's kind) into blocks; those of twelve known kinds go to fixed
// tables, each other one to a table named after its section. `systemNickname` is what the rows of
// `Objects` carry as their system. A missing file is a line in the data log; one that cannot be
// read is failure 75.
void ReadINI(Import& import, const std::string& file, const std::string& systemNickname);

}  // namespace orrerix
