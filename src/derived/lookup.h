// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "db/database.h"
#include "import/universe.h"

namespace orrerix {

// The rows of a table with a nickname, whatever its case; without rows if there is none.
Recordset RowNamed(FailureSink& routine, Universe& universe, std::string_view table,
                   std::string_view nickname);

// The same of `Objects`.
Recordset ObjectNamed(FailureSink& routine, Universe& universe, std::string_view nickname);

// A base's nickname without its last five characters, which are "_Base" where it is that of a
// planet. A shorter one throws failure 5.
std::string WithoutBaseEnd(std::string_view base);

}  // namespace orrerix
