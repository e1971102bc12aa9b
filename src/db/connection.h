// SPDX-License-Identifier: MIT
// SQLite's handle with what the layer remembers of it. Used inside this folder only.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <sqlite3.h>

#include "db/failure.h"
#include "db/table_def.h"
#include "db/value.h"

namespace orrerix {

struct StatementDeleter {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using PreparedStatement = std::unique_ptr<sqlite3_stmt, StatementDeleter>;

// A prepared statement on loan: it is reset when the loan ends.
class StatementLoan {
 public:
  explicit StatementLoan(sqlite3_stmt* statement) : statement_(statement) {}
  StatementLoan(const StatementLoan&) = delete;
  StatementLoan& operator=(const StatementLoan&) = delete;
  ~StatementLoan() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }
  sqlite3_stmt* get() const { return statement_; }

 private:
  sqlite3_stmt* statement_;
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

  // The statement for a text, prepared once. Throws a Failure if the text is no statement.
  sqlite3_stmt* Prepare(const std::string& sql);

  // The definition of a table, nothing if there is none of that name in whatever case.
  std::shared_ptr<const TableDef> Find(std::string_view table);
  void Forget(std::string_view table);

  // What the last failed call means in the engine's terms.
  Failure LastFailure() const;

  // Fails with 3420 if the file was closed.
  void RequireOpen() const;

 private:
  sqlite3* handle_;
  std::filesystem::path path_;
  std::unordered_map<std::string, PreparedStatement> statements_;
  std::map<std::string, std::shared_ptr<const TableDef>, std::less<>> tables_;
};

// Binds one parameter, counted from 1, or all of them in their order.
void Bind(sqlite3_stmt* statement, int parameter, const Value& value);
void BindAll(sqlite3_stmt* statement, const std::vector<Value>& values);

// A column of the current row, counted from 0.
Value Column(sqlite3_stmt* statement, int column);

}  // namespace orrerix
