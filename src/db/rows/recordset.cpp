// SPDX-License-Identifier: MIT
#include "db/rows/recordset.h"

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

// Whether FitInto would leave the value alone; said of what is stored most.
bool FitsAsItIs(const Field& field, const Value& value) {
  if (const std::string* text = value.TextContent()) {
    return field.Type == FieldType::Text && !text->empty() && text->size() <= field.Size;
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
  const int fields = static_cast<int>(table_->Fields.size());
  int result = sqlite3_step(statement);
  for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
    for (int i = 0; i < fields && (!editable_ || rowCount_ < kRowsAtATime); ++i) {
      cells_.push_back(Column(statement, i));
    }
    if (editable_) rowids_.push_back(sqlite3_column_int64(statement, fields));
    ++rowCount_;
  }
  if (result != SQLITE_DONE) {
    const Failure failure = connection_->LastFailure();
    cells_.clear();
    rowids_.clear();
    rowCount_ = 0;
    throw failure;
  }
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
    cells_.push_back(Column(row.get(), static_cast<int>(i)));
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
  if (editing_ != Editing::None) return edited_[*field];
  return cells_[(current_ - firstRead_) * table_->Fields.size() + *field];
}

void Recordset::Assign(std::optional<std::size_t> field, Value& value) {
  if (editing_ == Editing::None) return Fail(NotBeingEdited());
  if (!field) return Fail(NoSuchItem());
  if (!FitsAsItIs(table_->Fields[*field], value)) {
    std::optional<Failure> refused;
    try {
      refused = FitInto(table_->Fields[*field], table_->Name, value);
    } catch (const std::bad_alloc&) {
      refused = RuntimeFailure(failure_number::kOutOfMemory);
    }
    if (refused) return Fail(*refused);
  }
  edited_[*field] = std::move(value);
  assigned_[*field] = true;
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
  const std::size_t fields = table_->Fields.size();
  editing_ = Editing::None;
  try {
    edited_.clear();
    edited_.resize(fields);
    assigned_.assign(fields, false);
  } catch (const std::bad_alloc&) {
    return Fail(RuntimeFailure(failure_number::kOutOfMemory));
  }
  for (std::size_t i = 0; i < fields; ++i) {
    if (table_->Fields[i].Type == FieldType::Boolean) edited_[i] = 0;
  }
  editing_ = Editing::Added;
}

void Recordset::Edit() {
  if (AtEnd() || !editable_) return Fail(NoCurrentRecord());
  const std::size_t fields = table_->Fields.size();
  const auto row = cells_.begin() + static_cast<std::ptrdiff_t>((current_ - firstRead_) * fields);
  editing_ = Editing::None;
  try {
    edited_.assign(row, row + static_cast<std::ptrdiff_t>(fields));
    assigned_.assign(fields, false);
  } catch (const std::bad_alloc&) {
    return Fail(RuntimeFailure(failure_number::kOutOfMemory));
  }
  editing_ = Editing::Changed;
}

bool Recordset::KeyHoldsNull() const {
  if (!table_->PrimaryKey) return false;
  for (const std::string& field : table_->PrimaryKey->Fields) {
    // A calculated column is no field.
    const auto place = table_->Find(field);
    if (place && edited_[*place].IsNull()) return true;
  }
  return false;
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
  const auto idField = table_->UniqueIDField();
  const bool drawsID = idField && !assigned_[*idField];
  if (!idField || drawsID) {
    HeldRows* held = connection_->Held(table_);
    if (held != nullptr && held->RowCount() * edited_.size() >= kMostHeldCells) {
      connection_->WriteHeld();
      held = nullptr;
    }
    if (held != nullptr) return held->Add(edited_);
  }
  if (idField) {
    UniqueNumbers& ids = connection_->UniqueIDs(*table_);
    if (drawsID) edited_[*idField] = ids.Draw();
    if (!drawsID) ids.Take(static_cast<std::int64_t>(edited_[*idField].Number()));
  }
  if (insert_ == nullptr) insert_ = connection_->Prepare(InsertStatement(*table_));
  const StatementLoan insert(insert_);
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    Bind(insert.get(), static_cast<int>(i) + 1, edited_[i], BoundText::Stays);
  }
  if (sqlite3_step(insert.get()) != SQLITE_DONE) throw connection_->LastFailure();
}

// Only assigned fields are written, so that one edit never undoes another.
void Recordset::Rewrite() {
  if (!RewriteHeld()) RewriteStored();
  const std::size_t place = (current_ - firstRead_) * edited_.size();
  std::move(edited_.begin(), edited_.end(), cells_.begin() + static_cast<std::ptrdiff_t>(place));
}

// False if the table is not in memory, or a field of its key changes.
bool Recordset::RewriteHeld() {
  HeldRows* held = connection_->Held(table_->Name);
  if (held == nullptr) return false;
  for (std::size_t i = 0; i < assigned_.size(); ++i) {
    if (assigned_[i] && held->IsOfKey(i)) return false;
  }
  held->Change(HeldRows::PlaceOf(rowids_[current_]), edited_, assigned_);
  return true;
}

void Recordset::RewriteStored() {
  std::string assignments;
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    if (!assigned_[i]) continue;
    if (!assignments.empty()) assignments += ", ";
    assignments += fmt::format("{} = ?{}", QuoteName(table_->Fields[i].Name), i + 1);
  }
  if (assignments.empty()) return;
  StatementLoan update(
      connection_->Prepare("UPDATE " + QuoteName(table_->Name) + " SET " + assignments +
                           fmt::format(" WHERE _rowid_ = ?{}", edited_.size() + 1)));
  for (std::size_t i = 0; i < edited_.size(); ++i) {
    if (assigned_[i]) Bind(update.get(), static_cast<int>(i) + 1, edited_[i], BoundText::Stays);
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
