// SPDX-License-Identifier: MIT
#include "db/database.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include <fmt/format.h>

#include "db/engine/connection.h"
#include "db/engine/query_text.h"
#include "db/guard.h"
#include "db/schema_aside.h"
#include "db/values/text.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

Failure TableExists(const TableDef& table) {
  return EngineFailure(failure_number::kTableExists,
                       fmt::format("Table '{}' already exists.", table.Name));
}

void StepToEnd(Connection& connection, sqlite3_stmt* statement) {
  int result = SQLITE_ROW;
  while (result == SQLITE_ROW) result = sqlite3_step(statement);
  if (result != SQLITE_DONE) throw connection.LastFailure();
}

// Runs `use` on a query's columns and its statement, with the values bound.
template <typename Use>
void WithStatement(Connection& connection, std::string_view text,
                   std::initializer_list<Value> values, bool withRowid, Use&& use) {
  if (!MustBeWritten(values)) {
    const Connection::Query& query = connection.Remember(text, withRowid);
    const std::vector<Value> bound = BoundValues(query.Translated, values);
    StatementLoan loan(query.Prepared);
    BindAll(loan.get(), bound);
    return use(query.Columns, loan.get());
  }
  auto translated = TranslateText(WriteValues(text, values), withRowid);
  if (const Failure* failure = std::get_if<Failure>(&translated)) throw *failure;
  const Statement& statement = std::get<Statement>(translated);
  const PreparedStatement once = connection.PrepareOnce(statement.Sql);
  use(withRowid ? connection.Find(statement.Table) : Connection::ColumnsOf(once.get()), once.get());
}

}  // namespace

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

bool Database::IsOpen() const {
  return connection_ != nullptr && connection_->IsOpen();
}

void Database::RequireOpen() const {
  if (!IsOpen())
    throw EngineFailure(failure_number::kObjectClosed, "Object invalid or no longer set.");
}

const std::filesystem::path& Database::Path() const {
  static const std::filesystem::path none;
  return connection_ == nullptr ? none : connection_->Path();
}

sqlite3* Database::Native() const {
  return connection_ == nullptr ? nullptr : connection_->Handle();
}

void Database::Close() {
  if (!IsOpen()) return;
  if (sqlite3_get_autocommit(Native()) == 0) {
    sqlite3_exec(Native(), "COMMIT", nullptr, nullptr, nullptr);
  }
  connection_->Close();
}

std::vector<TableDef> Database::TableDefs(FailureSink& sink) const {
  std::vector<TableDef> tables;
  Guard(sink, [&] {
    RequireOpen();
    for (const auto& table : connection_->FindAll()) tables.push_back(*table);
  });
  return tables;
}

bool Database::HasTable(std::string_view name) const {
  return IsOpen() && connection_->Find(name) != nullptr;
}

bool Database::HasField(std::string_view table, std::string_view field) const {
  const auto definition = IsOpen() ? connection_->Find(table) : nullptr;
  return definition != nullptr && definition->Find(field).has_value();
}

// The table without its key.
void Database::MakeTable(const TableDef& table) {
  RequireOpen();
  if (HasTable(table.Name)) {
    throw TableExists(table);
  }
  // The engine looks through all prepared statements whenever the schema changes: keep none.
  StepToEnd(*connection_, connection_->PrepareOnce(CreateStatement(table)).get());
}

void Database::CreateTable(FailureSink& sink, const TableDef& table) {
  Guard(sink, [&] {
    MakeTable(table);
    if (table.PrimaryKey) {
      StepToEnd(*connection_, connection_->PrepareOnce(CreateKeyStatement(table)).get());
    }
    connection_->Forget(table.Name);
  });
}

void Database::CreateHeldTable(FailureSink& sink, const TableDef& table) {
  Guard(sink, [&] {
    MakeTable(table);
    connection_->Hold(table);
  });
}

void Database::WriteHeldRows(FailureSink& sink) {
  Guard(sink, [&] {
    RequireOpen();
    connection_->WriteHeld();
  });
}

std::vector<HeldRows> Database::TakeHeldRows() {
  return IsOpen() ? connection_->TakeHeld() : std::vector<HeldRows>();
}

void Database::Append(FailureSink& sink, const HeldRows& rows, const TableDef& table) {
  Guard(sink, [&] {
    RequireOpen();
    connection_->InsertRows(rows, table);
  });
}

Recordset Database::OpenRecordset(FailureSink& sink, std::string_view text,
                                  std::initializer_list<Value> values, RecordsetType type) {
  Recordset recordset;
  recordset.sink_ = &sink;
  recordset.connection_ = connection_;
  Guard(sink, [&] {
    RequireOpen();
    WithStatement(*connection_, text, values, type == RecordsetType::Dynaset,
                  [&](std::shared_ptr<const TableDef> columns, sqlite3_stmt* prepared) {
                    recordset.ReadRows(std::move(columns), prepared, type);
                  });
  });
  return recordset;
}

std::optional<Value> Database::LookUp(FailureSink& sink, std::string_view table,
                                      std::string_view field, std::string_view keyField,
                                      std::int64_t key) {
  const HeldRows* held = IsOpen() ? connection_->Held(table) : nullptr;
  if (held != nullptr && held->IsKeyedBy(keyField)) {
    const auto row = held->Find(key);
    return row ? std::optional(held->Content(*row, field)) : std::nullopt;
  }
  Recordset found = OpenRecordset(
      sink, fmt::format("SELECT {} from {} WHERE {} = {{}}", field, table, keyField), {key});
  return found.AtEnd() ? std::nullopt : std::optional(found[std::size_t{0}].Get());
}

Recordset Database::OpenTable(FailureSink& sink, std::string_view table) {
  Recordset recordset;
  recordset.sink_ = &sink;
  recordset.connection_ = connection_;
  Guard(sink, [&] {
    RequireOpen();
    recordset.table_ = connection_->Require(table);
    recordset.editable_ = true;
  });
  return recordset;
}

Appender Database::OpenAppender(FailureSink& sink, const TableDef& table, std::size_t rowCount) {
  Appender appender;
  Guard(sink, [&] {
    RequireOpen();
    appender = Appender(sink, connection_, table, rowCount);
  });
  return appender;
}

void Database::Execute(FailureSink& sink, std::string_view text,
                       std::initializer_list<Value> values) {
  Guard(sink, [&] {
    RequireOpen();
    WithStatement(*connection_, text, values, false,
                  [&](const std::shared_ptr<const TableDef>&, sqlite3_stmt* prepared) {
                    StepToEnd(*connection_, prepared);
                  });
  });
}

std::vector<std::size_t> Database::LongestAttachedTexts(FailureSink& sink,
                                                        const TableDef& table) const {
  std::vector<std::size_t> longest(table.Fields.size(), 0);
  std::vector<std::size_t> places;
  std::string columns;
  for (std::size_t i = 0; i < table.Fields.size(); ++i) {
    if (table.Fields[i].Type != FieldType::Text) continue;
    columns += (places.empty() ? "" : ",") + QuoteName(table.Fields[i].Name);
    places.push_back(i);
  }
  if (places.empty()) return longest;
  Guard(sink, [&] {
    RequireOpen();
    const PreparedStatement rows =
        connection_->PrepareOnce("SELECT " + columns + " FROM attached." + QuoteName(table.Name));
    while (StepsToRow(rows.get())) {
      for (std::size_t i = 0; i < places.size(); ++i) {
        const int column = static_cast<int>(i);
        std::size_t& most = longest[places[i]];
        const auto bytes = static_cast<std::size_t>(sqlite3_column_bytes(rows.get(), column));
        if (bytes <= most) continue;  // there are no more characters than bytes
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(rows.get(), column));
        most = std::max(most, Len({text, bytes}));
      }
    }
  });
  return longest;
}

std::optional<std::int64_t> Database::RowCount(FailureSink& sink, std::string_view table) const {
  std::optional<std::int64_t> count;
  Guard(sink, [&] {
    RequireOpen();
    const PreparedStatement rows =
        connection_->PrepareOnce("SELECT count(*) FROM " + QuoteName(table));
    if (sqlite3_step(rows.get()) != SQLITE_ROW) throw connection_->LastFailure();
    count = sqlite3_column_int64(rows.get(), 0);
  });
  return count;
}

StoredTable Database::ReadTable(FailureSink& sink, std::string_view table) const {
  StoredTable read;
  Guard(sink, [&] {
    RequireOpen();
    // An index would give the rows in its own order.
    const PreparedStatement rows = connection_->PrepareOnce(
        fmt::format("SELECT * FROM main.{} NOT INDEXED", QuoteName(table)));
    const auto definition = connection_->Find(table);
    const int width = sqlite3_column_count(rows.get());
    if (definition == nullptr || definition->Fields.size() != static_cast<std::size_t>(width)) {
      throw EngineFailure(failure_number::kUnrecognizedFormat,
                          fmt::format("Unrecognized database format '{}'.", TextOf(Path())));
    }
    std::vector<Value> cells;
    int result = sqlite3_step(rows.get());
    for (; result == SQLITE_ROW; result = sqlite3_step(rows.get())) {
      for (int i = 0; i < width; ++i) cells.push_back(HeldRows::ValueOf(Column(rows.get(), i)));
    }
    if (result != SQLITE_DONE) throw connection_->LastFailure();
    read = {*definition, std::move(cells)};
  });
  return read;
}

void Database::CreateTables(FailureSink& sink, std::span<const TableDef> tables,
                            const std::function<void(std::size_t)>& fill) {
  constexpr std::size_t many = 256;
  std::unordered_set<std::string> names;
  for (const TableDef& table : TableDefs(sink)) names.insert(FoldAscii(table.Name));
  SchemaAside aside;
  for (std::size_t i = 0; i < tables.size(); ++i) {
    if (tables.size() >= many && i % many == 0) Guard(sink, [&] { aside.Take(*connection_); });
    if (names.insert(FoldAscii(tables[i].Name)).second) {
      CreateTable(sink, tables[i]);
      fill(i);
    } else {
      sink.Fail(TableExists(tables[i]));
    }
  }
  if (tables.size() >= many) Guard(sink, [&] { aside.PutBack(*connection_); });
}

void Database::Attach(FailureSink& sink, const std::filesystem::path& path) {
  Guard(sink, [&] {
    RequireOpen();
    StatementLoan attach(connection_->Prepare("ATTACH ?1 AS attached"));
    Bind(attach.get(), 1, TextOf(SystemPath(path)));
    StepToEnd(*connection_, attach.get());
  });
}

void Database::CopyFromAttached(FailureSink& sink, std::string_view table) {
  Guard(sink, [&] {
    RequireOpen();
    const std::string name = QuoteName(table);
    StepToEnd(*connection_, StatementLoan(connection_->Prepare("INSERT INTO main." + name +
                                                               " SELECT * FROM attached." + name))
                                .get());
  });
}

bool Database::ExecuteNative(FailureSink& sink, const std::string& statement) {
  return Guard(sink, [&] {
    RequireOpen();
    connection_->RunAll(statement);
  });
}

void Database::DrawUniqueIDsFrom(UniqueNumbers::Source source) {
  if (IsOpen()) connection_->DrawUniqueIDsFrom(std::move(source));
}

void Database::Begin(FailureSink& sink) {
  ExecuteNative(sink, "BEGIN");
}

bool Database::Commit(FailureSink& sink) {
  return ExecuteNative(sink, "COMMIT");
}

std::int64_t Database::ChangedRows() const {
  return IsOpen() ? sqlite3_total_changes64(Native()) : 0;
}

std::int64_t Database::FreePages(FailureSink& sink) const {
  std::int64_t pages = 0;
  Guard(sink, [&] {
    RequireOpen();
    StatementLoan loan(connection_->Prepare("PRAGMA freelist_count"));
    if (StepsToRow(loan.get())) pages = sqlite3_column_int64(loan.get(), 0);
  });
  return pages;
}

}  // namespace orrerix
