// SPDX-License-Identifier: MIT
#include "db/rows/recordset.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include <fmt/format.h>

#include "db/engine/connection.h"
#include "db/engine/query_text.h"
#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// Fields of a table that are kept in memory, about 50 MB; a game of 500 systems has a third of it.
constexpr std::size_t kMostHeldCells = 2 << 20;

// Rows that a dynaset reads at a time.
constexpr std::size_t kRowsAtATime = 256;

Failure NoCurrentRecord() {
  return EngineFailure(failure_number::kNoCurrentRecord, "No current record.");
}

Failure NotBeingEdited() {
  return EngineFailure(failure_number::kNotBeingEdited,
                       "Update or CancelUpdate without AddNew or Edit.");
}

Failure NoSuchItem() {
  return EngineFailure(failure_number::kNoSuchItem, "Item not found in this collection.");
}

std::optional<Failure> FitText(const Field& field, std::string_view table, Value& value) {
  if (!value.IsText()) value = std::move(value).TakeText();
  const std::string& text = *value.TextContent();
  if (text.empty() && !field.AllowZeroLength) {
    return EngineFailure(
        failure_number::kZeroLength,
        fmt::format("Field '{}.{}' can't be a zero-length string.", table, field.Name));
  }
  if (field.Type == FieldType::Text && text.size() > field.Size && Len(text) > field.Size) {
    return EngineFailure(failure_number::kFieldTooSmall,
                         "The field is too small to accept the amount of data you attempted "
                         "to add.");
  }
  return std::nullopt;
}

std::optional<Failure> FitWhole(Value& value, double lowest, double highest) {
  const double whole = RoundToEven(value.Number());
  if (!(whole >= lowest && whole <= highest)) return RuntimeFailure(failure_number::kOverflow);
  value = static_cast<std::int64_t>(whole);
  return std::nullopt;
}

// Whether FitInto would leave a content alone; said of what is stored most.
bool FitsAsItIs(const Field& field, std::string_view text) {
  if (text.empty()) return false;
  return field.Type == FieldType::Memo ||
         (field.Type == FieldType::Text && text.size() <= field.Size);
}

bool FitsAsItIs(const Field& field, const Value& value) {
  if (const std::string* text = value.TextContent()) {
    return FitsAsItIs(field, std::string_view(*text));
  }
  const double* real = value.Real();
  return real != nullptr && field.Type == FieldType::Double && std::isfinite(*real);
}

}  // namespace

std::optional<Failure> FitInto(const Field& field, std::string_view table, Value& value) {
  if (value.IsNull()) return std::nullopt;
  switch (field.Type) {
    case FieldType::Text:
    case FieldType::Memo:
      return FitText(field, table, value);
    case FieldType::Boolean:
      value = value.Number() != 0 ? 1 : 0;
      return std::nullopt;
    case FieldType::Byte:
      return FitWhole(value, 0, 255);
    case FieldType::Integer:
      return FitWhole(value, -32768, 32767);
    case FieldType::Long:
      return FitWhole(value, -2147483648.0, 2147483647.0);
    case FieldType::Double:
      break;
  }
  const double number = value.Number();
  if (!std::isfinite(number)) return RuntimeFailure(failure_number::kOverflow);
  value = number;
  return std::nullopt;
}

Value FieldRef::Get() const {
  return recordset_.Read(field_);
}

std::string FieldRef::RequireText() const {
  const Value value = Get();
  if (value.IsNull()) throw RuntimeFailure(failure_number::kInvalidUseOfNull);
  return value.Text();
}

double FieldRef::RequireNumber() const {
  const Value value = Get();
  if (value.IsNull()) throw RuntimeFailure(failure_number::kInvalidUseOfNull);
  return value.Number();
}

std::int32_t FieldRef::RequireLong() const {
  const auto number = ToLong(RequireNumber());
  if (!number) throw RuntimeFailure(failure_number::kOverflow);
  return *number;
}

const FieldRef& FieldRef::operator=(Value value) const {
  recordset_.Assign(field_, value);
  return *this;
}

void Recordset::ReadRows(std::shared_ptr<const TableDef> columns, sqlite3_stmt* statement,
                         RecordsetType type) {
  table_ = std::move(columns);
  if (table_ == nullptr) {
    throw EngineFailure(failure_number::kNoSuchTable, "The rows of this query cannot be edited.");
  }
  editable_ = type == RecordsetType::Dynaset;
  try {
    ReadAll(statement);
  } catch (...) {
    cells_.clear();
    rowids_.clear();
    rowCount_ = 0;
    throw;
  }
}

void Recordset::ReadAll(sqlite3_stmt* statement) {
  const int fields = static_cast<int>(table_->Fields.size());
  int result = sqlite3_step(statement);
  for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
    for (int i = 0; i < fields && (!editable_ || rowCount_ < kRowsAtATime); ++i) {
      cells_.push_back(HeldRows::ValueOf(Column(statement, i)));
    }
    if (editable_) rowids_.push_back(sqlite3_column_int64(statement, fields));
    ++rowCount_;
  }
  if (result != SQLITE_DONE) throw connection_->LastFailure();
}

void Recordset::ReadNumbered(std::shared_ptr<const TableDef> table,
                             std::vector<std::int64_t> rowids, RecordsetType type) {
  table_ = std::move(table);
  editable_ = type == RecordsetType::Dynaset;
  rowids_ = std::move(rowids);
  rowCount_ = rowids_.size();
  ReadFrom(0, editable_ ? kRowsAtATime : rowCount_);
}

void Recordset::ReadFrom(std::size_t first, std::size_t count) {
  connection_->RequireOpen();
  cells_.clear();
  firstRead_ = first;
  for (std::size_t row = first; row < rowids_.size() && row - first < count;) {
    if (ReadRow(rowids_[row])) {
      ++row;
    } else {
      rowids_.erase(rowids_.begin() + static_cast<std::ptrdiff_t>(row));
    }
  }
  rowCount_ = rowids_.size();
}

// False if the row was deleted.
bool Recordset::ReadRow(std::int64_t rowid) {
  if (const HeldRows* held = connection_->Held(table_->Name)) {
    for (const HeldRows::Cell& cell : held->Row(HeldRows::PlaceOf(rowid))) {
      cells_.push_back(HeldRows::ValueOf(cell));
    }
    return true;
  }
  const StatementLoan row(
      connection_->Prepare("SELECT * FROM " + QuoteName(table_->Name) + " WHERE _rowid_ = ?1"));
  Bind(row.get(), 1, rowid);
  const int result = sqlite3_step(row.get());
  if (result == SQLITE_DONE) return false;
  if (result != SQLITE_ROW) throw connection_->LastFailure();
  for (std::size_t i = 0; i < table_->Fields.size(); ++i) {
    cells_.push_back(HeldRows::ValueOf(Column(row.get(), static_cast<int>(i))));
  }
  return true;
}

std::size_t Recordset::CountRead() const {
  return rowids_.empty() ? rowCount_ : cells_.size() / table_->Fields.size();
}

void Recordset::ComeTo(std::size_t row) {
  current_ = row;
  if (AtEnd() || (row >= firstRead_ && row < firstRead_ + CountRead())) return;
  std::optional<Failure> failed;
  try {
    ReadFrom(row, kRowsAtATime);
  } catch (...) {
    failed = CaughtFailure();
  }
  if (!failed) return;
  rowids_.resize(row);
  rowCount_ = row;
  Fail(*failed);
}

// A recordset that was never opened has nobody to hand its failures to.
void Recordset::Fail(const Failure& failure) const {
  if (sink_ != nullptr) sink_->Fail(failure);
}

void Recordset::MoveNext() {
  if (AtEnd()) return Fail(NoCurrentRecord());
  ComeTo(current_ + 1);
}

void Recordset::MoveFirst() {
  ComeTo(0);
}

std::optional<std::size_t> Recordset::FindField(std::string_view name) {
  if (table_ == nullptr) return std::nullopt;
  if (nextField_ < table_->Fields.size() && table_->Fields[nextField_].Name == name) {
    return nextField_++;
  }
  const auto found = table_->Find(name, nextField_);
  if (found) nextField_ = *found + 1;
  return found;
}

FieldRef Recordset::operator[](std::string_view field) {
  return FieldRef(*this, FindField(field));
}

FieldRef Recordset::operator[](std::size_t field) {
  return FieldRef(*this, field);
}

Value Recordset::Read(std::optional<std::size_t> field) const {
  if (editing_ == Editing::None && AtEnd()) {
    Fail(NoCurrentRecord());
    return {};
  }
  if (!field) {
    Fail(NoSuchItem());
    return {};
  }
  if (editing_ != Editing::None) return HeldRows::ValueOf(edited_[*field]);
  return cells_[(current_ - firstRead_) * table_->Fields.size() + *field];
}

void Recordset::Assign(std::optional<std::size_t> field, Value& value) {
  if (editing_ == Editing::None) return Fail(NotBeingEdited());
  if (!field) return Fail(NoSuchItem());
  std::optional<Failure> refused;
  try {
    if (!FitsAsItIs(table_->Fields[*field], value)) {
      refused = FitInto(table_->Fields[*field], table_->Name, value);
    }
    if (!refused) Put(*field, HeldRows::ViewOf(value));
  } catch (const std::bad_alloc&) {
    refused = RuntimeFailure(failure_number::kOutOfMemory);
  }
  if (refused) Fail(*refused);
}

void Recordset::Assign(std::optional<std::size_t> field, std::string_view text) {
  const bool fits = editing_ != Editing::None && field && FitsAsItIs(table_->Fields[*field], text);
  if (fits) return Put(*field, text);
  Value value = text;
  Assign(field, value);
}

void Recordset::Assign(std::optional<std::size_t> field, double number) {
  const bool fits = editing_ != Editing::None && field &&
                    table_->Fields[*field].Type == FieldType::Double && std::isfinite(number);
  if (fits) return Put(*field, number);
  Value value = number;
  Assign(field, value);
}

// Takes what fits the field. The field keeps its content if there is no memory.
void Recordset::Put(std::size_t field, const HeldRows::Cell& cell) {
  if (const auto* text = std::get_if<std::string_view>(&cell)) {
    edited_[field] = texts_[field].assign(*text);
  } else {
    edited_[field] = cell;
  }
  assigned_[field] = 1;
}

void Recordset::SetFieldText(std::string_view field, std::string_view text) {
  const auto found = FindField(field);
  if (editing_ == Editing::None || !found) return;
  Value value = text;
  auto refused = FitInto(table_->Fields[*found], table_->Name, value);
  if (refused && refused->Number == failure_number::kFieldTooSmall) {
    GrowField(*found, Len(text));
    refused = FitInto(table_->Fields[*found], table_->Name, value);
  }
  if (!refused) Assign(found, value);
}

// Other recordsets may share the definition and keep the old one.
void Recordset::GrowField(std::size_t field, std::size_t size) {
  auto grown = std::make_shared<TableDef>(*table_);
  grown->Fields[field].Size = size;
  table_ = std::move(grown);
}

void Recordset::AddNew() {
  if (!editable_) {
    return Fail(EngineFailure(failure_number::kReadOnly, "The recordset is read-only."));
  }
  BeginRow(Editing::Added);
}

void Recordset::Edit() {
  if (AtEnd() || !editable_) return Fail(NoCurrentRecord());
  BeginRow(Editing::Changed);
}

void Recordset::BeginRow(Editing editing) {
  editing_ = Editing::None;
  try {
    LearnTable();
    assigned_.assign(blankRow_.size(), 0);
    if (editing == Editing::Added) edited_ = blankRow_;
    if (editing == Editing::Changed) TakeUpRow();
  } catch (const std::bad_alloc&) {
    return Fail(RuntimeFailure(failure_number::kOutOfMemory));
  }
  nextField_ = 0;
  editing_ = editing;
}

void Recordset::LearnTable() {
  if (texts_.size() == table_->Fields.size()) return;
  const std::size_t fields = table_->Fields.size();
  blankRow_.assign(fields, Null{});
  for (std::size_t i = 0; i < fields; ++i) {
    if (table_->Fields[i].Type == FieldType::Boolean) blankRow_[i] = std::int64_t{0};
  }
  idField_ = table_->UniqueIDField();
  keyFields_.clear();
  if (table_->PrimaryKey) {
    for (const std::string& field : table_->PrimaryKey->Fields) {
      // A calculated column is no field.
      if (const auto place = table_->Find(field)) keyFields_.push_back(*place);
    }
  }
  texts_.resize(fields);
}

// The current row, with texts of its own: the recordset may go on to other rows before it is
// written.
void Recordset::TakeUpRow() {
  const std::size_t first = (current_ - firstRead_) * blankRow_.size();
  edited_.resize(blankRow_.size());
  for (std::size_t i = 0; i < edited_.size(); ++i) Put(i, HeldRows::ViewOf(cells_[first + i]));
  std::fill(assigned_.begin(), assigned_.end(), char{0});
}

bool Recordset::KeyHoldsNull() const {
  return std::any_of(keyFields_.begin(), keyFields_.end(), [this](std::size_t field) {
    return std::holds_alternative<Null>(edited_[field]);
  });
}

void Recordset::Update() {
  if (editing_ == Editing::None) return Fail(NotBeingEdited());
  const Editing editing = std::exchange(editing_, Editing::None);
  std::optional<Failure> failed;
  try {
    if (KeyHoldsNull()) throw NullInKey();
    connection_->RequireOpen();
    editing == Editing::Added ? Insert() : Rewrite();
  } catch (...) {
    failed = CaughtFailure();
  }
  if (failed) Fail(*failed);
}

void Recordset::Insert() {
  const bool drawsID = idField_ && assigned_[*idField_] == 0;
  if (!idField_ || drawsID) {
    HeldRows* held = connection_->Held(table_);
    if (held != nullptr && held->RowCount() * edited_.size() >= kMostHeldCells) {
      connection_->WriteHeld();
      held = nullptr;
    }
    if (held != nullptr) return held->Add(edited_);
  }
  if (idField_) {
    UniqueNumbers& ids = connection_->UniqueIDs(*table_);
    HeldRows::Cell& id = edited_[*idField_];
    if (drawsID) id = ids.Draw();
    if (!drawsID) ids.Take(static_cast<std::int64_t>(HeldRows::ValueOf(id).Number()));
  }
  if (insert_ == nullptr) insert_ = connection_->Prepare(InsertStatement(*table_));
  const StatementLoan insert(insert_);
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    BindCell(insert.get(), static_cast<int>(i) + 1, edited_[i]);
  }
  if (sqlite3_step(insert.get()) != SQLITE_DONE) throw connection_->LastFailure();
}

// Only assigned fields are written, so that one edit never undoes another.
void Recordset::Rewrite() {
  // Memory first: a row that is written is shown, too.
  std::vector<Value> shown(edited_.size());
  std::transform(edited_.begin(), edited_.end(), shown.begin(), HeldRows::ValueOf);
  if (!RewriteHeld()) RewriteStored();
  const std::size_t place = (current_ - firstRead_) * edited_.size();
  std::move(shown.begin(), shown.end(), cells_.begin() + static_cast<std::ptrdiff_t>(place));
}

// False if the table is not in memory, or a field of its key changes.
bool Recordset::RewriteHeld() {
  HeldRows* held = connection_->Held(table_->Name);
  if (held == nullptr) return false;
  for (std::size_t i = 0; i < assigned_.size(); ++i) {
    if (assigned_[i] != 0 && held->IsOfKey(i)) return false;
  }
  held->Change(HeldRows::PlaceOf(rowids_[current_]), edited_, assigned_);
  return true;
}

void Recordset::RewriteStored() {
  std::string assignments;
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    if (assigned_[i] == 0) continue;
    if (!assignments.empty()) assignments += ", ";
    assignments += fmt::format("{} = ?{}", QuoteName(table_->Fields[i].Name), i + 1);
  }
  if (assignments.empty()) return;
  StatementLoan update(
      connection_->Prepare("UPDATE " + QuoteName(table_->Name) + " SET " + assignments +
                           fmt::format(" WHERE _rowid_ = ?{}", edited_.size() + 1)));
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    if (assigned_[i] != 0) BindCell(update.get(), static_cast<int>(i) + 1, edited_[i]);
  }
  Bind(update.get(), static_cast<int>(edited_.size()) + 1, rowids_[current_]);
  if (sqlite3_step(update.get()) != SQLITE_DONE) throw connection_->LastFailure();
}

void Recordset::CancelUpdate() {
  editing_ = Editing::None;
}

void Recordset::Close() {
  *this = Recordset();
}

}  // namespace orrerix
