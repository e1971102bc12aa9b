// SPDX-License-Identifier: MIT
// Keeps the schema's own table short while many tables are made. Used inside this folder only.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "db/engine/connection.h"

namespace orrerix {

// After each CREATE TABLE the engine reads all rows of its schema table, so that making n tables
// takes n x n steps. Taken rows stand for tables that the engine does not know until they are put
// back. Take and PutBack belong into one transaction and throw their Failure.
class SchemaAside {
 public:
  void Take(Connection& connection);
  void PutBack(Connection& connection);

 private:
  struct Entry {
    std::int64_t RowID;
    std::string Type;
    std::string Name;
    std::string Table;
    std::int64_t RootPage;
    Value Sql;
  };
  std::vector<Entry> entries_;
};

}  // namespace orrerix
