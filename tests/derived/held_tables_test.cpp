// SPDX-License-Identifier: MIT
// The stages give the same rows from tables in memory and from tables in the file.
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "derived/stages.h"
#include "derived/universe_builders.h"

namespace orrerix {
namespace {

class HeldTables : public DerivedFixture {
 protected:
  // All rows of the tables that stages write or change, without the numbers drawn for them.
  std::vector<std::string> RowsAfterStages(bool held) {
    db = DBEngine::CreateInMemory(mustWork);
    for (const TableDef& table : FixedTables()) {
      held ? db.CreateHeldTable(mustWork, table) : db.CreateTable(mustWork, table);
    }
    FillTables();
    for (const DerivedStage& stage : DerivedStages()) stage.Calculate(universe, host);
    std::vector<std::string> lines;
    for (const char* table : {"Groups", "JumpNodes", "TradeLanes", "DockObjects", "BaseGoodPrices",
                              "Ships", "Packages", "Objects"}) {
      for (const Row& row : Rows(table)) {
        std::string line = table;
        for (const auto& [field, value] : row) {
          if (field != "ID") line += ";" + field + "=" + (value.IsNull() ? "Null" : value.Text());
        }
        lines.push_back(line);
      }
    }
    return lines;
  }

  void FillTables() {
    System("Li01", "7, 4", "1.5");
    System("Li02", "8, 4");
    Object("hole_b",
           {.System = "Li02", .JumpEffect = "jump_effect_hole", .Goto = "Li01, Hole_A, x"});
    Object("hole_a",
           {.System = "Li01", .JumpEffect = "Jump_Effect_Hole", .Goto = "Li02, Hole_B, x"});
    Object("ring_1", {.NextRing = "RING_2", .SpaceName = "Start"});
    Object("ring_2", {.Pos = "7, 8, 9", .PrevRing = "ring_1", .SpaceName = "End"});
    Object("li01_01", {.RealName = "Pittsburgh"});
    Object("li01_ring", {.DockWith = "li01_01_base", .Loadout = "docking_ring_1"});
    Object("fixture", {.Loadout = "Secret_box"});
    Add("Goods", {{"nickname", "commodity_water"}, {"category", "commodity"}, {"price", 40}});
    Add("Goods", {{"nickname", "hull"}, {"category", "ShipHull"}, {"ship", "Fox"}, {"price", 9}});
    Add("Goods", {{"nickname", "pack"}, {"category", "ship"}, {"hull", "HULL"}});
    Add("Goods", {{"nickname", "gun"}, {"category", "equipment"}, {"price", 5}});
    Add("BaseGoods",
        {{"Base", "Li01_01_Base"}, {"GoodNick", "Commodity_Water"}, {"val5", 1.0}, {"val6", 1.15}});
    Add("Packages", {{"PackageName", "PACK"}, {"NickName", "Gun"}, {"Val", 1}});
    Add("Ships", {{"NickName", "fox"}});
    Add("Groups", {{"NickName", "grp"}, {"ids_name", 7}, {"ids_short_name", 8}});
    Name(7, "The Group");
  }
};

TEST_F(HeldTables, GiveTheSameRowsAsThoseInTheFile) {
  const std::vector<std::string> stored = RowsAfterStages(false);

  EXPECT_THAT(RowsAfterStages(true), ::testing::ElementsAreArray(stored));
  // One connection, one lane, two docks, one price, one ship, one package, one group, seven
  // objects.
  EXPECT_EQ(stored.size(), 15u);
  EXPECT_THAT(log.Failures(), ::testing::IsEmpty());
}

TEST_F(HeldTables, StayInMemory) {
  db = DBEngine::CreateInMemory(mustWork);
  for (const TableDef& table : FixedTables()) db.CreateHeldTable(mustWork, table);
  FillTables();

  for (const DerivedStage& stage : DerivedStages()) stage.Calculate(universe, host);

  // All fixed tables, and those of connections, lanes and docks.
  EXPECT_EQ(db.TakeHeldRows().size(), FixedTables().size() + 3);
}

}  // namespace
}  // namespace orrerix
