// SPDX-License-Identifier: MIT
// The part of a table that somebody asks for: which columns, which rows, in which order.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/rows/stored_table.h"

namespace orrerix {

// What is asked for. Columns are places in the table's definition.
struct TableQuestion {
  struct Condition {
    std::size_t Column;
    std::string Text;
  };
  struct Order {
    std::size_t Column;
    bool IsDescending = false;
  };
  std::vector<std::size_t> Columns;
  std::vector<Condition> Where;  // all must hold
  std::vector<Order> Sort;       // the first one counts most; ties keep the stored order
  std::optional<std::size_t> Limit;
};

// The rows that answer a question, as places in the table, in the order asked for.
std::vector<std::size_t> ChosenRows(const StoredTable& table, const TableQuestion& question);

// All columns of a table.
std::vector<std::size_t> AllColumns(const TableDef& table);

// The names of tables or columns.
std::vector<std::string> NamesOf(const std::vector<TableDef>& tables);
std::vector<std::string> NamesOf(const std::vector<Field>& fields);

// The place of a table in a list, its name compared without regard to case; nothing if there is
// none.
std::optional<std::size_t> FindTable(const std::vector<TableDef>& tables, std::string_view name);

}  // namespace orrerix
