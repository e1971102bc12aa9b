// SPDX-License-Identifier: MIT
#include "db/appender.h"

#include "db/connection.h"

namespace orrerix {

void Appender::Set(std::size_t field, std::string_view text) {
  if (statement_ == nullptr) return;
  sqlite3_bind_text64(statement_, static_cast<int>(field) + 1, text.data(), text.size(),
                      SQLITE_STATIC, SQLITE_UTF8);
}

void Appender::Set(std::size_t field, std::int64_t number) {
  if (statement_ == nullptr) return;
  sqlite3_bind_int64(statement_, static_cast<int>(field) + 1, number);
}

void Appender::Append() {
  if (statement_ == nullptr) return;
  const StatementLoan loan(statement_);
  if (sqlite3_step(statement_) == SQLITE_DONE) return;
  sink_->Fail(connection_->LastFailure());
}

}  // namespace orrerix
