// SPDX-License-Identifier: MIT
// The tables of a universe file as the atlas reads them: whatever is missing is simply not there.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "atlas/figures.h"
#include "db/database.h"

namespace orrerix {

// A row of a table, or none. It lives as long as its table.
class SourceRow {
 public:
  SourceRow() = default;
  SourceRow(const StoredTable& table, std::size_t row) : table_(&table), row_(row) {}

  bool Exists() const { return table_ != nullptr; }

  // The content of a field, trimmed of blanks; empty for a field or a row that is not there.
  std::string Text(std::string_view field) const;

  // The number at its start; missing for Null and texts without one.
  Figure Number(std::string_view field) const;

 private:
  const StoredTable* table_ = nullptr;
  std::size_t row_ = 0;
};

class SourceTable {
 public:
  explicit SourceTable(StoredTable content) : content_(std::move(content)) {}

  std::size_t RowCount() const { return content_.RowCount(); }
  SourceRow Row(std::size_t row) const { return {content_, row}; }

  // The first row (all rows) whose field is a text, whatever the case of ASCII letters. An empty
  // text is in no row.
  SourceRow Find(std::string_view field, std::string_view text) const;
  std::vector<SourceRow> FindAll(std::string_view field, std::string_view text) const;

 private:
  using RowsByText = std::unordered_map<std::string, std::vector<std::size_t>>;
  const std::vector<std::size_t>* PlacesOf(std::string_view field, std::string_view text) const;

  StoredTable content_;
  mutable std::map<std::string, RowsByText, std::less<>> indexes_;  // by field, made on demand
};

// All tables of a universe, each read once when it is asked for first.
class SourceTables {
 public:
  SourceTables(FailureSink& sink, const Database& universe) : sink_(sink), universe_(universe) {}

  // A table that the universe lacks has no rows.
  const SourceTable& operator[](std::string_view table) const;

  // The text of a number of the game's names; empty where there is none.
  std::string NameOf(Figure number) const;

 private:
  void ReadNames() const;

  FailureSink& sink_;
  const Database& universe_;
  mutable std::map<std::string, std::unique_ptr<SourceTable>, std::less<>> tables_;
  mutable std::unordered_map<std::int64_t, std::string> names_;
  mutable bool hasNames_ = false;
};

// A name of the import that is one: empty where it is the nickname with a number in brackets, which
// stands for a name that is missing. Names of factions are made without the nickname.
std::string GivenName(std::string name, std::string_view nickname);

}  // namespace orrerix
