// SPDX-License-Identifier: MIT
// SQLite's handle with what the layer remembers of it. Used inside this folder only.
#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <sqlite3.h>

#include "db/engine/query_text.h"
#include "db/failure.h"
#include "db/rows/held_rows.h"
#include "db/rows/table_def.h"
#include "db/rows/unique_numbers.h"
#include "db/values/text.h"
#include "db/values/value.h"

namespace orrerix {

struct StatementDeleter {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using PreparedStatement = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

// A prepared statement on loan: it is reset when the loan ends, and forgets its values unless each
// of them is bound again next time.
class StatementLoan {
 public:
  explicit StatementLoan(sqlite3_stmt* statement, bool forgets = true)
      : statement_(statement), forgets_(forgets) {}
  StatementLoan(const StatementLoan&) = delete;
  StatementLoan& operator=(const StatementLoan&) = delete;
  ~StatementLoan() {
    sqlite3_reset(statement_);
    if (forgets_) sqlite3_clear_bindings(statement_);
  }
  sqlite3_stmt* get() const { return statement_; }

 private:
  sqlite3_stmt* statement_;
  bool forgets_;
};

class Connection {
 public:
  Connection(sqlite3* handle, std::filesystem::path path);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection();

  void Close();
  bool IsOpen() const { return handle_ != nullptr; }
  sqlite3* Handle() const { return handle_; }
  const std::filesystem::path& Path() const { return path_; }

  // The statement for a text, prepared once and kept until the file is closed. Throws a Failure if
  // the text is no statement.
  sqlite3_stmt* Prepare(const std::string& sql);

  // A statement that is used this once.
  PreparedStatement PrepareOnce(const std::string& sql);

  // A query text as it is used again and again with other values; translated once. Throws a Failure
  // if it is no query. Texts with values written into them are not remembered.
  struct Query {
    Statement Translated;
    sqlite3_stmt* Prepared = nullptr;
    std::shared_ptr<const TableDef> Columns;
  };
  const Query& Remember(std::string_view text, bool withRowid);

  // The definition of a table, nothing if there is none of that name in whatever case.
  std::shared_ptr<const TableDef> Find(std::string_view table);
  // The same, of a table that must be there. Throws 3078.
  std::shared_ptr<const TableDef> Require(std::string_view table);
  // All tables in the order of their creation.
  std::vector<std::shared_ptr<const TableDef>> FindAll();
  void Forget(std::string_view table);

  // Keeps what is appended to a table, which has neither rows nor its key yet, in memory. As soon
  // as a statement asks for the table it is filled and gets its key; a late key it gets as soon as
  // a statement adds rows or changes the key's fields.
  void Hold(const TableDef& table);
  // A table in memory, by its name or, which takes less, by the definition it is held by; nothing
  // if it is a table like any other.
  HeldRows* Held(std::string_view table);
  HeldRows* Held(const std::shared_ptr<const TableDef>& table);
  void WriteHeld();  // with all keys

  // From now on a field whose texts are asked for whatever their case gets an index with the first
  // question: for a file that is thrown away later.
  void IndexNames() { indexesNames_ = true; }
  void BeforeQuestionFor(std::string_view table, std::string_view field);
  std::vector<HeldRows> TakeHeld();

  // The numbers of a table's unique IDs; those that stand in its rows are never drawn.
  UniqueNumbers& UniqueIDs(const TableDef& table);
  void DrawUniqueIDsFrom(UniqueNumbers::Source source) { idSource_ = std::move(source); }

  // Runs all statements of a text and drops their rows.
  void RunAll(const std::string& statements);

  // Appends rows to a table with the same fields.
  void InsertRows(const HeldRows& rows, const TableDef& table);

  // The columns of a statement as a definition with nothing but their names.
  static std::shared_ptr<const TableDef> ColumnsOf(sqlite3_stmt* statement);

  // What the last failed call means in the engine's terms.
  Failure LastFailure() const;

  // Fails with 3420 if the file was closed.
  void RequireOpen() const;

 private:
  bool Exists(const std::string& table) const;
  std::shared_ptr<const TableDef> ReadDefinition(const std::string& name, const std::string& sql);
  static int NoteTable(void* self, int action, const char* first, const char* second,
                       const char* database, const char* trigger);
  bool IsKeyField(const char* table, const char* field) const;
  void WriteAskedFor();
  void WriteTable(std::string_view table);
  void MakeLateKey(std::string_view table);

  sqlite3* handle_;
  std::filesystem::path path_;
  std::vector<HeldRows> held_;
  std::vector<TableDef> lateKeys_;  // not made yet
  bool indexesNames_ = false;
  std::set<std::string> nameIndexes_;  // that were made, by table and field
  struct Request {
    std::string Table;
    bool ChangesKeys;
  };
  std::vector<Request> askedFor_;  // by the statement just prepared
  std::unordered_map<std::string, PreparedStatement> statements_;
  std::unordered_map<std::string, Query, TextHash, std::equal_to<>> queries_;  // as they stand
  // With the numbers of their rows.
  std::unordered_map<std::string, Query, TextHash, std::equal_to<>> editableQueries_;
  std::unordered_map<std::string, std::shared_ptr<const TableDef>> tables_;
  UniqueNumbers::Source idSource_ = UniqueNumbers::DrawAtRandom;
  std::unordered_map<std::string, UniqueNumbers> uniqueIDs_;
};

// Binds one parameter, counted from 1, or all of them in their order.
// A text that is bound to stay must outlive the statement's run.
enum class BoundText { Copied, Stays };
void Bind(sqlite3_stmt* statement, int parameter, const Value& value,
          BoundText text = BoundText::Copied);
void BindAll(sqlite3_stmt* statement, const std::vector<Value>& values);

// The same of one content; its text must outlive the statement's run.
void BindCell(sqlite3_stmt* statement, int parameter, const HeldRows::Cell& cell);

// Goes to the next row; false if there is none or it cannot be read. Throws std::bad_alloc if the
// engine has no memory for it.
bool StepsToRow(sqlite3_stmt* statement);

// A column of the current row, counted from 0; its text is good until the next row. Throws
// std::bad_alloc if the engine has no memory for it.
HeldRows::Cell Column(sqlite3_stmt* statement, int column);

// The same as a text of its own: numbers in plain decimal, Null as nothing.
std::string ColumnText(sqlite3_stmt* statement, int column);

}  // namespace orrerix
