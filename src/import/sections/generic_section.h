// SPDX-License-Identifier: MIT
// Blocks of sections that the program does not know.
#pragma once

#include <string_view>

#include "import/ini/reader_routine.h"
#include "import/sections/section_tables.h"

namespace orrerix {

// Adds a block without comments and with CR LF line ends as one row to the table named after its
// section; `file` is the path that the row names as its source, below the game folder. Throws
// NextBlock where the reader's routine gives the block up.
void ReadGenericSection(Import& import, ReaderRoutine& routine, std::string_view file,
                        std::string_view block);

}  // namespace orrerix
