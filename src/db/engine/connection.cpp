// SPDX-License-Identifier: MIT
#include "db/engine/connection.h"

#include <algorithm>
#include <new>
#include <utility>

#include <fmt/format.h>

#include "db/engine/engine_functions.h"
#include "db/rows/row_inserter.h"
#include "db/values/text.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

void RequireMemory(int result) {
  if (result == SQLITE_NOMEM || result == SQLITE_IOERR_NOMEM) throw std::bad_alloc();
}

}  // namespace

Connection::Connection(sqlite3* handle, std::filesystem::path path)
    : handle_(handle), path_(std::move(path)) {}

Connection::~Connection() {
  Close();
}

void Connection::Close() {
  held_.clear();
  queries_.clear();
  editableQueries_.clear();
  statements_.clear();
  tables_.clear();
  uniqueIDs_.clear();
  sqlite3_close_v2(handle_);
  handle_ = nullptr;
}

void Connection::RequireOpen() const {
  if (!IsOpen())
    throw EngineFailure(failure_number::kObjectClosed, "Object invalid or no longer set.");
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
  PreparedStatement prepared(statement);
  WriteAskedFor();
  return prepared;
}

std::shared_ptr<const TableDef> Connection::Find(std::string_view table) {
  RequireOpen();
  const std::string key = FoldAscii(table);
  if (const auto found = tables_.find(key); found != tables_.end()) return found->second;
  if (!Exists(std::string(table))) return nullptr;

  StatementLoan master(
      Prepare("SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name = ?1 "
              "COLLATE NOCASE"));
  Bind(master.get(), 1, table);
  if (!StepsToRow(master.get())) return nullptr;
  auto definition = ReadDefinition(ColumnText(master.get(), 0), ColumnText(master.get(), 1));
  tables_[key] = definition;
  return definition;
}

std::shared_ptr<const TableDef> Connection::Require(std::string_view table) {
  auto found = Find(table);
  if (found != nullptr) return found;
  throw EngineFailure(failure_number::kNoSuchTable,
                      fmt::format("Cannot find the input table '{}'.", table));
}

// Looks into the schema that the engine has in memory; its table has no index on names.
bool Connection::Exists(const std::string& table) const {
  const int result = sqlite3_table_column_metadata(handle_, "main", table.c_str(), nullptr, nullptr,
                                                   nullptr, nullptr, nullptr, nullptr);
  RequireMemory(result);
  return result == SQLITE_OK;
}

std::vector<std::shared_ptr<const TableDef>> Connection::FindAll() {
  std::vector<std::pair<std::string, std::string>> found;  // names and statements
  {
    StatementLoan master(
        Prepare("SELECT name, sql FROM sqlite_master WHERE type = 'table' "
                "AND name NOT LIKE 'sqlite[_]*' ORDER BY rowid"));
    while (StepsToRow(master.get())) {
      found.emplace_back(ColumnText(master.get(), 0), ColumnText(master.get(), 1));
    }
  }
  std::vector<std::shared_ptr<const TableDef>> tables;
  for (const auto& [name, sql] : found) {
    std::shared_ptr<const TableDef>& known = tables_[FoldAscii(name)];
    if (known == nullptr) known = ReadDefinition(name, sql);
    tables.push_back(known);
  }
  return tables;
}

std::shared_ptr<const TableDef> Connection::ReadDefinition(const std::string& name,
                                                           const std::string& sql) {
  auto definition = std::make_shared<TableDef>();
  definition->Name = name;
  StatementLoan columns(Prepare("SELECT name, type, dflt_value FROM pragma_table_info(?1)"));
  Bind(columns.get(), 1, name);
  while (StepsToRow(columns.get())) {
    definition->Fields.push_back(ReadField(ColumnText(columns.get(), 0),
                                           ColumnText(columns.get(), 1),
                                           ColumnText(columns.get(), 2), sql));
  }
  StatementLoan keys(
      Prepare("SELECT ii.name FROM pragma_index_list(?1) il, pragma_index_info(il.name) ii "
              "WHERE il.[unique] AND ii.name IS NOT NULL ORDER BY ii.seqno"));
  Bind(keys.get(), 1, name);
  while (StepsToRow(keys.get())) {
    if (!definition->PrimaryKey) definition->PrimaryKey = Index{"key", {}, false};
    definition->PrimaryKey->Fields.push_back(ColumnText(keys.get(), 0));
  }
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

void Connection::Hold(const TableDef& table) {
  // Preparing a statement reports the tables that it uses.
  if (held_.empty()) sqlite3_set_authorizer(handle_, NoteTable, this);
  held_.emplace_back(table);
  tables_[FoldAscii(table.Name)] = held_.back().SharedDefinition();
}

HeldRows* Connection::Held(const std::shared_ptr<const TableDef>& table) {
  for (HeldRows& rows : held_) {
    if (rows.SharedDefinition() == table) return &rows;
  }
  return nullptr;
}

HeldRows* Connection::Held(std::string_view table) {
  for (HeldRows& rows : held_) {
    if (EqualIgnoringCase(rows.Definition().Name, table)) return &rows;
  }
  return nullptr;
}

int Connection::NoteTable(void* self, int action, const char* first, const char* second,
                          const char* database, const char*) {
  auto& connection = *static_cast<Connection*>(self);
  const char* table =
      action == SQLITE_CREATE_INDEX || action == SQLITE_ALTER_TABLE ? second : first;
  const bool isHere =
      database == nullptr || action == SQLITE_ALTER_TABLE || std::string_view(database) == "main";
  if (table == nullptr || !isHere) return SQLITE_OK;
  const bool changesKeys =
      action == SQLITE_INSERT || (action == SQLITE_UPDATE && connection.IsKeyField(table, second));
  if (connection.Held(table) != nullptr || (changesKeys && !connection.lateKeys_.empty())) {
    connection.askedFor_.push_back({table, changesKeys});
  }
  return SQLITE_OK;
}

// A field of a table that is not known counts.
bool Connection::IsKeyField(const char* table, const char* field) const {
  const auto known = tables_.find(FoldAscii(table));
  if (known == tables_.end()) return true;
  const auto& key = known->second->PrimaryKey;
  return key && std::any_of(key->Fields.begin(), key->Fields.end(),
                            [field](const auto& name) { return EqualIgnoringCase(name, field); });
}

void Connection::WriteAskedFor() {
  for (const Request& request : std::exchange(askedFor_, {})) {
    WriteTable(request.Table);
    if (request.ChangesKeys) MakeLateKey(request.Table);
  }
}

void Connection::WriteHeld() {
  while (!held_.empty()) WriteTable(held_.back().Definition().Name);
  while (!lateKeys_.empty()) MakeLateKey(lateKeys_.back().Name);
}

std::vector<HeldRows> Connection::TakeHeld() {
  return std::exchange(held_, {});
}

void Connection::WriteTable(std::string_view table) {
  const auto held = std::find_if(held_.begin(), held_.end(), [table](const HeldRows& rows) {
    return EqualIgnoringCase(rows.Definition().Name, table);
  });
  if (held == held_.end()) return;
  const HeldRows rows = std::move(*held);
  held_.erase(held);
  InsertRows(rows, rows.Definition());
  if (!rows.Definition().PrimaryKey) return;
  lateKeys_.push_back(rows.Definition());
  if (!rows.Definition().PrimaryKey->IsLate) MakeLateKey(rows.Definition().Name);
}

void Connection::BeforeQuestionFor(std::string_view table, std::string_view field) {
  if (!indexesNames_) return;
  const std::string name = fmt::format("{} lookup {}", table, field);
  if (!nameIndexes_.insert(name).second) return;
  RunAll(fmt::format("CREATE INDEX IF NOT EXISTS {} ON {} (ucase({}) COLLATE NOCASE)",
                     QuoteName(name), QuoteName(table), field));
}

// Making a key out of all rows costs less than placing each of them in it.
void Connection::MakeLateKey(std::string_view table) {
  const auto late = std::find_if(lateKeys_.begin(), lateKeys_.end(), [table](const TableDef& of) {
    return EqualIgnoringCase(of.Name, table);
  });
  if (late == lateKeys_.end()) return;
  const TableDef keyed = std::move(*late);
  lateKeys_.erase(late);
  RunAll(CreateKeyStatement(keyed));
}

UniqueNumbers& Connection::UniqueIDs(const TableDef& table) {
  const std::string key = FoldAscii(table.Name);
  if (const auto found = uniqueIDs_.find(key); found != uniqueIDs_.end()) return found->second;
  UniqueNumbers numbers(idSource_);
  const PreparedStatement rows =
      PrepareOnce("SELECT " + QuoteName(table.Fields[*table.UniqueIDField()].Name) + " FROM " +
                  QuoteName(table.Name));
  while (StepsToRow(rows.get())) numbers.Take(sqlite3_column_int64(rows.get(), 0));
  return uniqueIDs_.emplace(key, std::move(numbers)).first->second;
}

void Connection::RunAll(const std::string& statements) {
  RequireOpen();
  const char* rest = statements.c_str();
  while (*rest != '\0') {
    sqlite3_stmt* next = nullptr;
    if (sqlite3_prepare_v2(handle_, rest, -1, &next, &rest) != SQLITE_OK) throw LastFailure();
    const PreparedStatement statement(next);
    WriteAskedFor();
    if (next == nullptr) continue;
    int result = SQLITE_ROW;
    while (result == SQLITE_ROW) result = sqlite3_step(next);
    if (result != SQLITE_DONE) throw LastFailure();
  }
}

void Connection::InsertRows(const HeldRows& rows, const TableDef& table) {
  RowInserter inserter(*this, table, rows.RowCount(), RowsAre::Whole);
  for (std::size_t row = 0; row < rows.RowCount(); ++row) {
    const std::span<const HeldRows::Cell> cells = rows.Row(row);
    for (std::size_t field = 0; field < cells.size(); ++field) inserter.Set(field, cells[field]);
    inserter.EndRow();
  }
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
  const std::string file = TextOf(path_);
  if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY) {
    return DuplicateKey();
  }
  if (const auto number = FailureNumberOf(code)) return {*number, message};
  if (message.starts_with("no such table")) {
    return EngineFailure(failure_number::kNoSuchTable,
                         fmt::format("Cannot find the input table ({}) in '{}'.", message, file));
  }
  switch (code & 0xFF) {
    case SQLITE_NOMEM:
      return RuntimeFailure(failure_number::kOutOfMemory);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return EngineFailure(failure_number::kFileInUse,
                           fmt::format("Could not use '{}'; file already in use.", file));
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
  const std::string* text = value.TextContent();
  if (text == nullptr || bound == BoundText::Stays) {
    return BindCell(statement, parameter, HeldRows::ViewOf(value));
  }
  sqlite3_bind_text64(statement, parameter, text->data(), text->size(), SQLITE_TRANSIENT,
                      SQLITE_UTF8);
}

void BindAll(sqlite3_stmt* statement, const std::vector<Value>& values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    Bind(statement, static_cast<int>(i) + 1, values[i], BoundText::Stays);
  }
}

void BindCell(sqlite3_stmt* statement, int parameter, const HeldRows::Cell& cell) {
  if (const auto* text = std::get_if<std::string_view>(&cell)) {
    sqlite3_bind_text64(statement, parameter, text->data(), text->size(), SQLITE_STATIC,
                        SQLITE_UTF8);
  } else if (const auto* whole = std::get_if<std::int64_t>(&cell)) {
    sqlite3_bind_int64(statement, parameter, *whole);
  } else if (const auto* real = std::get_if<double>(&cell)) {
    sqlite3_bind_double(statement, parameter, *real);
  } else {
    sqlite3_bind_null(statement, parameter);
  }
}

bool StepsToRow(sqlite3_stmt* statement) {
  const int result = sqlite3_step(statement);
  RequireMemory(result);
  return result == SQLITE_ROW;
}

HeldRows::Cell Column(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
      return sqlite3_column_int64(statement, column);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement, column);
    case SQLITE_NULL:
      return Null{};
    default:
      break;
  }
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (text == nullptr) throw std::bad_alloc();
  return std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

std::string ColumnText(sqlite3_stmt* statement, int column) {
  return HeldRows::ValueOf(Column(statement, column)).TakeText();
}

}  // namespace orrerix
