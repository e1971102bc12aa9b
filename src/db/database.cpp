// SPDX-License-Identifier: MIT
#include "db/database.h"

#include <utility>

#include <fmt/format.h>

#include "db/connection.h"
#include "db/query_text.h"

namespace orrerix {
namespace {

// Runs a step that throws its failure, and hands that to the sink.
template <typename Step>
void Guard(FailureSink& sink, Step&& step) {
  std::optional<Failure> failed;
  try {
    step();
  } catch (const Failure& failure) {
    failed = failure;
  }
  if (failed) sink.Fail(*failed);
}

void StepToEnd(Connection& connection, sqlite3_stmt* statement) {
  int result = SQLITE_ROW;
  while (result == SQLITE_ROW) result = sqlite3_step(statement);
  if (result != SQLITE_DONE) throw connection.LastFailure();
}

Statement TranslateOrThrow(std::string_view text, std::initializer_list<Value> values,
                           bool withRowid = false) {
  auto translated = Translate(text, values, withRowid);
  if (const Failure* failure = std::get_if<Failure>(&translated)) throw *failure;
  return std::get<Statement>(std::move(translated));
}

}  // namespace

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}

bool Database::IsOpen() const {
  return connection_ != nullptr && connection_->IsOpen();
}

void Database::RequireOpen() const {
  if (!IsOpen()) throw EngineFailure(3420, "Object invalid or no longer set.");
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
    std::vector<std::string> names;
    StatementLoan master(connection_->Prepare(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite[_]*' "
        "ORDER BY rowid"));
    while (sqlite3_step(master.get()) == SQLITE_ROW) {
      names.push_back(Column(master.get(), 0).Text());
    }
    for (const std::string& name : names) tables.push_back(*connection_->Find(name));
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

void Database::CreateTable(FailureSink& sink, const TableDef& table) {
  Guard(sink, [&] {
    RequireOpen();
    if (HasTable(table.Name)) {
      throw EngineFailure(failure_number::kTableExists,
                          fmt::format("Table '{}' already exists.", table.Name));
    }
    StepToEnd(*connection_, StatementLoan(connection_->Prepare(CreateStatement(table))).get());
    if (table.PrimaryKey) {
      StepToEnd(*connection_, StatementLoan(connection_->Prepare(CreateKeyStatement(table))).get());
    }
    connection_->Forget(table.Name);
  });
}

Recordset Database::OpenRecordset(FailureSink& sink, std::string_view text,
                                  std::initializer_list<Value> values, RecordsetType type) {
  Recordset recordset;
  recordset.sink_ = &sink;
  recordset.connection_ = connection_;
  Guard(sink, [&] {
    RequireOpen();
    recordset.ReadRows(TranslateOrThrow(text, values, type == RecordsetType::Dynaset), type);
  });
  return recordset;
}

Recordset Database::OpenTable(FailureSink& sink, std::string_view table) {
  Recordset recordset;
  recordset.sink_ = &sink;
  recordset.connection_ = connection_;
  Guard(sink, [&] {
    RequireOpen();
    recordset.table_ = connection_->Find(table);
    if (recordset.table_ == nullptr) {
      throw EngineFailure(failure_number::kNoSuchTable,
                          fmt::format("Cannot find the input table '{}'.", table));
    }
    recordset.editable_ = true;
  });
  return recordset;
}

Appender Database::OpenAppender(FailureSink& sink, const TableDef& table) {
  Appender appender;
  Guard(sink, [&] {
    RequireOpen();
    std::string parameters = "?";
    for (std::size_t i = 1; i < table.Fields.size(); ++i) parameters += ",?";
    sqlite3_stmt* statement = connection_->Prepare("INSERT INTO " + QuoteName(table.Name) +
                                                   " VALUES (" + parameters + ")");
    appender = Appender(sink, connection_, statement);
  });
  return appender;
}

void Database::Execute(FailureSink& sink, std::string_view text,
                       std::initializer_list<Value> values, ExecuteOption option) {
  Guard(sink, [&] {
    RequireOpen();
    Statement statement = TranslateOrThrow(text, values);
    constexpr std::string_view insert = "INSERT INTO";
    if (option == ExecuteOption::DropBadRows && statement.Sql.starts_with(insert)) {
      statement.Sql.insert(insert.find(' '), " OR IGNORE");
    }
    StatementLoan loan(connection_->Prepare(statement.Sql));
    BindAll(loan.get(), statement.Bound);
    StepToEnd(*connection_, loan.get());
  });
}

void Database::Attach(FailureSink& sink, const std::filesystem::path& path) {
  Guard(sink, [&] {
    RequireOpen();
    StatementLoan attach(connection_->Prepare("ATTACH ?1 AS attached"));
    Bind(attach.get(), 1, path.string());
    StepToEnd(*connection_, attach.get());
    attached_ = path;
  });
}

void Database::CreateAttachedTable(FailureSink& sink, const TableDef& table) {
  ExecuteNative(sink, CreateStatement(table, "attached"));
}

void Database::CopyToAttached(FailureSink& sink, std::string_view table) {
  Guard(sink, [&] {
    RequireOpen();
    const std::string source = QuoteName(table);
    TranslateOrThrow("INSERT INTO t IN '" + attached_.string() + "' SELECT * FROM t;", {});
    StepToEnd(*connection_,
              StatementLoan(connection_->Prepare("INSERT INTO attached." + source +
                                                 " SELECT * FROM main." + source))
                  .get());
  });
}

void Database::ExecuteNative(FailureSink& sink, const std::string& statement) {
  Guard(sink, [&] {
    RequireOpen();
    if (sqlite3_exec(Native(), statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw connection_->LastFailure();
    }
  });
}

void Database::UseForBuilding(FailureSink& sink) {
  // Checks repeat what every assignment has tested already.
  ExecuteNative(sink,
                "PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF; "
                "PRAGMA cache_size = -16384; PRAGMA ignore_check_constraints = ON; "
                "PRAGMA locking_mode = EXCLUSIVE; PRAGMA temp_store = MEMORY;");
}

void Database::Begin(FailureSink& sink) {
  ExecuteNative(sink, "BEGIN");
}

void Database::Commit(FailureSink& sink) {
  ExecuteNative(sink, "COMMIT");
}

std::int64_t Database::FreePages(FailureSink& sink) const {
  std::int64_t pages = 0;
  Guard(sink, [&] {
    RequireOpen();
    StatementLoan loan(connection_->Prepare("PRAGMA freelist_count"));
    if (sqlite3_step(loan.get()) == SQLITE_ROW) pages = sqlite3_column_int64(loan.get(), 0);
  });
  return pages;
}

}  // namespace orrerix
