// SPDX-License-Identifier: MIT
#include "atlas/hardpoints.h"

#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

class HardpointsOfShips : public AtlasFixture {
 protected:
  HardpointsOfShips() {
    Add("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}});
    Add("Ships_Hardpoints", {{"NickName", "LI_fighter"},
                             {"EquipType", "HP_gun_special_1"},
                             {"HardPoints", "HpWeapon01"}});
  }
};

TEST_F(HardpointsOfShips, TakeEquipmentOfTheirTypes) {
  const SourceTables tables(mustWork, db);
  const ShipMounts ship(tables, "li_fighter");

  EXPECT_TRUE(Fits("hp_GUN_special_1", ship));
  EXPECT_FALSE(Fits("hp_gun_special_2", ship));
  EXPECT_FALSE(Fits("hp_gun_special_", ship));
  EXPECT_FALSE(Fits({}, ship));
}

TEST_F(HardpointsOfShips, AreFoundByNicknameOrName) {
  const SourceTables tables(mustWork, db);

  EXPECT_EQ(FindShip(tables, "LI_FIGHTER"), "li_fighter");
  EXPECT_EQ(FindShip(tables, "patriot"), "li_fighter");
  EXPECT_EQ(FindShip(tables, "hulk"), std::nullopt);
  EXPECT_EQ(FindShip(tables, ""), std::nullopt);
}

TEST(HardpointTypes, AreInTheTablesOfWhatIsMountedOutside) {
  for (const char* id :
       {"guns", "turrets", "missiles", "mines", "shields", "thrusters", "countermeasures"}) {
    EXPECT_TRUE(HardpointColumnOf(*FindAtlasTable(id))) << id;
  }
  for (const char* id : {"ships", "engines", "power", "scanners", "commodities", "bases"}) {
    EXPECT_FALSE(HardpointColumnOf(*FindAtlasTable(id))) << id;
  }
}

}  // namespace
}  // namespace orrerix
