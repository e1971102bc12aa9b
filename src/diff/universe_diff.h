// SPDX-License-Identifier: MIT
// What is different between two universes, table by table and row by row.
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "db/database.h"
#include "db/rows/stored_table.h"

namespace orrerix {

// A row that both universes have, but not with the same values.
struct ChangedRow {
  std::vector<Value> Old;
  std::vector<Value> New;
  std::vector<std::size_t> Fields;  // places of the columns that differ
};

// The differences of one table. Rows hold the values of `Columns`, in that order.
struct TableDiff {
  std::string Name;
  std::vector<std::string> Columns;  // of both sides; those that do not count are left out
  std::vector<std::size_t> Key;      // the columns by which rows were matched
  std::vector<std::vector<Value>> Added;
  std::vector<std::vector<Value>> Removed;
  std::vector<ChangedRow> Changed;

  bool IsEmpty() const { return Added.empty() && Removed.empty() && Changed.empty(); }
};

struct UniverseDiff {
  struct Counts {
    std::size_t Added = 0;
    std::size_t Removed = 0;
    std::size_t Changed = 0;
  };
  std::vector<TableDiff> Tables;  // those with a difference, in alphabetical order
  std::vector<std::string> TablesAdded;
  std::vector<std::string> TablesRemoved;

  Counts RowCounts() const;
  bool IsEmpty() const;
};

// All tables of a universe in their order, as far as they can be read.
std::vector<StoredTable> ReadAllTables(FailureSink& sink, const Database& universe);

// Compares two universes. Rows are matched by `nickname`, where both tables have it and it is
// unique and never Null, else by all text columns, repeated ones in stored order; rows of
// `ids_name` and `ids_info` by `ID`. Names and keys compare without regard to case, values exactly.
// A column that only one side has counts as Null on the other. The columns `ID` elsewhere and
// `OX_ID` and the tables `Version` and `OXWarning` do not count. With `only`, names in lower case,
// other tables do not count either.
UniverseDiff CompareUniverses(const std::vector<StoredTable>& old,
                              const std::vector<StoredTable>& now,
                              const std::optional<std::set<std::string>>& only = std::nullopt);

}  // namespace orrerix
