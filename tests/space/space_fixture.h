// SPDX-License-Identifier: MIT
// One system whose square is 200,000 units wide (scale 4 / 3), so that a unit is 1 / 200,000 of it.
#pragma once

#include <string>

#include "db/schema.h"
#include "space/read_space.h"
#include "support/temp_folder.h"
#include "support/universe_fixture.h"

namespace orrerix {

class SpaceFixture : public UniverseFixture {
 protected:
  using Texts = std::initializer_list<std::pair<std::string_view, std::string_view>>;

  SpaceFixture() {
    db.CreateTable(mustWork, JumpNodesTable());
    System("Li01", "3, 4", "1.3333333333333333");
  }

  void System(const std::string& nickname, std::string_view cell, std::string_view scale = "") {
    Add("Systems", {{"nickname", nickname},
                    {"realname", "The " + nickname},
                    {"pos", cell},
                    {"navmapscale", scale},
                    {"file", "Systems\\" + nickname + "\\" + nickname + ".ini"}});
  }

  // A row of a section's table in the file of a system. The table has the fields of its first row.
  void Section(const std::string& table, Texts fields, const std::string& system = "Li01") {
    if (!db.HasTable(table)) {
      TableDef definition{table, {}, {}};
      definition.Fields.push_back({"SourceFileName", FieldType::Memo});
      for (const auto& [name, text] : fields) {
        definition.Fields.push_back({std::string(name), FieldType::Memo});
      }
      db.CreateTable(mustWork, definition);
    }
    Recordset rows = db.OpenTable(mustWork, table);
    rows.AddNew();
    rows["SourceFileName"] = "\\data\\universe\\systems\\" + system + "\\" + system + ".ini";
    for (const auto& [name, text] : fields) {
      if (!text.empty()) rows[name] = text;
    }
    rows.Update();
  }

  Space Read() {
    const SourceTables tables(mustWork, db);
    return ReadSpace(tables, GameFolder(folder.Path().string()), [] { return false; });
  }

  TempFolder folder;
};

}  // namespace orrerix
