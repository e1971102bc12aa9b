// SPDX-License-Identifier: MIT
#include "db/rows/held_rows.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "db/failure.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// Rows keep their addresses when more are added.
constexpr std::size_t kRowsOfChunk = 64;

// To the engine texts of one length are equal if they are up to a NUL, without regard to the case
// of ASCII letters.
bool IsSameKey(const HeldRows::Cell& a, const HeldRows::Cell& b) {
  const auto* x = std::get_if<std::string_view>(&a);
  const auto* y = std::get_if<std::string_view>(&b);
  return x != nullptr && y != nullptr ? CompareIgnoringCase(*x, *y) == 0 : a == b;
}

bool IsAscii(std::string_view text) {
  return AsciiLength(text) == text.size();
}

// The hash takes care of the case of ASCII letters.
std::size_t HashOfName(std::string_view text) {
  return IsAscii(text) ? HashIgnoringCase(text) : HashIgnoringCase(Ucase(text));
}

}  // namespace

HeldRows::HeldRows(TableDef table) : table_(std::make_shared<TableDef>(std::move(table))) {
  if (!table_->PrimaryKey) return;
  for (const std::string& field : table_->PrimaryKey->Fields) {
    keyFields_.push_back(*table_->Find(field));
  }
}

HeldRows::Cell HeldRows::ViewOf(const Value& value) {
  if (const std::string* text = value.TextContent()) return std::string_view(*text);
  if (const std::int64_t* whole = value.Whole()) return *whole;
  if (const double* real = value.Real()) return *real;
  return Null{};
}

std::size_t HeldRows::HashOfKey(std::size_t before, const Cell& cell) {
  std::uint64_t hash = before;
  if (const auto* text = std::get_if<std::string_view>(&cell)) {
    hash += HashIgnoringCase(*text);
  } else if (const auto* whole = std::get_if<std::int64_t>(&cell)) {
    hash += static_cast<std::uint64_t>(*whole);
  } else if (const auto* real = std::get_if<double>(&cell)) {
    hash += std::hash<double>()(*real);
  }
  // The sets of keys look at the last bits, in which the numbers of texts hardly differ.
  hash *= 0x9E3779B97F4A7C15;
  return static_cast<std::size_t>(hash ^ hash >> 32);
}

bool HeldRows::HoldsKey(std::span<const Cell> row, std::size_t hash) const {
  return keys_.Holds(hash, [&](KeySet::Row other) {
    return std::all_of(keyFields_.begin(), keyFields_.end(),
                       [&](std::size_t field) { return IsSameKey(Row(other)[field], row[field]); });
  });
}

bool HeldRows::IsKeyedBy(std::string_view field) const {
  return keyFields_.size() == 1 && table_->Fields[keyFields_.front()].Name == field;
}

std::optional<std::size_t> HeldRows::Find(const Value& key) const {
  std::optional<std::size_t> found;
  const Cell wanted = ViewOf(key);
  keys_.Holds(HashOfKey(0, wanted), [&](KeySet::Row row) {
    if (!IsSameKey(Row(row)[keyFields_.front()], wanted)) return false;
    found = row;
    return true;
  });
  return found;
}

Value HeldRows::Content(std::size_t row, std::string_view field) const {
  const auto place = table_->Find(field);
  if (!place) return {};
  return ValueOf(Row(row)[*place]);
}

Value HeldRows::ValueOf(const Cell& cell) {
  return std::visit([](auto content) { return Value(content); }, cell);
}

bool HeldRows::IsOfKey(std::size_t field) const {
  return std::find(keyFields_.begin(), keyFields_.end(), field) != keyFields_.end();
}

void HeldRows::Change(std::size_t row, std::span<const Cell> values, std::span<const char> marked) {
  const std::span<const Cell> before = Row(row);
  std::vector<Cell> cells(before.begin(), before.end());
  for (std::size_t field = 0; field < cells.size(); ++field) {
    if (marked[field] != 0) cells[field] = Keep(values[field]);
  }
  for (std::size_t field = 0; field < cells.size(); ++field) {
    if (marked[field] != 0) indexes_.erase(field);
  }
  std::copy(cells.begin(), cells.end(),
            chunks_[row / kRowsOfChunk].begin() +
                static_cast<std::ptrdiff_t>(row % kRowsOfChunk * cells.size()));
}

HeldRows::FieldIndex& HeldRows::IndexOf(std::size_t field) {
  FieldIndex& index = indexes_[field];
  for (; index.RowsSeen < rowCount_; ++index.RowsSeen) {
    const auto* text = std::get_if<std::string_view>(&Row(index.RowsSeen)[field]);
    if (text != nullptr) index.Rows.emplace(HashOfName(*text), index.RowsSeen);
  }
  return index;
}

std::vector<std::size_t> HeldRows::RowsNamed(std::size_t field, std::string_view text) {
  std::vector<std::size_t> rows;
  const auto [first, last] = IndexOf(field).Rows.equal_range(HashOfName(text));
  for (auto candidate = first; candidate != last; ++candidate) {
    if (IsNamed(candidate->second, field, text)) rows.push_back(candidate->second);
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

bool HeldRows::IsNamed(std::size_t row, std::size_t field, std::string_view text) const {
  const auto* found = std::get_if<std::string_view>(&Row(row)[field]);
  if (found == nullptr) return false;
  if (IsAscii(*found) && IsAscii(text)) return CompareIgnoringCase(*found, text) == 0;
  return CompareIgnoringCase(Ucase(*found), Ucase(text)) == 0;
}

HeldRows::Cell HeldRows::Keep(const Cell& cell) {
  const auto* text = std::get_if<std::string_view>(&cell);
  return text == nullptr ? cell : texts_.Keep(*text);
}

void HeldRows::Add(std::span<const Cell> row) {
  std::size_t hash = 0;
  if (!keyFields_.empty()) {
    keys_.MakeRoom();
    for (const std::size_t field : keyFields_) hash = HashOfKey(hash, row[field]);
    if (HoldsKey(row, hash)) throw DuplicateKey();
  }
  AddCells(row);
  if (!keyFields_.empty()) keys_.Put(static_cast<KeySet::Row>(rowCount_), hash);
  ++rowCount_;
}

void HeldRows::AddCells(std::span<const Cell> row) {
  if (chunks_.size() * kRowsOfChunk == rowCount_) {
    std::vector<Cell> chunk;
    chunk.reserve(kRowsOfChunk * row.size());
    chunks_.push_back(std::move(chunk));
  }
  std::vector<Cell>& chunk = chunks_.back();
  const std::size_t before = chunk.size();
  try {
    chunk.insert(chunk.end(), row.begin(), row.end());
    for (std::size_t i = before; i < chunk.size(); ++i) {
      if (auto* text = std::get_if<std::string_view>(&chunk[i])) *text = texts_.Keep(*text);
    }
  } catch (...) {
    chunk.resize(before);  // no half a row stays
    throw;
  }
}

std::span<const HeldRows::Cell> HeldRows::Row(std::size_t row) const {
  const std::size_t fields = table_->Fields.size();
  return std::span(chunks_[row / kRowsOfChunk]).subspan(row % kRowsOfChunk * fields, fields);
}

std::vector<std::size_t> HeldRows::LongestTexts() const {
  const std::size_t fields = table_->Fields.size();
  std::vector<std::size_t> longest(fields, 0);
  std::vector<std::size_t> ofTexts;
  for (std::size_t field = 0; field < fields; ++field) {
    if (table_->Fields[field].Type == FieldType::Text) ofTexts.push_back(field);
  }
  for (const std::vector<Cell>& chunk : chunks_) {
    for (std::size_t row = 0; row < chunk.size(); row += fields) {
      for (const std::size_t field : ofTexts) {
        const auto* text = std::get_if<std::string_view>(&chunk[row + field]);
        // There are no more characters than bytes.
        if (text != nullptr && text->size() > longest[field]) {
          longest[field] = std::max(longest[field], Len(*text));
        }
      }
    }
  }
  return longest;
}

}  // namespace orrerix
