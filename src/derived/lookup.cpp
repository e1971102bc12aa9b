// SPDX-License-Identifier: MIT
#include "derived/lookup.h"

#include "db/values/text.h"

namespace orrerix {

Recordset RowNamed(FailureSink& routine, Universe& universe, std::string_view table,
                   std::string_view nickname) {
  return universe.DB.OpenRowsNamed(routine, table, {"nickname", nickname});
}

Recordset ObjectNamed(FailureSink& routine, Universe& universe, std::string_view nickname) {
  return RowNamed(routine, universe, "Objects", nickname);
}

std::string WithoutBaseEnd(std::string_view base) {
  constexpr std::size_t baseEnd = 5;  // "_Base"
  const std::size_t length = Len(base);
  if (length < baseEnd) throw RuntimeFailure(failure_number::kInvalidProcedureCall);
  return std::string(Left(base, length - baseEnd));
}

}  // namespace orrerix
