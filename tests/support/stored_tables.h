// SPDX-License-Identifier: MIT
// Short builders for tables of a file without a file.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "db/rows/stored_table.h"

namespace orrerix {

inline constexpr FieldType kText = FieldType::Text;
inline constexpr FieldType kLong = FieldType::Long;

using TableColumns = std::initializer_list<std::pair<std::string_view, FieldType>>;
using TableCells = std::initializer_list<std::initializer_list<Value>>;

inline StoredTable TableOf(std::string_view name, TableColumns columns, TableCells rows) {
  StoredTable table;
  table.Definition.Name = name;
  for (const auto& [column, type] : columns) {
    Field field;
    field.Name = column;
    field.Type = type;
    table.Definition.Fields.push_back(field);
  }
  for (const auto& row : rows) table.Cells.insert(table.Cells.end(), row);
  return table;
}

}  // namespace orrerix
