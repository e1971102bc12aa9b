// SPDX-License-Identifier: MIT
// The rows of a query or a table, one of them current, edited field by field.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "db/failure.h"
#include "db/rows/held_rows.h"
#include "db/rows/table_def.h"
#include "db/values/value.h"

struct sqlite3_stmt;

namespace orrerix {

class Connection;
class Recordset;

// Whether the rows of a recordset can be edited and added to.
enum class RecordsetType { Snapshot, Dynaset };

// One field of the current row, or of the row being edited.
class FieldRef {
 public:
  // Reading fails with 3021 where no row is and with 3265 where no such field is; both give Null.
  Value Get() const;

  // The content where Null will not do: all throw failure 94 on Null, and RequireLong throws 6
  // outside 32 bits.
  std::string RequireText() const;
  std::int32_t RequireLong() const;
  double RequireNumber() const;

  bool IsNull() const { return Get().IsNull(); }

  // Assigns to the row being edited. Fails with 3163 (text too long), 3315 (empty text in a field
  // that takes none), 6 (number outside the type) and 3020 (no row is edited); the field then
  // keeps its content. A real number in an integer field is rounded, ties to even.
  const FieldRef& operator=(Value value) const;

  template <std::same_as<double> Number>
  const FieldRef& operator=(Number number) const;

  // Assigns what a step returns. What the step throws is the assignment's failure.
  template <std::invocable Step>
  const FieldRef& operator=(const Step& step) const;

  // The same for what needs memory to be copied: a text, or another field's content.
  template <typename Text>
  requires std::convertible_to<Text, std::string_view>
  const FieldRef& operator=(Text&& text) const {
    return *this = [&text] { return std::string_view(text); };
  }
  const FieldRef& operator=(const FieldRef& other) const {
    return *this = [&other] { return other.Get(); };
  }
  FieldRef(const FieldRef&) = default;

 private:
  friend class Recordset;
  FieldRef(Recordset& recordset, std::optional<std::size_t> field)
      : recordset_(recordset), field_(field) {}

  Recordset& recordset_;
  std::optional<std::size_t> field_;
};

// Makes a value what a field of this definition keeps of it, or says why the field takes none;
// the value is then of no use.
std::optional<Failure> FitInto(const Field& field, std::string_view table, Value& value);

// Which rows it has is settled when the recordset is opened, so that stages may change tables while
// they walk them. A snapshot reads all of them then. A dynaset reads some at a time, as it comes to
// them: it passes over rows that were deleted meanwhile, and rows that cannot be read end it. Every
// failed operation goes to the sink of the routine that opened the recordset. Once its database is
// closed, rows that were read stay readable; edits, and rows that were not read, fail with 3420.
class Recordset {
 public:
  Recordset() = default;
  Recordset(Recordset&&) noexcept = default;
  Recordset& operator=(Recordset&&) noexcept = default;

  bool AtEnd() const { return current_ >= rowCount_; }
  bool Empty() const { return rowCount_ == 0; }
  std::size_t RecordCount() const { return rowCount_; }
  void MoveNext();
  void MoveFirst();

  FieldRef operator[](std::string_view field);
  FieldRef operator[](std::size_t field);

  // Assigns a text to the row being edited. A Text field that is too small for it grows first, for
  // this recordset; a file does not mind. Whatever else is wrong is passed over.
  void SetFieldText(std::string_view field, std::string_view text);

  // Begins a new row, or the change of the current one. An edit that is open is dropped.
  void AddNew();
  void Edit();

  // Writes the row. Fails with 3022 (key exists) and 3058 (Null in a key). Failed or not, the
  // recordset is no longer being edited.
  void Update();
  void CancelUpdate();
  void Close();

 private:
  friend class Database;
  friend class FieldRef;
  enum class Editing { None, Added, Changed };

  void ReadRows(std::shared_ptr<const TableDef> columns, sqlite3_stmt* statement,
                RecordsetType type);
  void ReadAll(sqlite3_stmt* statement);
  void ReadNumbered(std::shared_ptr<const TableDef> table, std::vector<std::int64_t> rowids,
                    RecordsetType type);
  void ReadFrom(std::size_t first, std::size_t count);
  bool ReadRow(std::int64_t rowid);
  void ComeTo(std::size_t row);
  std::size_t CountRead() const;
  Value Read(std::optional<std::size_t> field) const;
  void Fail(const Failure& failure) const;
  void Assign(std::optional<std::size_t> field, Value& value);
  void Assign(std::optional<std::size_t> field, std::string_view text);
  void Assign(std::optional<std::size_t> field, double number);
  void Put(std::size_t field, const HeldRows::Cell& cell);
  void BeginRow(Editing editing);
  void TakeUpRow();
  void GrowField(std::size_t field, std::size_t size);
  std::optional<std::size_t> FindField(std::string_view name);
  bool KeyHoldsNull() const;
  void LearnTable();
  void Insert();
  void Rewrite();
  bool RewriteHeld();
  void RewriteStored();

  FailureSink* sink_ = nullptr;
  std::shared_ptr<Connection> connection_;
  std::shared_ptr<const TableDef> table_;  // definition of the fields; of one table if editable
  bool editable_ = false;
  std::vector<Value> cells_;          // of the rows that were read, row by row
  std::size_t firstRead_ = 0;         // of those rows
  std::vector<std::int64_t> rowids_;  // of all rows that can be edited
  std::size_t rowCount_ = 0;
  std::size_t current_ = 0;
  Editing editing_ = Editing::None;
  // The row being edited. Its texts stand in buffers that are used again for the next row.
  std::vector<HeldRows::Cell> edited_;
  std::vector<std::string> texts_;
  std::vector<char> assigned_;  // whether each field was
  // What the table asks of a row; found out with the first one.
  std::vector<HeldRows::Cell> blankRow_;
  std::vector<std::size_t> keyFields_;
  std::optional<std::size_t> idField_;
  std::size_t nextField_ = 0;  // after the one asked for last: fields are mostly used in order
  sqlite3_stmt* insert_ = nullptr;
};

template <std::same_as<double> Number>
const FieldRef& FieldRef::operator=(Number number) const {
  recordset_.Assign(field_, number);
  return *this;
}

template <std::invocable Step>
const FieldRef& FieldRef::operator=(const Step& step) const {
  std::optional<Failure> failed;
  try {
    using Result = std::invoke_result_t<const Step&>;
    if constexpr (std::convertible_to<Result, std::string_view>) {
      const Result text = step();
      recordset_.Assign(field_, std::string_view(text));
    } else {
      Value value = step();
      recordset_.Assign(field_, value);
    }
    return *this;
  } catch (...) {
    failed = CaughtFailure();
  }
  recordset_.Fail(*failed);
  return *this;
}

}  // namespace orrerix
