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

#include "db/rows/key_set.h"
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

  // Takes a row, one content for each field, and copies its texts. Throws 3022 if the key exists. A
  // row whose taking fails, for lack of memory too, leaves nothing behind.
  void Add(std::span<const Cell> row);

  // Whether the table's key is this field alone, its name as the definition has it.
  bool IsKeyedBy(std::string_view field) const;
  // The row whose key is this value; nothing if there is none. The key is one field.
  std::optional<std::size_t> Find(const Value& key) const;

  // What a field of a row holds, the field's name as the definition has it; Null without such one.
  Value Content(std::size_t row, std::string_view field) const;

  // Whether a field, counted from 0, belongs to the table's key.
  bool IsOfKey(std::size_t field) const;
  // Changes the fields of a row that are marked; none of them is of the key. A change that fails
  // for lack of memory has not happened.
  void Change(std::size_t row, std::span<const Cell> values, std::span<const char> marked);

  // The rows whose text in a field is this one, whatever its case, in their order. The first
  // question about a field makes an index of it.
  std::vector<std::size_t> RowsNamed(std::size_t field, std::string_view text);
  bool IsNamed(std::size_t row, std::size_t field, std::string_view text) const;

  // Number of a row in the file once the rows are written, and back.
  static std::int64_t NumberOf(std::size_t row) { return static_cast<std::int64_t>(row) + 1; }
  static std::size_t PlaceOf(std::int64_t number) { return static_cast<std::size_t>(number - 1); }

  std::size_t RowCount() const { return rowCount_; }
  std::span<const Cell> Row(std::size_t row) const;

  // A value with a text of its own.
  static Value ValueOf(const Cell& cell);

  // A view of a value, which must outlive it.
  static Cell ViewOf(const Value& value);

  // Length of the longest text in each Text field, characters; 0 for all other fields.
  std::vector<std::size_t> LongestTexts() const;

 private:
  // The rows of each hash of a field's texts.
  struct FieldIndex {
    std::size_t RowsSeen = 0;
    std::unordered_multimap<std::size_t, std::size_t> Rows;
  };

  FieldIndex& IndexOf(std::size_t field);
  static std::size_t HashOfKey(std::size_t before, const Cell& cell);
  void AddCells(std::span<const Cell> row);
  bool HoldsKey(std::span<const Cell> row, std::size_t hash) const;
  Cell Keep(const Cell& cell);

  std::shared_ptr<const TableDef> table_;
  std::vector<std::size_t> keyFields_;
  KeySet keys_;
  TextStore texts_;
  std::unordered_map<std::size_t, FieldIndex> indexes_;  // by their fields
  std::vector<std::vector<Cell>> chunks_;                // of a fixed number of rows, row by row
  std::size_t rowCount_ = 0;
};

}  // namespace orrerix
