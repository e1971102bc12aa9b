// SPDX-License-Identifier: MIT
#include "db/held_rows.h"

#include <algorithm>
#include <utility>

#include "db/failure.h"
#include "db/text.h"

namespace orrerix {
namespace {

// Rows are not moved when more of them come.
constexpr std::size_t kRowsOfChunk = 64;

}  // namespace

HeldRows::HeldRows(TableDef table)
    : table_(std::make_shared<TableDef>(std::move(table))),
      texts_(std::make_unique<std::pmr::monotonic_buffer_resource>()) {
  if (!table_->PrimaryKey) return;
  for (const std::string& field : table_->PrimaryKey->Fields) {
    keyFields_.push_back(*table_->Find(field));
  }
}

// The lengths keep ("ab", "c") and ("a", "bc") apart. The engine compares texts of one length no
// further than to a NUL.
std::string HeldRows::KeyOf(std::span<const Value> row) const {
  std::string key;
  for (const std::size_t field : keyFields_) {
    const std::string text = FoldAscii(row[field].Text());
    key += std::to_string(text.size()) + ':';
    key += std::string_view(text).substr(0, text.find('\0'));
  }
  return key;
}

HeldRows::Cell HeldRows::Keep(const Value& value) {
  if (const std::int64_t* whole = value.Whole()) return *whole;
  if (const double* real = value.Real()) return *real;
  const std::string* text = value.TextContent();
  if (text == nullptr) return Null{};
  auto* kept = static_cast<char*>(texts_->allocate(std::max<std::size_t>(text->size(), 1), 1));
  return std::string_view(kept, text->copy(kept, text->size()));
}

void HeldRows::Add(std::span<const Value> row) {
  if (!keyFields_.empty() && !keys_.insert(KeyOf(row)).second) throw DuplicateKey();
  if (rowCount_ % kRowsOfChunk == 0) chunks_.emplace_back().reserve(kRowsOfChunk * row.size());
  for (const Value& value : row) chunks_.back().push_back(Keep(value));
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
