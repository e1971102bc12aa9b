// SPDX-License-Identifier: MIT
#include "db/rows/row_inserter.h"

#include <algorithm>

namespace orrerix {
namespace {

// More rows a statement are no faster, and long statements take longer to prepare.
constexpr std::size_t kMostRows = 16;
constexpr std::size_t kMostParameters = 256;
constexpr std::size_t kFewestStatements = 6;

std::size_t RowsOfMany(std::size_t fields, std::size_t rowCount) {
  const std::size_t rows = std::min(kMostRows, kMostParameters / fields);
  return rowCount >= kFewestStatements * rows ? rows : 0;
}

}  // namespace

RowInserter::RowInserter(Connection& connection, const TableDef& table, std::size_t rowCount,
                         RowsAre rows)
    : connection_(connection),
      idField_(table.UniqueIDField()),
      rows_(rows),
      fields_(table.Fields.size()),
      rowsOfMany_(RowsOfMany(fields_, rowCount)),
      rowsLeft_(rowCount),
      one_(connection.PrepareOnce(InsertStatement(table))) {
  if (rowsOfMany_ > 1) {
    many_ = connection.PrepareOnce(InsertStatement(table, rowsOfMany_));
  }
  if (idField_) ids_ = &connection.UniqueIDs(table);
  BeginStatement();
}

void RowInserter::BeginStatement() {
  row_ = 0;
  statement_ = many_ != nullptr && rowsLeft_ >= rowsOfMany_ ? many_.get() : one_.get();
}

void RowInserter::Set(std::size_t field, std::string_view text) {
  sqlite3_bind_text64(statement_, Parameter(field), text.data(), text.size(), SQLITE_STATIC,
                      SQLITE_UTF8);
}

void RowInserter::Set(std::size_t field, std::int64_t whole) {
  sqlite3_bind_int64(statement_, Parameter(field), whole);
}

void RowInserter::Set(std::size_t field, double real) {
  sqlite3_bind_double(statement_, Parameter(field), real);
}

void RowInserter::Set(std::size_t field, Null) {
  sqlite3_bind_null(statement_, Parameter(field));
}

void RowInserter::EndRow() {
  if (ids_ != nullptr) Set(*idField_, ids_->Draw());
  ++row_;
  if (statement_ == many_.get() && row_ < rowsOfMany_) return;
  rowsLeft_ -= std::min(rowsLeft_, row_);
  const StatementLoan loan(statement_, rows_ == RowsAre::Sparse);
  BeginStatement();
  if (sqlite3_step(loan.get()) != SQLITE_DONE) throw connection_.LastFailure();
}

}  // namespace orrerix
