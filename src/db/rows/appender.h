// SPDX-License-Identifier: MIT
// Appends many rows of values that are known to fit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "db/failure.h"
#include "db/rows/table_def.h"

namespace orrerix {

class Connection;
class RowInserter;

// Takes as many rows as it was opened for. Texts must live until the last of them; fields that were
// not set are Null, and a unique ID is drawn for each row. Nothing is tested but what the engine
// tests itself.
class Appender {
 public:
  // Appends nothing.
  Appender();
  Appender(FailureSink& sink, std::shared_ptr<Connection> connection, const TableDef& table,
           std::size_t rowCount);
  Appender(Appender&&) noexcept;
  Appender& operator=(Appender&&) noexcept;
  ~Appender();

  // Sets a field of the row to come, counted from 0.
  void Set(std::size_t field, std::string_view text);
  void Set(std::size_t field, std::int64_t number);

  // Ends the row. Rows are written several at a time; those that fail together go to the sink as
  // one failure and are dropped.
  void Append();

 private:
  FailureSink* sink_ = nullptr;
  std::shared_ptr<Connection> connection_;
  std::unique_ptr<RowInserter> inserter_;
};

}  // namespace orrerix
