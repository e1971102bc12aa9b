// SPDX-License-Identifier: MIT
// Rows that are kept in memory until their table is asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "db/rows/table_def.h"
#include "db/values/text_store.h"
#include "db/values/value.h"

namespace orrerix {

// The rows of one table, in the order they were added. They obey the table's key as if they stood
// in the file.
class HeldRows {
 public:
  // A field's content; its text lives as long as the rows.
  using Cell = std::variant<Null, std::int64_t, double, std::string_view>;

  explicit HeldRows(TableDef table);

  const TableDef& Definition() const { return *table_; }
  const std::shared_ptr<const TableDef>& SharedDefinition() const { return table_; }

  // Takes a row, one value for each field. Throws 3022 if the key exists. A row whose taking fails,
  // for lack of memory too, leaves nothing behind.
  void Add(std::span<const Value> row);

  // Whether the table's key is this field alone, its name as the definition has it.
  bool IsKeyedBy(std::string_view field) const;
  // The row whose key is this value; nothing if there is none. The key is one field.
  std::optional<std::size_t> Find(const Value& key) const;

  // What a field of a row holds, the field's name as the definition has it; Null without such one.
  Value Content(std::size_t row, std::string_view field) const;

  std::size_t RowCount() const { return rowCount_; }
  std::span<const Cell> Row(std::size_t row) const;

  // Length of the longest text in each Text field, characters; 0 for all other fields.
  std::vector<std::size_t> LongestTexts() const;

 private:
  static void AddToKey(std::string& key, const Value& value);
  std::string_view KeyOf(std::span<const Value> row);
  Cell Keep(const Value& value);

  std::shared_ptr<const TableDef> table_;
  std::vector<std::size_t> keyFields_;
  std::unordered_map<std::string_view, std::size_t> keys_;  // with their rows
  std::string key_;                                         // of the row to come
  TextStore texts_;
  std::vector<std::vector<Cell>> chunks_;  // of a fixed number of rows, row by row
  std::size_t rowCount_ = 0;
};

}  // namespace orrerix
