// SPDX-License-Identifier: MIT
// Which row of one table is which row of another one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "db/rows/stored_table.h"

namespace orrerix {

// A column of two tables: its place in each, nothing where a table lacks it.
struct SharedColumn {
  std::string Name;  // as the new table spells it
  bool IsText = false;
  std::optional<std::size_t> Old;
  std::optional<std::size_t> New;
};

// The columns of two tables of one name that count: those of the new one in their order, then what
// only the old one has.
std::vector<SharedColumn> ColumnsThatCount(const TableDef& old, const TableDef& now);

// The columns that identify a row in both tables, by position.
std::vector<std::size_t> KeyColumns(const StoredTable& old, const StoredTable& now,
                                    const std::vector<SharedColumn>& columns);

// For each row of the new table the row of the old one with the same key, nothing if there is none
// or all of them are taken. Rows with equal keys are matched in stored order.
std::vector<std::optional<std::size_t>> MatchRows(const StoredTable& old, const StoredTable& now,
                                                  const std::vector<SharedColumn>& columns,
                                                  const std::vector<std::size_t>& key);

// A row's value in a column; Null where its table has no such column.
const Value& ValueAt(std::span<const Value> row, const std::optional<std::size_t>& column);

}  // namespace orrerix
