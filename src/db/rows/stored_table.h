// SPDX-License-Identifier: MIT
// A whole table as stored in a file, whatever its subject.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "db/rows/table_def.h"
#include "db/values/value.h"

namespace orrerix {

// Holds all rows in stored order, each with all fields in the order of the definition.
struct StoredTable {
  TableDef Definition;
  std::vector<Value> Cells;  // row by row

  std::size_t RowCount() const {
    return Definition.Fields.empty() ? 0 : Cells.size() / Definition.Fields.size();
  }
  std::span<const Value> Row(std::size_t row) const {
    const std::size_t width = Definition.Fields.size();
    return std::span(Cells).subspan(row * width, width);
  }
};

}  // namespace orrerix
