// SPDX-License-Identifier: MIT
// Rows that an info text is made from.
#pragma once

#include <string>
#include <string_view>

#include "import/universe.h"
#include "shell/routine.h"

namespace orrerix {

// The rows of a table whose `field` has this text, whatever its case. A table or field that no file
// has filled has none, without a failure.
Recordset RowsWhere(Routine& routine, Universe& universe, std::string_view table,
                    std::string_view field, std::string_view text);

// The first of those, read field by field.
class TableRow {
 public:
  TableRow(Routine& routine, Universe& universe, std::string_view table, std::string_view field,
           std::string_view text);

  bool Found() const { return !row_.AtEnd(); }

  // A field as a text and as the number at its start; nothing and 0 if it is empty, Null, or a
  // field that no file has filled.
  std::string Text(std::string_view field);
  double Val(std::string_view field);

  FieldRef operator[](std::string_view field) { return row_[field]; }

 private:
  Universe& universe_;
  std::string table_;
  Recordset row_;
};

}  // namespace orrerix
