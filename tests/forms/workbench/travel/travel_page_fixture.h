// SPDX-License-Identifier: MIT
// A universe file of a few docks, for the pages of ways and trades.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "../../form_fixture.h"
#include "../fake_workbench_host.h"
#include "db/engine/engine.h"
#include "db/schema.h"
#include "forms/workbench/travel/travel_page.h"
#include "support/failure_sinks.h"

namespace orrerix {

// Docks anvil and brook, 3000 units apart: 5 s launch, 5 + 3000 / 300 = 15 s flight, 10 s docking.
// Anvil sells gold that brook takes, brook sells iron that anvil takes. Brook belongs to rogues.
class TravelPageFixture : public FormFixture {
 protected:
  using Fields = std::initializer_list<std::pair<std::string_view, Value>>;

  TravelPageFixture() {
    file_ = DBEngine::CreateDatabase(mustWork_, UniverseFile(), JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) file_.CreateTable(mustWork_, table);
    file_.CreateTable(mustWork_, DockObjectsTable());
    Add("Systems", {{"nickname", "li01"}, {"realname", "Liberty"}, {"pos", "3, 4"}});
    Add("Groups", {{"NickName", "rogues"}, {"Name", "Rogues"}});
    Dock("anvil", "li01", "0, 0, 0", "");
    Dock("brook", "li01", "3000, 0, 0", "rogues");
    Price("anvil", "gold", 100, 1);
    Price("brook", "gold", 130, 2);
    Price("brook", "iron", 50, 1);
    Price("anvil", "iron", 60, 2);
  }

  void RemoveUniverseFile() {
    file_ = Database();
    std::filesystem::remove(UniverseFile());
  }

  void Add(std::string_view table, Fields fields) {
    Recordset rows = file_.OpenTable(mustWork_, table);
    rows.AddNew();
    for (const auto& [name, value] : fields) rows[name] = value;
    rows.Update();
  }
  void Dock(std::string_view nickname, std::string_view system, std::string_view pos,
            std::string_view owner) {
    Add("Objects", {{"nickname", nickname},
                    {"realname", nickname},
                    {"sys_nick", system},
                    {"pos", pos},
                    {"dock_with", std::string(nickname) + "_base"}});
    Add("DockObjects", {{"nickname", nickname}, {"realname", nickname}, {"owner", owner}});
  }
  void Price(std::string_view dock, std::string_view good, int price, int sell) {
    Add("BaseGoodPrices", {{"SysNick", "li01"},
                           {"BaseNick", dock},
                           {"GoodNick", good},
                           {"Price", price},
                           {"Sell", sell}});
  }

  // Writes the file and brings the page up with all that it offers.
  void Open(TravelPage& page) {
    file_.Close();
    page.Enter();
    ASSERT_TRUE(WaitUntil([&] { return Find<QComboBox>(page, "From").count() > 0; }));
  }

  // Has the page work, and waits for the answer.
  void Search(TravelPage& page) {
    Find<QPushButton>(page, "Find").click();
    ASSERT_TRUE(WaitUntil([&] { return !Find(page, "Cancel").isEnabled(); }));
  }

  static std::vector<std::string> RowOf(const QTableView& table, int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
      texts.push_back(table.model()->index(row, column).data().toString().toStdString());
    }
    return texts;
  }
  static std::string State(const TravelPage& page) {
    return Find<QLabel>(page, "State").text().toStdString();
  }

  FakeWorkbenchHost host{log, folder.Path()};
  QSettings settings{QString::fromStdString((folder.Path() / "tools.ini").string()),
                     QSettings::IniFormat};
  TradeWorlds worlds;
  TravelParts travel{host, choice, settings, worlds};

 private:
  FailTest mustWork_;
  Database file_;
};

}  // namespace orrerix
