// SPDX-License-Identifier: MIT
#include "db/rows/appender.h"

#include "db/rows/row_inserter.h"

namespace orrerix {

Appender::Appender() = default;
Appender::Appender(Appender&&) noexcept = default;
Appender& Appender::operator=(Appender&&) noexcept = default;
Appender::~Appender() = default;

Appender::Appender(FailureSink& sink, std::shared_ptr<Connection> connection, const TableDef& table,
                   std::size_t rowCount)
    : sink_(&sink),
      connection_(std::move(connection)),
      inserter_(std::make_unique<RowInserter>(*connection_, table, rowCount, RowsAre::Sparse)) {}

void Appender::Set(std::size_t field, std::string_view text) {
  if (inserter_ != nullptr) inserter_->Set(field, text);
}

void Appender::Set(std::size_t field, std::int64_t number) {
  if (inserter_ != nullptr) inserter_->Set(field, number);
}

void Appender::Append() {
  if (inserter_ == nullptr) return;
  std::optional<Failure> failed;
  try {
    inserter_->EndRow();
  } catch (...) {
    failed = CaughtFailure();
  }
  if (failed) sink_->Fail(*failed);
}

}  // namespace orrerix
