// SPDX-License-Identifier: MIT
#include "import/sections/section_tables.h"

#include <algorithm>
#include <new>

#include <fmt/format.h>

#include "db/schema.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// The engine's limit of 2,000 columns, less the row number.
constexpr std::size_t kMostFields = 1999;

constexpr std::string_view kSourceFileName = "SourceFileName";
constexpr SectionTable::FieldIndex kSourceFile = 0;

void RequireName(std::string_view name) {
  if (name.find('\0') == std::string_view::npos) return;
  throw EngineFailure(failure_number::kInvalidName,
                      "A name with a character of code 0 is not a valid name.");
}

}  // namespace

SectionTable::SectionTable(std::string name) : name_(std::move(name)) {
  fields_.emplace_back(kSourceFileName);
  places_.emplace(kSourceFileName, 0);
}

std::optional<SectionTable::FieldIndex> SectionTable::FindField(std::string_view name,
                                                                FieldIndex guess) const {
  if (guess < fields_.size() && fields_[guess] == name) return guess;
  const auto found = places_.find(name);
  return found == places_.end() ? std::nullopt : std::optional(found->second);
}

SectionTable::FieldIndex SectionTable::AddField(std::string_view name) {
  if (EqualIgnoringCase(name, kSourceFileName) || EqualIgnoringCase(name, "OX_ID")) {
    throw EngineFailure(failure_number::kFieldDefinedTwice, "Can't define field more than once.");
  }
  RequireName(name);
  if (fields_.size() >= kMostFields) {
    throw EngineFailure(failure_number::kTooManyFields, "Too many fields defined.");
  }
  const FieldIndex place = fields_.size();
  fields_.emplace_back(name);
  try {
    places_.emplace(name, place);
  } catch (const std::bad_alloc&) {
    fields_.pop_back();
    throw;
  }
  return place;
}

const std::string_view* SectionTable::EditedRow::Find(FieldIndex field) const {
  for (const Cell& cell : Cells) {
    if (cell.Field == field) return &cell.Text;
  }
  return nullptr;
}

std::optional<std::string_view> SectionTable::KeyOf(const Row& row) const {
  for (const KeptCell& cell : row.Cells()) {
    if (cell.Field == *keyField_) return cell.Text();
  }
  return std::nullopt;
}

// Whether a row has this key. There is room for one more afterwards.
bool SectionTable::HoldsKey(std::string_view key) {
  keys_.MakeRoom();
  return keys_.Holds(HashIgnoringCase(key),
                     [&](KeySet::Row row) { return EqualIgnoringCase(*KeyOf(rows_[row]), key); });
}

void SectionTable::MakeNicknameKey() {
  keyField_ = FindField("nickname");
  keys_.Clear();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const auto key = KeyOf(rows_[i]);
    if (!key || HoldsKey(*key)) {
      keyField_.reset();
      throw key ? DuplicateKey() : NullInKey();
    }
    keys_.Put(static_cast<KeySet::Row>(i), HashIgnoringCase(*key));
  }
}

void SectionTable::AddNew() {
  rowID_ = ++lastID_;
  edited_ = EditedRow{rowID_, {}};
  ++edits_;
  // Rows of one section are mostly alike.
  if (!rows_.empty()) edited_->Cells.reserve(rows_.back().Count);
  editedPlace_.reset();
}

void SectionTable::Edit(std::int32_t rowID) {
  // The row in question is the last one written, if it was written at all.
  const auto found = std::find_if(rows_.rbegin(), rows_.rend(),
                                  [rowID](const Row& row) { return row.ID <= rowID; });
  if (found == rows_.rend() || found->ID != rowID) {
    throw EngineFailure(failure_number::kNoCurrentRecord, "No current record.");
  }
  // Memory first: a row is taken up whole.
  std::vector<Cell> cells;
  cells.reserve(found->Count);
  if (cellOf_.size() < fields_.size()) cellOf_.resize(fields_.size());
  edited_ = EditedRow{rowID, std::move(cells)};
  ++edits_;
  for (const KeptCell& cell : found->Cells()) AddCell({cell.Field, cell.Text()});
  editedPlace_ = static_cast<std::size_t>(rows_.rend() - found) - 1;
  rowID_ = rowID;
}

const std::string_view* SectionTable::Get(FieldIndex field) const {
  const auto cell = edited_ ? FindCell(field) : std::nullopt;
  return cell ? &edited_->Cells[*cell].Text : nullptr;
}

void SectionTable::Set(FieldIndex field, std::string_view text) {
  // Most texts are short and not empty; the engine's own rules decide about the others.
  if (text.empty() || text.size() > kDefaultTextSize) {
    Value value = text;
    if (const auto refused = FitInto(Field{fields_[field]}, name_, value)) throw *refused;
  }
  const std::string_view kept = field == kSourceFile ? KeepSourceFileName(text) : texts_.Keep(text);
  if (const auto cell = FindCell(field)) {
    edited_->Cells[*cell].Text = kept;
  } else {
    AddCell({field, kept});
  }
}

// Rows may have 2,000 cells and each of them be set again and again.
std::optional<std::size_t> SectionTable::FindCell(FieldIndex field) const {
  if (field >= cellOf_.size() || cellOf_[field].Edit != edits_) return std::nullopt;
  return cellOf_[field].Cell;
}

void SectionTable::AddCell(const Cell& cell) {
  if (cell.Field >= cellOf_.size()) cellOf_.resize(fields_.size());
  edited_->Cells.push_back(cell);
  cellOf_[cell.Field] = {edits_, edited_->Cells.size() - 1};
}

// Rows that follow one another come from the same file.
std::string_view SectionTable::KeepSourceFileName(std::string_view text) {
  if (text.empty() || text != sourceFileName_) sourceFileName_ = texts_.Keep(text);
  return sourceFileName_;
}

void SectionTable::CheckKey(const EditedRow& row) {
  const std::string_view* key = row.Find(*keyField_);
  if (key == nullptr) throw NullInKey();
  const auto before = editedPlace_ ? KeyOf(rows_[*editedPlace_]) : std::nullopt;
  if (before && EqualIgnoringCase(*before, *key)) return;
  if (HoldsKey(*key)) throw DuplicateKey();
  const auto place = static_cast<KeySet::Row>(editedPlace_.value_or(rows_.size()));
  if (before) keys_.Erase(place, HashIgnoringCase(*before));
  keys_.Put(place, HashIgnoringCase(*key));
}

void SectionTable::Update() {
  const EditedRow row = std::move(*edited_);
  edited_.reset();
  // Reserved first: a row that finds no memory must not leave its key in the index.
  if (rows_.size() == rows_.capacity()) rows_.reserve(2 * rows_.size() + 1);
  keeping_.clear();
  for (const Cell& cell : row.Cells) {
    keeping_.push_back({static_cast<std::uint32_t>(cell.Field),
                        static_cast<std::uint32_t>(cell.Text.size()), cell.Text.data()});
  }
  const std::span<const KeptCell> cells = cells_.Keep(keeping_);
  if (keyField_) CheckKey(row);
  const Row kept{row.ID, static_cast<std::uint32_t>(cells.size()), cells.data()};
  if (editedPlace_) {
    rows_[*editedPlace_] = kept;
  } else {
    rows_.push_back(kept);
  }
}

void SectionTable::CancelUpdate() {
  edited_.reset();
}

TableDef SectionTable::Definition() const {
  TableDef table = GenericTable(name_);
  for (const std::string& field : fields_) {
    if (field != kSourceFileName) table.Fields.push_back(Field{field});
  }
  return table;
}

std::vector<std::size_t> SectionTable::LongestTexts() const {
  std::vector<std::size_t> longest(fields_.size() + 1, 0);
  for (const Row& row : rows_) {
    for (const KeptCell& cell : row.Cells()) {
      std::size_t& most = longest[cell.Field + 1];
      // There are no more characters than bytes.
      if (cell.Size > most) most = std::max(most, Len(cell.Text()));
    }
  }
  return longest;
}

void SectionTable::AppendTo(FailureSink& sink, Database& database,
                            const TableDef& definition) const {
  Appender appender = database.OpenAppender(sink, definition, rows_.size());
  for (const Row& row : rows_) {
    appender.Set(0, row.ID);
    for (const KeptCell& cell : row.Cells()) appender.Set(cell.Field + 1, cell.Text());
    appender.Append();
  }
}

SectionTable& SectionTables::Open(std::string_view name) {
  if (const auto found = byName_.find(name); found != byName_.end()) {
    return *found->second;
  }
  RequireName(name);
  if (IsOwnTable(name)) {
    throw EngineFailure(failure_number::kTableExists,
                        fmt::format("Table '{}' already exists.", name));
  }
  auto table = std::make_unique<SectionTable>(std::string(name));
  if (tables_.size() == tables_.capacity()) tables_.reserve(2 * tables_.size() + 1);
  byName_.emplace(name, table.get());
  tables_.push_back(std::move(table));
  return *tables_.back();
}

const SectionTable* SectionTables::Find(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : found->second;
}

}  // namespace orrerix
