// SPDX-License-Identifier: MIT
#include "db/schema_aside.h"

namespace orrerix {

void SchemaAside::Take(Connection& connection) {
  connection.RunAll("PRAGMA writable_schema = ON");
  const PreparedStatement rows = connection.PrepareOnce(
      "SELECT rowid, type, name, tbl_name, rootpage, sql FROM main.sqlite_master ORDER BY rowid");
  std::size_t taken = 0;
  for (; StepsToRow(rows.get()); ++taken) {
    entries_.push_back({sqlite3_column_int64(rows.get(), 0), ColumnText(rows.get(), 1),
                        ColumnText(rows.get(), 2), ColumnText(rows.get(), 3),
                        sqlite3_column_int64(rows.get(), 4),
                        HeldRows::ValueOf(Column(rows.get(), 5))});
  }
  sqlite3_reset(rows.get());
  // The last row stays: new ones are numbered after it.
  if (taken > 1) {
    entries_.pop_back();
    connection.RunAll("DELETE FROM main.sqlite_master WHERE rowid < " +
                      std::to_string(entries_.back().RowID + 1));
  } else {
    entries_.resize(entries_.size() - taken);
  }
  // Forgets the tables that were taken out: the engine walks over those it knows, too.
  connection.RunAll("PRAGMA writable_schema = RESET");
}

void SchemaAside::PutBack(Connection& connection) {
  connection.RunAll("PRAGMA writable_schema = ON");
  const PreparedStatement insert = connection.PrepareOnce(
      "INSERT INTO main.sqlite_master (rowid, type, name, tbl_name, rootpage, sql) "
      "VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
  for (const Entry& entry : entries_) {
    StatementLoan row(insert.get());
    Bind(row.get(), 1, entry.RowID);
    Bind(row.get(), 2, entry.Type);
    Bind(row.get(), 3, entry.Name);
    Bind(row.get(), 4, entry.Table);
    Bind(row.get(), 5, entry.RootPage);
    Bind(row.get(), 6, entry.Sql);
    if (sqlite3_step(row.get()) != SQLITE_DONE) throw connection.LastFailure();
  }
  entries_.clear();
  connection.RunAll("PRAGMA writable_schema = RESET");
}

}  // namespace orrerix
