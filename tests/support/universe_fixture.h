// SPDX-License-Identifier: MIT
// A universe of a few rows in memory, with short builders for what stages and readers need.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "import/import_state.h"
#include "shell/error_log.h"
#include "shell/version.h"
#include "support/failure_sinks.h"
#include "support/fake_host.h"

namespace orrerix {

class UniverseFixture : public ::testing::Test {
 protected:
  using Fields = std::initializer_list<std::pair<std::string_view, Value>>;
  using Row = std::map<std::string, Value>;

  UniverseFixture() {
    db = DBEngine::CreateInMemory(mustWork);
    for (const TableDef& table : FixedTables()) db.CreateTable(mustWork, table);
  }

  // Adds a row to a table; fields that are not named stay Null.
  void Add(std::string_view table, Fields fields) {
    Recordset rows = db.OpenTable(mustWork, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }

  void Name(int number, std::string_view text) {
    Add("ids_name", {{"ID", number}, {"Name", text}, {"DLL", "names.dll"}});
  }

  // All rows of a table in the order of their insertion.
  std::vector<Row> Rows(std::string_view table) {
    std::vector<Row> result;
    Recordset rows = db.OpenRecordset(mustWork, "SELECT * FROM [" + std::string(table) + "]");
    std::vector<std::string> names;
    for (const TableDef& definition : db.TableDefs(mustWork)) {
      if (definition.Name != table) continue;
      for (const Field& field : definition.Fields) names.push_back(field.Name);
    }
    for (; !rows.AtEnd(); rows.MoveNext()) {
      Row row;
      for (const std::string& name : names) row[name] = rows[name].Get();
      result.push_back(std::move(row));
    }
    return result;
  }

  // One column of all rows as texts.
  std::vector<std::string> Column(std::string_view table, const std::string& field) {
    std::vector<std::string> texts;
    for (Row& row : Rows(table)) texts.push_back(row[field].Text());
    return texts;
  }

  const std::vector<std::string>& DataLog() const { return log.DataLines(); }

  FailTest mustWork;
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  FakeHost host;
  Database db;
  Universe universe{log, db};
};

}  // namespace orrerix
