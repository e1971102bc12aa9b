// SPDX-License-Identifier: MIT
// A page of the atlas on a small universe.
#pragma once

#include <QHeaderView>
#include <QLabel>

#include <gmock/gmock.h>

#include "../../form_fixture.h"
#include "../fake_workbench_host.h"
#include "db/engine/engine.h"
#include "db/schema.h"
#include "forms/workbench/atlas/atlas_page.h"
#include "support/failure_sinks.h"

namespace orrerix {

// A main form that opens the universe file that the page reads.
class AtlasHost : public FakeWorkbenchHost {
 public:
  using FakeWorkbenchHost::FakeWorkbenchHost;
  Universe OpenUniverse(Routine& routine) override {
    file_ = DBEngine::OpenDatabase(routine, UniverseFile());
    return {universeLog_, file_};
  }

 private:
  FakeMessageBoxes boxes_;
  ErrorLog universeLog_{boxes_, {1, 0, 0}};
  Database file_;
};

// Three shields, of which dock anvil_dock sells the first, and a ship that takes two of them.
class AtlasPageTest : public FormFixture {
 protected:
  using Fields = std::initializer_list<std::pair<std::string_view, Value>>;

  AtlasPageTest() {
    file_ = DBEngine::CreateDatabase(mustWork_, UniverseFile(), JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file_.CreateTable(mustWork_, table);
    file_.CreateTable(mustWork_, DockObjectsTable());
    TableDef shields{"shieldgenerator", {}, {}};
    for (const char* field : {"nickname", "hp_type", "max_capacity", "regeneration_rate"}) {
      shields.Fields.push_back({field, FieldType::Memo});
    }
    file_.CreateTable(mustWork_, shields);
    Shield("shield_a", "hp_fighter_1", "1000", "10");
    Shield("shield_b", "hp_fighter_2", "3000", "20");
    Shield("shield_c", "hp_fighter_1", "2000", "40");
    Add("Goods", {{"nickname", "shield_a"},
                  {"equipment", "shield_a"},
                  {"category", "equipment"},
                  {"price", 500}});
    Add("Systems", {{"nickname", "li01"}, {"realname", "Liberty"}, {"pos", "3, 4"}});
    Add("Objects", {{"nickname", "anvil_dock"},
                    {"realname", "Anvil"},
                    {"dock_with", "anvil"},
                    {"sys_nick", "li01"}});
    Add("DockObjects", {{"nickname", "anvil_dock"}, {"PosX", 0.5}, {"PosY", 0.5}});
    Add("BaseGoods", {{"Base", "anvil"}, {"GoodNick", "shield_a"}, {"val5", 0}, {"val6", 1.0}});
    Add("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}});
    Add("Ships_Hardpoints",
        {{"NickName", "li_fighter"}, {"EquipType", "hp_fighter_1"}, {"HardPoints", "HpShield01"}});
  }
  void Add(std::string_view table, Fields fields) {
    Recordset rows = file_.OpenTable(mustWork_, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }
  void Shield(const char* nickname, const char* type, const char* capacity, const char* rate) {
    Add("shieldgenerator", {{"nickname", nickname},
                            {"hp_type", type},
                            {"max_capacity", capacity},
                            {"regeneration_rate", rate}});
  }

  // Writes the file, and shows the table of shields.
  void Open(AtlasPage& shown, const char* title = "Shields") {
    file_.Close();
    shown.Enter();
    ASSERT_TRUE(WaitUntil([&] { return Table(shown).model()->columnCount() > 0; }));
    ChooseTable(shown, title);
  }
  void Remove() {
    file_.Close();
    std::filesystem::remove(UniverseFile());
  }
  static void ChooseTable(AtlasPage& shown, const char* title) {
    auto& list = Find<QListWidget>(shown, "AtlasTables");
    list.setCurrentItem(list.findItems(title, Qt::MatchExactly).front());
  }
  static QTableView& Table(const AtlasPage& shown) { return Find<QTableView>(shown, "AtlasTable"); }
  std::vector<std::string> Nicknames(const AtlasPage& shown) {
    std::vector<std::string> names;
    const auto* model = Table(shown).model();
    for (int row = 0; row < model->rowCount(); ++row) {
      names.push_back(model->index(row, kNickname).data().toString().toStdString());
    }
    return names;
  }
  static std::string State(const AtlasPage& shown) {
    return Find<QLabel>(shown, "State").text().toStdString();
  }
  static void Type(AtlasPage& shown, const char* edit, const char* text) {
    Find<QLineEdit>(shown, edit).setText(text);
  }

  static constexpr int kNickname = 1;
  static constexpr int kCapacity = 4;
  AtlasHost host{log, folder.Path()};
  QSettings settings{QString::fromStdString((folder.Path() / "tools.ini").string()),
                     QSettings::IniFormat};
  AtlasPage page{host, choice, settings};

 private:
  FailTest mustWork_;
  Database file_;
};

}  // namespace orrerix
