// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "db/database.h"
#include "import/universe.h"

namespace orrerix {

// Makes queries on an expression of a table ("ucase(nickname)") fast while the import runs; the
// finished file has no indexes.
void LookUpBy(FailureSink& routine, Universe& universe, std::string_view table,
              std::string_view expression);

// The row of `Objects` with a nickname, whatever its case; without rows if there is none.
Recordset ObjectNamed(FailureSink& routine, Universe& universe, std::string_view nickname);

}  // namespace orrerix
