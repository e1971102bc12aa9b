// SPDX-License-Identifier: MIT
#include "diff/row_matching.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "db/values/text.h"

namespace orrerix {
namespace {

bool IsTableOfTexts(std::string_view table) {
  return EqualIgnoringCase(table, "ids_name") || EqualIgnoringCase(table, "ids_info");
}

// Numbers that each import draws or counts afresh.
bool IsOfTheImport(std::string_view table, std::string_view column) {
  if (EqualIgnoringCase(column, "OX_ID")) return true;
  return EqualIgnoringCase(column, "ID") && !IsTableOfTexts(table);
}

bool IsTextField(const Field& field) {
  return field.Type == FieldType::Text || field.Type == FieldType::Memo;
}

// One value as part of a key that compares without regard to case. Lengths keep neighbours apart.
void AppendKey(std::string& key, const Value& value) {
  if (value.IsNull()) {
    key += 'n';
    return;
  }
  key += value.IsText() ? 't' : '#';
  const std::string text = value.IsText() ? *value.TextContent() : value.Text();
  key += std::to_string(text.size());
  key += ':';
  AppendFolded(key, text);
}

bool IsUniqueAndFilled(const StoredTable& table, std::size_t column) {
  std::unordered_set<std::string> keys;
  for (std::size_t row = 0; row < table.RowCount(); ++row) {
    const Value& value = table.Row(row)[column];
    std::string key;
    AppendKey(key, value);
    if (value.IsNull() || !keys.insert(std::move(key)).second) return false;
  }
  return true;
}

std::optional<std::size_t> FindShared(const std::vector<SharedColumn>& columns,
                                      std::string_view name) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].Old && columns[i].New && EqualIgnoringCase(columns[i].Name, name)) return i;
  }
  return std::nullopt;
}

std::string KeyOf(std::span<const Value> row, const std::vector<std::optional<std::size_t>>& key) {
  std::string text;
  for (const auto& column : key) AppendKey(text, ValueAt(row, column));
  return text;
}

}  // namespace

std::vector<SharedColumn> ColumnsThatCount(const TableDef& old, const TableDef& now) {
  std::vector<SharedColumn> columns;
  for (std::size_t i = 0; i < now.Fields.size(); ++i) {
    const Field& field = now.Fields[i];
    if (IsOfTheImport(now.Name, field.Name)) continue;
    const auto before = old.Find(field.Name);
    const bool isText = IsTextField(field) || (before && IsTextField(old.Fields[*before]));
    columns.push_back({field.Name, isText, before, i});
  }
  for (std::size_t i = 0; i < old.Fields.size(); ++i) {
    const Field& field = old.Fields[i];
    if (IsOfTheImport(old.Name, field.Name) || now.Find(field.Name)) continue;
    columns.push_back({field.Name, IsTextField(field), i, std::nullopt});
  }
  return columns;
}

std::vector<std::size_t> KeyColumns(const StoredTable& old, const StoredTable& now,
                                    const std::vector<SharedColumn>& columns) {
  if (IsTableOfTexts(now.Definition.Name)) {
    if (const auto number = FindShared(columns, "ID")) return {*number};
  }
  const auto nickname = FindShared(columns, "nickname");
  if (nickname && IsUniqueAndFilled(old, *columns[*nickname].Old) &&
      IsUniqueAndFilled(now, *columns[*nickname].New)) {
    return {*nickname};
  }
  std::vector<std::size_t> texts;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].IsText) texts.push_back(i);
  }
  return texts;
}

std::vector<std::optional<std::size_t>> MatchRows(const StoredTable& old, const StoredTable& now,
                                                  const std::vector<SharedColumn>& columns,
                                                  const std::vector<std::size_t>& key) {
  std::vector<std::optional<std::size_t>> oldKey;
  std::vector<std::optional<std::size_t>> newKey;
  for (const std::size_t column : key) {
    oldKey.push_back(columns[column].Old);
    newKey.push_back(columns[column].New);
  }
  struct Candidates {
    std::vector<std::size_t> Rows;
    std::size_t Taken = 0;
  };
  std::unordered_map<std::string, Candidates> byKey;
  byKey.reserve(old.RowCount());
  for (std::size_t row = 0; row < old.RowCount(); ++row) {
    byKey[KeyOf(old.Row(row), oldKey)].Rows.push_back(row);
  }
  std::vector<std::optional<std::size_t>> matches(now.RowCount());
  for (std::size_t row = 0; row < now.RowCount(); ++row) {
    const auto found = byKey.find(KeyOf(now.Row(row), newKey));
    if (found == byKey.end()) continue;
    Candidates& candidates = found->second;
    if (candidates.Taken < candidates.Rows.size()) {
      matches[row] = candidates.Rows[candidates.Taken++];
    }
  }
  return matches;
}

const Value& ValueAt(std::span<const Value> row, const std::optional<std::size_t>& column) {
  static const Value kNull;
  return column ? row[*column] : kNull;
}

}  // namespace orrerix
