// SPDX-License-Identifier: MIT
#include "routes/table_rows.h"

#include "db/rows/table_def.h"

namespace orrerix {

TableRows::TableRows(FailureSink& sink, Database& universe, std::string_view table)
    : universe_(&universe), table_(table) {
  if (universe.HasTable(table)) {
    rows_ = universe.OpenRecordset(sink, "SELECT * FROM " + QuoteName(table));
  }
}

std::string TableRows::Text(std::string_view field) {
  return HasField(field) ? rows_[field].Get().Text() : std::string();
}

double TableRows::Number(std::string_view field) {
  return HasField(field) ? rows_[field].Get().Number() : 0;
}

bool TableRows::HasField(std::string_view field) const {
  return universe_->HasField(table_, field);
}

}  // namespace orrerix
