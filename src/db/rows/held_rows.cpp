// SPDX-License-Identifier: MIT
#include "db/rows/held_rows.h"

#include <algorithm>
#include <utility>

#include "db/failure.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// Rows keep their addresses when more are added.
constexpr std::size_t kRowsOfChunk = 64;

}  // namespace

HeldRows::HeldRows(TableDef table) : table_(std::make_shared<TableDef>(std::move(table))) {
  if (!table_->PrimaryKey) return;
  for (const std::string& field : table_->PrimaryKey->Fields) {
    keyFields_.push_back(*table_->Find(field));
  }
}

// The lengths keep ("ab", "c") and ("a", "bc") apart. The engine compares texts of one length no
// further than to a NUL, and without regard to the case of ASCII letters.
void HeldRows::AddToKey(std::string& key, const Value& value) {
  const std::string* text = value.TextContent();
  const std::string number = text == nullptr ? value.Text() : std::string();
  const std::string_view content = text == nullptr ? number : *text;
  key += std::to_string(content.size());
  key += ':';
  AppendFolded(key, content.substr(0, content.find('\0')));
}

std::string_view HeldRows::KeyOf(std::span<const Value> row) {
  key_.clear();
  for (const std::size_t field : keyFields_) AddToKey(key_, row[field]);
  return key_;
}

bool HeldRows::IsKeyedBy(std::string_view field) const {
  return keyFields_.size() == 1 && table_->Fields[keyFields_.front()].Name == field;
}

std::optional<std::size_t> HeldRows::Find(const Value& key) const {
  std::string text;
  AddToKey(text, key);
  const auto found = keys_.find(text);
  return found == keys_.end() ? std::nullopt : std::optional(found->second);
}

Value HeldRows::Content(std::size_t row, std::string_view field) const {
  const auto place = table_->Find(field);
  if (!place) return {};
  return std::visit([](auto content) { return Value(content); }, Row(row)[*place]);
}

HeldRows::Cell HeldRows::Keep(const Value& value) {
  if (const std::int64_t* whole = value.Whole()) return *whole;
  if (const double* real = value.Real()) return *real;
  const std::string* text = value.TextContent();
  if (text == nullptr) return Null{};
  return texts_.Keep(*text);
}

void HeldRows::Add(std::span<const Value> row) {
  if (chunks_.size() * kRowsOfChunk == rowCount_) {
    std::vector<Cell> chunk;
    chunk.reserve(kRowsOfChunk * row.size());
    chunks_.push_back(std::move(chunk));
  }
  std::vector<Cell>& chunk = chunks_.back();
  const std::size_t before = chunk.size();
  try {
    for (const Value& value : row) chunk.push_back(Keep(value));
    if (!keyFields_.empty() && !keys_.emplace(texts_.Keep(KeyOf(row)), rowCount_).second) {
      throw DuplicateKey();
    }
  } catch (...) {
    chunk.resize(before);  // no half a row stays
    throw;
  }
  ++rowCount_;
}

std::span<const HeldRows::Cell> HeldRows::Row(std::size_t row) const {
  const std::size_t fields = table_->Fields.size();
  return std::span(chunks_[row / kRowsOfChunk]).subspan(row % kRowsOfChunk * fields, fields);
}

std::vector<std::size_t> HeldRows::LongestTexts() const {
  std::vector<std::size_t> longest(table_->Fields.size(), 0);
  for (std::size_t row = 0; row < rowCount_; ++row) {
    const std::span<const Cell> cells = Row(row);
    for (std::size_t field = 0; field < longest.size(); ++field) {
      if (table_->Fields[field].Type != FieldType::Text) continue;
      const auto* text = std::get_if<std::string_view>(&cells[field]);
      // There are no more characters than bytes.
      if (text != nullptr && text->size() > longest[field]) {
        longest[field] = std::max(longest[field], Len(*text));
      }
    }
  }
  return longest;
}

}  // namespace orrerix
