// SPDX-License-Identifier: MIT
// Small universes for the tables of the atlas.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "atlas/registry.h"
#include "support/universe_fixture.h"

namespace orrerix {

class AtlasFixture : public UniverseFixture {
 protected:
  using Texts = std::initializer_list<std::pair<std::string_view, std::string_view>>;
  using AtlasRow = std::map<std::string, Value>;

  AtlasFixture() { db.CreateTable(mustWork, DockObjectsTable()); }

  // A row of a section's table, whose fields are all texts, Null where one is empty. The table has
  // the fields of its first row.
  void Section(const std::string& table, Texts fields) {
    if (!db.HasTable(table)) {
      TableDef definition{table, {}, {}};
      for (const auto& [name, text] : fields) {
        definition.Fields.push_back({std::string(name), FieldType::Memo});
      }
      db.CreateTable(mustWork, definition);
    }
    Recordset rows = db.OpenTable(mustWork, table);
    rows.AddNew();
    for (const auto& [name, text] : fields) {
      if (!text.empty()) rows[name] = text;
    }
    rows.Update();
  }

  void System(std::string_view nickname, std::string_view name) {
    Add("Systems", {{"nickname", nickname}, {"realname", name}, {"pos", "3, 4"}});
  }

  // A dock "<base>_dock" of a base called as its nickname.
  void Base(const std::string& base, std::string_view system = "Li01",
            std::string_view owner = "navy") {
    Dock(base + "_dock", base, system, owner);
  }
  void Dock(std::string_view dock, std::string_view base, std::string_view system = "Li01",
            std::string_view owner = "navy", std::string_view archetype = "") {
    Add("Objects", {{"nickname", dock},
                    {"realname", base},
                    {"dock_with", base},
                    {"sys_nick", system},
                    {"reputation", owner},
                    {"archetype", archetype}});
    Add("DockObjects", {{"nickname", dock}, {"PosX", 0.5}, {"PosY", 0.5}});
  }

  void Good(std::string_view nickname, int price, std::string_view category = "equipment") {
    Add("Goods", {{"nickname", nickname},
                  {"equipment", nickname},
                  {"price", price},
                  {"category", category}});
  }
  // A market line; only fifth number 0 sells.
  void Line(std::string_view base, std::string_view good, double fifth = 0) {
    Add("BaseGoods", {{"Base", base}, {"GoodNick", good}, {"val5", fifth}, {"val6", 1.0}});
  }

  // The rows of a table of the atlas, by the IDs of its columns.
  std::vector<AtlasRow> Atlas(std::string_view id) {
    const AtlasTable& table = *FindAtlasTable(id);
    const AtlasSource source(mustWork, db);
    const StoredTable content = ReadAtlasTable(table, source);
    std::vector<AtlasRow> rows;
    for (std::size_t i = 0; i < content.RowCount(); ++i) {
      AtlasRow& row = rows.emplace_back();
      for (std::size_t column = 0; column < table.Columns.size(); ++column) {
        row[table.Columns[column].Id] = content.Row(i)[column];
      }
    }
    return rows;
  }
  AtlasRow TheOnly(std::string_view id) {
    const auto rows = Atlas(id);
    EXPECT_EQ(rows.size(), 1u);
    return rows.empty() ? AtlasRow() : rows.front();
  }
  std::vector<std::string> Nicknames(std::string_view id) {
    std::vector<std::string> nicknames;
    for (AtlasRow& row : Atlas(id)) nicknames.push_back(row["nickname"].Text());
    return nicknames;
  }
};

// Checks some fields of a row.
inline void ExpectFields(const std::map<std::string, Value>& row,
                         const std::map<std::string, Value>& expected) {
  for (const auto& [id, value] : expected) {
    ASSERT_TRUE(row.contains(id)) << id;
    EXPECT_EQ(row.at(id), value) << id << " is '" << row.at(id).Text() << "'";
  }
}

}  // namespace orrerix
