// SPDX-License-Identifier: MIT
#include "tables/table_choice.h"

#include <algorithm>
#include <numeric>

#include "db/values/text.h"
#include "tables/value_order.h"

namespace orrerix {
namespace {

bool IsWanted(std::span<const Value> row, const std::vector<TableQuestion::Condition>& where) {
  return std::all_of(where.begin(), where.end(), [row](const TableQuestion::Condition& condition) {
    return Matches(row[condition.Column], condition.Text);
  });
}

bool IsRowBefore(std::span<const Value> a, std::span<const Value> b,
                 const std::vector<TableQuestion::Order>& sort) {
  for (const TableQuestion::Order& order : sort) {
    const Value& first = order.IsDescending ? b[order.Column] : a[order.Column];
    const Value& second = order.IsDescending ? a[order.Column] : b[order.Column];
    if (IsBefore(first, second)) return true;
    if (IsBefore(second, first)) return false;
  }
  return false;
}

}  // namespace

std::vector<std::size_t> ChosenRows(const StoredTable& table, const TableQuestion& question) {
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    if (IsWanted(table.Row(row), question.Where)) rows.push_back(row);
  }
  std::stable_sort(rows.begin(), rows.end(), [&](std::size_t a, std::size_t b) {
    return IsRowBefore(table.Row(a), table.Row(b), question.Sort);
  });
  if (question.Limit && *question.Limit < rows.size()) rows.resize(*question.Limit);
  return rows;
}

std::vector<std::size_t> AllColumns(const TableDef& table) {
  std::vector<std::size_t> columns(table.Fields.size());
  std::iota(columns.begin(), columns.end(), std::size_t{0});
  return columns;
}

std::vector<std::string> NamesOf(const std::vector<TableDef>& tables) {
  std::vector<std::string> names;
  names.reserve(tables.size());
  for (const TableDef& table : tables) names.push_back(table.Name);
  return names;
}

std::vector<std::string> NamesOf(const std::vector<Field>& fields) {
  std::vector<std::string> names;
  names.reserve(fields.size());
  for (const Field& field : fields) names.push_back(field.Name);
  return names;
}

std::optional<std::size_t> FindTable(const std::vector<TableDef>& tables, std::string_view name) {
  const auto found = std::find_if(tables.begin(), tables.end(), [name](const TableDef& table) {
    return EqualIgnoringCase(table.Name, name);
  });
  if (found == tables.end()) return std::nullopt;
  return static_cast<std::size_t>(found - tables.begin());
}

}  // namespace orrerix
