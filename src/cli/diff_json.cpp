// SPDX-License-Identifier: MIT
#include "cli/diff_json.h"

#include "cli/json_text.h"
#include "cli/value_json.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

Json RowJson(const TableDiff& table, const std::vector<Value>& row) {
  Json::object_t members;
  for (std::size_t i = 0; i < row.size(); ++i) {
    AppendMember(members, table.Columns[i], ValueJson(row[i]));
  }
  return members;
}

Json ChangedJson(const TableDiff& table, const ChangedRow& row) {
  Json key = Json::object();
  for (const std::size_t i : table.Key) key[table.Columns[i]] = ValueJson(row.New[i]);
  Json fields = Json::object();
  for (const std::size_t i : row.Fields) {
    fields[table.Columns[i]] = Json::array({ValueJson(row.Old[i]), ValueJson(row.New[i])});
  }
  return {{"key", std::move(key)}, {"fields", std::move(fields)}};
}

Json TableJson(const TableDiff& table) {
  Json json = {{"added", Json::array()}, {"removed", Json::array()}, {"changed", Json::array()}};
  for (const auto& row : table.Added) json["added"].push_back(RowJson(table, row));
  for (const auto& row : table.Removed) json["removed"].push_back(RowJson(table, row));
  for (const ChangedRow& row : table.Changed) json["changed"].push_back(ChangedJson(table, row));
  return json;
}

}  // namespace

Json DiffSummaryJson(const UniverseDiff& diff) {
  const UniverseDiff::Counts counts = diff.RowCounts();
  return {{"added", counts.Added},
          {"removed", counts.Removed},
          {"changed", counts.Changed},
          {"tables_added", diff.TablesAdded},
          {"tables_removed", diff.TablesRemoved}};
}

Json DiffJson(const UniverseDiff& diff) {
  Json::object_t tables;
  for (const TableDiff& table : diff.Tables) AppendMember(tables, table.Name, TableJson(table));
  return {{"tables", std::move(tables)}, {"summary", DiffSummaryJson(diff)}};
}

}  // namespace orrerix
