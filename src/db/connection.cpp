// SPDX-License-Identifier: MIT
#include "db/connection.h"

#include <fmt/format.h>

#include "db/text.h"

namespace orrerix {

Connection::Connection(sqlite3* handle, std::filesystem::path path)
    : handle_(handle), path_(std::move(path)) {}

Connection::~Connection() {
  Close();
}

void Connection::Close() {
  queries_.clear();
  editableQueries_.clear();
  statements_.clear();
  tables_.clear();
  sqlite3_close_v2(handle_);
  handle_ = nullptr;
}

void Connection::RequireOpen() const {
  if (!IsOpen()) throw EngineFailure(3420, "Object invalid or no longer set.");
}

sqlite3_stmt* Connection::Prepare(const std::string& sql) {
  RequireOpen();
  if (const auto found = statements_.find(sql); found != statements_.end()) {
    return found->second.get();
  }
  PreparedStatement prepared = PrepareOnce(sql);
  return statements_.emplace(sql, std::move(prepared)).first->second.get();
}

PreparedStatement Connection::PrepareOnce(const std::string& sql) {
  RequireOpen();
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v3(handle_, sql.data(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (result != SQLITE_OK) throw LastFailure();
  if (statement == nullptr) {
    throw EngineFailure(failure_number::kSyntaxError, "Syntax error in query expression.");
  }
  return PreparedStatement(statement);
}

std::shared_ptr<const TableDef> Connection::Find(std::string_view table) {
  RequireOpen();
  const std::string key = FoldAscii(table);
  if (const auto found = tables_.find(key); found != tables_.end()) return found->second;

  StatementLoan master(
      Prepare("SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name = ?1 "
              "COLLATE NOCASE"));
  Bind(master.get(), 1, table);
  if (sqlite3_step(master.get()) != SQLITE_ROW) return nullptr;
  auto definition = std::make_shared<TableDef>();
  definition->Name = Column(master.get(), 0).Text();
  const std::string sql = Column(master.get(), 1).Text();

  StatementLoan columns(Prepare("SELECT name, type, dflt_value FROM pragma_table_info(?1)"));
  Bind(columns.get(), 1, table);
  while (sqlite3_step(columns.get()) == SQLITE_ROW) {
    definition->Fields.push_back(ReadField(Column(columns.get(), 0).Text(),
                                           Column(columns.get(), 1).Text(),
                                           Column(columns.get(), 2).Text(), sql));
  }
  StatementLoan keys(
      Prepare("SELECT ii.name FROM pragma_index_list(?1) il, pragma_index_info(il.name) ii "
              "WHERE il.[unique] AND ii.name IS NOT NULL ORDER BY ii.seqno"));
  Bind(keys.get(), 1, table);
  while (sqlite3_step(keys.get()) == SQLITE_ROW) {
    if (!definition->PrimaryKey) definition->PrimaryKey = Index{"key", {}, false};
    definition->PrimaryKey->Fields.push_back(Column(keys.get(), 0).Text());
  }
  tables_[key] = definition;
  return definition;
}

const Connection::Query& Connection::Remember(std::string_view text, bool withRowid) {
  RequireOpen();
  auto& queries = withRowid ? editableQueries_ : queries_;
  if (const auto found = queries.find(text); found != queries.end()) return found->second;
  auto translated = TranslateTemplate(text, withRowid);
  if (const Failure* failure = std::get_if<Failure>(&translated)) throw *failure;
  Query query;
  query.Translated = std::get<Statement>(std::move(translated));
  query.Prepared = Prepare(query.Translated.Sql);
  query.Columns = withRowid ? Find(query.Translated.Table) : ColumnsOf(query.Prepared);
  return queries.emplace(text, std::move(query)).first->second;
}

void Connection::Forget(std::string_view table) {
  tables_.erase(FoldAscii(table));
}

std::shared_ptr<const TableDef> Connection::ColumnsOf(sqlite3_stmt* statement) {
  auto columns = std::make_shared<TableDef>();
  for (int i = 0; i < sqlite3_column_count(statement); ++i) {
    Field field;
    field.Name = sqlite3_column_name(statement, i);
    columns->Fields.push_back(std::move(field));
  }
  return columns;
}

Failure Connection::LastFailure() const {
  const int code = sqlite3_extended_errcode(handle_);
  const std::string message = sqlite3_errmsg(handle_);
  const std::string file = path_.string();
  if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY) {
    return EngineFailure(failure_number::kDuplicateKey,
                         "The changes you requested were not successful because they would create "
                         "duplicate values in the index.");
  }
  if (message == "Invalid pattern string.") {
    return {failure_number::kInvalidPattern, message};
  }
  if (message == StandardMessage(failure_number::kInvalidProcedureCall)) {
    return RuntimeFailure(failure_number::kInvalidProcedureCall);
  }
  if (message.starts_with("no such table")) {
    return EngineFailure(failure_number::kNoSuchTable,
                         fmt::format("Cannot find the input table ({}) in '{}'.", message, file));
  }
  switch (code & 0xFF) {
    case SQLITE_NOMEM:
      return RuntimeFailure(failure_number::kOutOfMemory);
    case SQLITE_FULL:
      return EngineFailure(failure_number::kDiskFull,
                           fmt::format("Not enough space on disk for '{}'.", file));
    case SQLITE_READONLY:
      return EngineFailure(failure_number::kReadOnly,
                           fmt::format("Cannot update '{}': it is read-only.", file));
    case SQLITE_CANTOPEN:
      return EngineFailure(failure_number::kCannotOpenFile,
                           fmt::format("Could not open file '{}'.", file));
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return EngineFailure(failure_number::kUnrecognizedFormat,
                           fmt::format("Unrecognized database format '{}'.", file));
    case SQLITE_ERROR:
      return EngineFailure(failure_number::kSyntaxError,
                           fmt::format("Syntax error in query expression. ({})", message));
    default:
      return EngineFailure(failure_number::kEngineError,
                           fmt::format("{} ('{}', code {})", message, file, code));
  }
}

void Bind(sqlite3_stmt* statement, int parameter, const Value& value, BoundText bound) {
  if (const std::string* text = value.TextContent()) {
    sqlite3_bind_text64(statement, parameter, text->data(), text->size(),
                        bound == BoundText::Copied ? SQLITE_TRANSIENT : SQLITE_STATIC, SQLITE_UTF8);
  } else if (const std::int64_t* whole = value.Whole()) {
    sqlite3_bind_int64(statement, parameter, *whole);
  } else if (const double* real = value.Real()) {
    sqlite3_bind_double(statement, parameter, *real);
  } else {
    sqlite3_bind_null(statement, parameter);
  }
}

void BindAll(sqlite3_stmt* statement, const std::vector<Value>& values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    Bind(statement, static_cast<int>(i) + 1, values[i], BoundText::Stays);
  }
}

Value Column(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
      return sqlite3_column_int64(statement, column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    case SQLITE_NULL:
      return {};
    default:
      break;
  }
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
  return text == nullptr ? Value() : Value(std::string(text, size));
}

}  // namespace orrerix
