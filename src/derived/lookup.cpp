// SPDX-License-Identifier: MIT
#include "derived/lookup.h"

#include <fmt/format.h>

#include "db/text.h"

namespace orrerix {

void LookUpBy(FailureSink& routine, Universe& universe, std::string_view table,
              std::string_view expression) {
  universe.DB.ExecuteNative(
      routine, fmt::format("CREATE INDEX IF NOT EXISTS \"{} lookup {}\" ON {} ({} COLLATE NOCASE)",
                           table, expression, table, expression));
}

Recordset ObjectNamed(FailureSink& routine, Universe& universe, std::string_view nickname) {
  return universe.DB.OpenRecordset(routine, "SELECT * from Objects WHERE ucase(nickname) = '{}'",
                                   {Ucase(nickname)});
}

}  // namespace orrerix
