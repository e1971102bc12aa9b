// SPDX-License-Identifier: MIT
// One open database file under the engine's own terms.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "db/failure.h"
#include "db/rows/appender.h"
#include "db/rows/held_rows.h"
#include "db/rows/recordset.h"
#include "db/rows/stored_table.h"
#include "db/rows/table_def.h"
#include "db/rows/unique_numbers.h"
#include "db/values/value.h"

struct sqlite3;

namespace orrerix {

class Connection;

// Owns a connection. Every operation that can fail hands its failure to the sink of the routine it
// works for, and then has not happened. A closed database fails each operation.
class Database {
 public:
  Database() = default;

  bool IsOpen() const;
  const std::filesystem::path& Path() const;

  // Commits an open transaction and lets go of the file. Recordsets made before stay readable; rows
  // that are kept in memory are lost.
  void Close();

  // All tables in the order of their creation.
  std::vector<TableDef> TableDefs(FailureSink& sink) const;
  bool HasTable(std::string_view name) const;
  bool HasField(std::string_view table, std::string_view field) const;

  // Makes a table with its key. Fails with 3010 if one of that name, in whatever case, is there.
  void CreateTable(FailureSink& sink, const TableDef& table);

  // Makes many tables, each filled by `fill`, which gets its place in the list, in the time that
  // their number takes: the engine looks slowly for one table of many, so each is filled while few
  // are known. What fails is one failure each, and such a table is not filled. A transaction must
  // be open; if it is not committed no table stays.
  void CreateTables(FailureSink& sink, std::span<const TableDef> tables,
                    const std::function<void(std::size_t)>& fill);

  // Makes a table whose rows, as recordsets append them, are kept in memory until a statement asks
  // for the table: writing them together costs less. It obeys its key all the same. Fails like
  // CreateTable.
  void CreateHeldTable(FailureSink& sink, const TableDef& table);

  // Writes the rows that are kept in memory, or hands them over: such a table stays empty in the
  // file and without its key.
  void WriteHeldRows(FailureSink& sink);
  std::vector<HeldRows> TakeHeldRows();

  // Appends rows that were kept in memory to a table with the same fields.
  void Append(FailureSink& sink, const HeldRows& rows, const TableDef& table);

  // Opens the rows of a query text (see query_text.h for what may stand in it). A failed query
  // gives a recordset without rows.
  Recordset OpenRecordset(FailureSink& sink, std::string_view text,
                          std::initializer_list<Value> values = {},
                          RecordsetType type = RecordsetType::Snapshot);

  // Opens all rows of a table, or those of the given numbers in their order. A table in memory
  // stays there.
  Recordset OpenRows(FailureSink& sink, std::string_view table,
                     RecordsetType type = RecordsetType::Dynaset);
  Recordset OpenRows(FailureSink& sink, std::string_view table, std::vector<std::int64_t> numbers,
                     RecordsetType type = RecordsetType::Dynaset);

  // Opens the rows of a table whose texts in these fields, one or two, are the given ones, whatever
  // their case. A table in memory stays there.
  struct NamedField {
    std::string_view Field;
    std::string_view Text;
  };
  Recordset OpenRowsNamed(FailureSink& sink, std::string_view table, NamedField name,
                          std::optional<NamedField> other = std::nullopt,
                          RecordsetType type = RecordsetType::Snapshot);

  // Shows `visit` the number and the content of some fields of each row, in stored order. Texts are
  // good until it returns. A table in memory stays there. False if the rows could not be read.
  using RowVisitor = std::function<void(std::int64_t, std::span<const HeldRows::Cell>)>;
  bool VisitRows(FailureSink& sink, std::string_view table,
                 std::initializer_list<std::string_view> fields, const RowVisitor& visit);

  // What a field holds in the first row whose `keyField`, a number, has this value; nothing if
  // there is no such row or the question fails. A table in memory that has this key stays there.
  std::optional<Value> LookUp(FailureSink& sink, std::string_view table, std::string_view field,
                              std::string_view keyField, std::int64_t key);

  // Number of a table's rows; nothing if it cannot be read.
  std::optional<std::int64_t> RowCount(FailureSink& sink, std::string_view table) const;

  // Reads a whole table in stored order. Fails with 3078 if there is none of that name; it is then
  // without fields.
  StoredTable ReadTable(FailureSink& sink, std::string_view table) const;

  // Opens a table to append to; it shows no rows.
  Recordset OpenTable(FailureSink& sink, std::string_view table);

  // Opens a table for so many rows that need no tests; all its fields in the order of the
  // definition.
  Appender OpenAppender(FailureSink& sink, const TableDef& table, std::size_t rowCount);

  // Runs a statement that gives no rows.
  void Execute(FailureSink& sink, std::string_view text, std::initializer_list<Value> values = {});

  // Attaches a second file, out of whose tables those of the same names here can be filled.
  void Attach(FailureSink& sink, const std::filesystem::path& path);
  void CopyFromAttached(FailureSink& sink, std::string_view table);

  // Length of the longest text in each Text field of a table of the attached file, characters; 0
  // for all other fields.
  std::vector<std::size_t> LongestAttachedTexts(FailureSink& sink, const TableDef& table) const;

  // Runs the engine's native statement, as it stands: indexes, pragmas and the like. False if it
  // failed.
  bool ExecuteNative(FailureSink& sink, const std::string& statement);

  // Where the numbers of unique IDs come from; tests hand in their own.
  void DrawUniqueIDsFrom(UniqueNumbers::Source source);

  void Begin(FailureSink& sink);
  // False if it failed: the rows since Begin are then not in the file.
  bool Commit(FailureSink& sink);

  // Rows that were inserted, changed or deleted since the file was opened.
  std::int64_t ChangedRows() const;

  // Pages that hold nothing and could be given back.
  std::int64_t FreePages(FailureSink& sink) const;

  // SQLite's own handle, for the files of this folder.
  sqlite3* Native() const;

  // A database that is already connected; made by DBEngine.
  explicit Database(std::shared_ptr<Connection> connection);

 private:
  void RequireOpen() const;
  void MakeTable(const TableDef& table);

  std::shared_ptr<Connection> connection_;
};

}  // namespace orrerix
