// SPDX-License-Identifier: MIT
// A table of the atlas: what a player asks about one kind of thing, with a column for each figure.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/values/text.h"
#include "db/values/value.h"

namespace orrerix {

class AtlasSource;

// What a column shows.
struct ColumnHead {
  std::string Id;       // for filters, orders and programs: lower case and underscores
  std::string Head;     // for people, with the unit
  std::string Formula;  // how the content comes about
};

struct AtlasTable {
  std::string Id;
  std::string Title;
  std::string About;
  std::vector<ColumnHead> Columns;
  // All cells, row by row. What is missing is Null.
  std::function<std::vector<Value>(const AtlasSource&)> Cells;

  // Place of a column, its ID compared without regard to case.
  std::optional<std::size_t> Find(std::string_view id) const {
    for (std::size_t i = 0; i < Columns.size(); ++i) {
      if (EqualIgnoringCase(Columns[i].Id, id)) return i;
    }
    return std::nullopt;
  }
};

// A column of a table whose rows are things of one type.
template <typename Thing>
struct Column {
  std::string Id;
  std::string Head;
  std::string Formula;
  std::function<Value(const Thing&)> Content;
};

template <typename Thing>
using ColumnList = std::vector<Column<Thing>>;

// Columns one list after the other.
template <typename Thing>
ColumnList<Thing> Joined(std::initializer_list<ColumnList<Thing>> lists) {
  ColumnList<Thing> all;
  for (const ColumnList<Thing>& list : lists) all.insert(all.end(), list.begin(), list.end());
  return all;
}

// What a table is called, and what it is about.
struct TableTitle {
  std::string Id;
  std::string Title;
  std::string About;
};

// A table out of the things that `read` finds in a universe.
template <typename Thing>
AtlasTable MakeTable(TableTitle title, ColumnList<Thing> columns,
                     std::function<std::vector<Thing>(const AtlasSource&)> read) {
  AtlasTable table{std::move(title.Id), std::move(title.Title), std::move(title.About), {}, {}};
  for (const Column<Thing>& column : columns) {
    table.Columns.push_back({column.Id, column.Head, column.Formula});
  }
  table.Cells = [columns = std::move(columns), read = std::move(read)](const AtlasSource& source) {
    std::vector<Value> cells;
    for (const Thing& thing : read(source)) {
      for (const Column<Thing>& column : columns) cells.push_back(column.Content(thing));
    }
    return cells;
  };
  return table;
}

}  // namespace orrerix
