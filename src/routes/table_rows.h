// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "db/database.h"

namespace orrerix {

// All rows of a table in stored order. A table that the universe lacks has none, and a field that
// it lacks is empty.
class TableRows {
 public:
  TableRows(FailureSink& sink, Database& universe, std::string_view table);

  bool AtEnd() const { return rows_.AtEnd(); }
  void MoveNext() { rows_.MoveNext(); }

  std::string Text(std::string_view field);
  double Number(std::string_view field);
  bool IsEmpty(std::string_view field) { return Text(field).empty(); }

 private:
  bool HasField(std::string_view field) const;

  Database* universe_;
  std::string table_;
  Recordset rows_;
};

}  // namespace orrerix
