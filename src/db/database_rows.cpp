// SPDX-License-Identifier: MIT
// Rows of one table, wherever they are: in memory or in the file.
#include <numeric>
#include <utility>

#include <fmt/format.h>

#include "db/database.h"
#include "db/engine/connection.h"
#include "db/guard.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// Numbers of the rows in memory; nothing if the file must be asked.
std::optional<std::vector<std::int64_t>> HeldRowsNamed(
    Connection& connection, std::string_view table, const Database::NamedField& name,
    const std::optional<Database::NamedField>& other) {
  HeldRows* held = connection.Held(table);
  if (held == nullptr) return std::nullopt;
  const auto field = held->Definition().Find(name.Field);
  const auto otherField = other ? held->Definition().Find(other->Field) : field;
  const bool changesQuery = Contains(name.Text, "'") || (other && Contains(other->Text, "'"));
  if (!field || !otherField || changesQuery) return std::nullopt;
  std::vector<std::int64_t> numbers;
  for (const std::size_t row : held->RowsNamed(*field, name.Text)) {
    if (!other || held->IsNamed(row, *otherField, other->Text)) {
      numbers.push_back(HeldRows::NumberOf(row));
    }
  }
  return numbers;
}

// The places of fields in a table; nothing if one of them is not there.
std::optional<std::vector<std::size_t>> PlacesOf(const TableDef& table,
                                                 std::initializer_list<std::string_view> fields) {
  std::vector<std::size_t> places;
  for (const std::string_view field : fields) {
    const auto place = table.Find(field);
    if (!place) return std::nullopt;
    places.push_back(*place);
  }
  return places;
}

void VisitHeld(const HeldRows& rows, const std::vector<std::size_t>& places,
               const Database::RowVisitor& visit) {
  std::vector<HeldRows::Cell> cells(places.size());
  for (std::size_t row = 0; row < rows.RowCount(); ++row) {
    const std::span<const HeldRows::Cell> whole = rows.Row(row);
    for (std::size_t i = 0; i < places.size(); ++i) cells[i] = whole[places[i]];
    visit(HeldRows::NumberOf(row), cells);
  }
}

void VisitStored(Connection& connection, std::string_view table,
                 std::initializer_list<std::string_view> fields,
                 const Database::RowVisitor& visit) {
  // The engine would take the name of a missing field for a text.
  const auto definition = connection.Find(table);
  if (definition != nullptr && !PlacesOf(*definition, fields)) {
    throw EngineFailure(failure_number::kNoSuchItem, "Item not found in this collection.");
  }
  std::string sql = "SELECT _rowid_";
  for (const std::string_view field : fields) sql += "," + QuoteName(field);
  sql += " FROM " + QuoteName(table) + " ORDER BY _rowid_";
  const PreparedStatement rows = connection.PrepareOnce(sql);
  std::vector<HeldRows::Cell> cells(fields.size());
  int result = sqlite3_step(rows.get());
  for (; result == SQLITE_ROW; result = sqlite3_step(rows.get())) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      cells[i] = Column(rows.get(), static_cast<int>(i) + 1);
    }
    visit(sqlite3_column_int64(rows.get(), 0), cells);
  }
  if (result != SQLITE_DONE) throw connection.LastFailure();
}

}  // namespace

Recordset Database::OpenRows(FailureSink& sink, std::string_view table, RecordsetType type) {
  const HeldRows* held = IsOpen() ? connection_->Held(table) : nullptr;
  if (held == nullptr) return OpenRecordset(sink, fmt::format("SELECT * from {}", table), {}, type);
  std::vector<std::int64_t> numbers(held->RowCount());
  std::iota(numbers.begin(), numbers.end(), HeldRows::NumberOf(0));
  return OpenRows(sink, table, std::move(numbers), type);
}

Recordset Database::OpenRows(FailureSink& sink, std::string_view table,
                             std::vector<std::int64_t> numbers, RecordsetType type) {
  Recordset recordset;
  const bool read = Guard(sink, [&] {
    RequireOpen();
    recordset.connection_ = connection_;
    recordset.ReadNumbered(connection_->Require(table), std::move(numbers), type);
  });
  if (!read) recordset = Recordset();
  recordset.sink_ = &sink;
  recordset.connection_ = connection_;
  return recordset;
}

Recordset Database::OpenRowsNamed(FailureSink& sink, std::string_view table, NamedField name,
                                  std::optional<NamedField> other, RecordsetType type) {
  std::optional<std::vector<std::int64_t>> held;
  const bool looked = Guard(sink, [&] {
    RequireOpen();
    held = HeldRowsNamed(*connection_, table, name, other);
  });
  if (!looked) return Recordset();
  if (held) return OpenRows(sink, table, std::move(*held), type);
  // Without the index the question takes longer; it has the same answer.
  Guard(sink, [&] { connection_->BeforeQuestionFor(table, name.Field); });
  const std::string query =
      fmt::format("SELECT * from {} WHERE ucase({}) = '{{}}'", table, name.Field);
  if (!other) return OpenRecordset(sink, query, {Ucase(name.Text)}, type);
  return OpenRecordset(sink, query + fmt::format(" AND ucase({}) = '{{}}'", other->Field),
                       {Ucase(name.Text), Ucase(other->Text)}, type);
}

bool Database::VisitRows(FailureSink& sink, std::string_view table,
                         std::initializer_list<std::string_view> fields, const RowVisitor& visit) {
  return Guard(sink, [&] {
    RequireOpen();
    const HeldRows* held = connection_->Held(table);
    const auto places = held == nullptr ? std::nullopt : PlacesOf(held->Definition(), fields);
    places ? VisitHeld(*held, *places, visit) : VisitStored(*connection_, table, fields, visit);
  });
}

}  // namespace orrerix
