// SPDX-License-Identifier: MIT
#include "info/texts/table_row.h"

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {

Recordset RowsWhere(Routine& routine, Universe& universe, std::string_view table,
                    std::string_view field, std::string_view text) {
  if (!universe.DB.HasField(table, field)) return {};
  return universe.DB.OpenRecordset(
      routine, fmt::format("SELECT * FROM {} WHERE ucase({}) = '{{}}'", table, field),
      {Ucase(text)});
}

TableRow::TableRow(Routine& routine, Universe& universe, std::string_view table,
                   std::string_view field, std::string_view text)
    : universe_(universe), table_(table), row_(RowsWhere(routine, universe, table, field, text)) {}

std::string TableRow::Text(std::string_view field) {
  return universe_.DB.HasField(table_, field) ? row_[field].Get().Text() : std::string();
}

double TableRow::Val(std::string_view field) {
  return universe_.DB.HasField(table_, field) ? row_[field].Get().Number() : 0;
}

}  // namespace orrerix
