// SPDX-License-Identifier: MIT
// Appends many rows of values that are known to fit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "db/failure.h"

struct sqlite3_stmt;

namespace orrerix {

class Connection;

// Holds one prepared statement. Texts must live until Append; fields that were not set are Null.
// Nothing is tested but what the engine tests itself.
class Appender {
 public:
  Appender() = default;
  Appender(FailureSink& sink, std::shared_ptr<Connection> connection, sqlite3_stmt* statement)
      : sink_(&sink), connection_(std::move(connection)), statement_(statement) {}

  // Sets a field of the row to come, counted from 0.
  void Set(std::size_t field, std::string_view text);
  void Set(std::size_t field, std::int64_t number);

  // Writes the row; a failed one goes to the sink and is dropped.
  void Append();

 private:
  FailureSink* sink_ = nullptr;
  std::shared_ptr<Connection> connection_;
  sqlite3_stmt* statement_ = nullptr;
};

}  // namespace orrerix
