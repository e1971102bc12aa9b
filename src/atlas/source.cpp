// SPDX-License-Identifier: MIT
#include "atlas/source.h"

#include "db/values/text.h"

namespace orrerix {

std::string SourceRow::Text(std::string_view field) const {
  if (!Exists()) return {};
  const auto place = table_->Definition.Find(field);
  return place ? std::string(Trim(table_->Row(row_)[*place].Text())) : std::string();
}

Figure SourceRow::Number(std::string_view field) const {
  if (!Exists()) return std::nullopt;
  const auto place = table_->Definition.Find(field);
  if (!place) return std::nullopt;
  const Value& value = table_->Row(row_)[*place];
  if (value.IsNull()) return std::nullopt;
  if (const std::string* text = value.TextContent()) return ParseFigure(*text);
  return value.Number();
}

SourceRow SourceTable::Find(std::string_view field, std::string_view text) const {
  const auto* places = PlacesOf(field, text);
  return places ? Row(places->front()) : SourceRow();
}

std::vector<SourceRow> SourceTable::FindAll(std::string_view field, std::string_view text) const {
  std::vector<SourceRow> rows;
  if (const auto* places = PlacesOf(field, text)) {
    for (const std::size_t place : *places) rows.push_back(Row(place));
  }
  return rows;
}

const std::vector<std::size_t>* SourceTable::PlacesOf(std::string_view field,
                                                      std::string_view text) const {
  auto index = indexes_.find(field);
  if (index == indexes_.end()) {
    index = indexes_.emplace(std::string(field), RowsByText()).first;
    for (std::size_t row = 0; row < RowCount(); ++row) {
      index->second[FoldAscii(Row(row).Text(field))].push_back(row);
    }
  }
  const auto found = index->second.find(FoldAscii(Trim(text)));
  return found == index->second.end() || found->first.empty() ? nullptr : &found->second;
}

const SourceTable& SourceTables::operator[](std::string_view table) const {
  auto found = tables_.find(table);
  if (found == tables_.end()) {
    StoredTable content;
    if (universe_.HasTable(table)) content = universe_.ReadTable(sink_, table);
    found = tables_.emplace(std::string(table), std::make_unique<SourceTable>(std::move(content)))
                .first;
  }
  return *found->second;
}

std::string SourceTables::NameOf(Figure number) const {
  if (!hasNames_) ReadNames();
  if (!number) return {};
  const auto found = names_.find(static_cast<std::int64_t>(*number));
  return found == names_.end() ? std::string() : found->second;
}

void SourceTables::ReadNames() const {
  hasNames_ = true;
  const SourceTable& names = (*this)["ids_name"];
  for (std::size_t i = 0; i < names.RowCount(); ++i) {
    const SourceRow row = names.Row(i);
    if (const Figure number = row.Number("ID")) {
      names_.try_emplace(static_cast<std::int64_t>(*number), row.Text("Name"));
    }
  }
}

std::string GivenName(std::string name, std::string_view nickname) {
  if (name.starts_with(std::string(nickname) + "(") && name.ends_with(")")) name.clear();
  return name;
}

}  // namespace orrerix
