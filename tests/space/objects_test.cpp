// SPDX-License-Identifier: MIT
#include "space/space_fixture.h"

namespace orrerix {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;

class SpaceObjects : public SpaceFixture {
 protected:
  void Object(std::string_view nickname, std::string_view name, Fields more) {
    Recordset rows = db.OpenTable(mustWork, "Objects");
    rows.AddNew();
    rows["nickname"] = nickname;
    rows["realname"] = name;
    rows["sys_nick"] = "li01";
    rows["pos"] = "-10000, 0, 30000";
    for (const auto& [field, value] : more) rows[field] = value;
    rows.Update();
  }
};

TEST_F(SpaceObjects, BodiesHaveTheSizeOfTheirArchetype) {
  folder.Write("DATA/SOLAR/solararch.ini",
               "[Solar]\nnickname = Blue_Giant\ntype = SUN\nsolar_radius = 4000\n");
  Object("star", "Sigma", {{"archetype", "blue_giant"}});

  const Space space = Read();

  ASSERT_EQ(space.Bodies.size(), 1u);
  EXPECT_EQ(space.Bodies[0].Kind, BodyKind::Sun);
  EXPECT_EQ(space.Bodies[0].Name, "Sigma");
  EXPECT_THAT(space.Bodies[0].Radius, DoubleNear(0.02, 1e-9));  // 4000 of 200,000
  EXPECT_THAT(space.Bodies[0].Place.X, DoubleNear(0.45, 1e-9));
  EXPECT_THAT(space.Bodies[0].Place.Y, DoubleNear(0.65, 1e-9));
}

TEST_F(SpaceObjects, TheNumberInAnArchetypesNameIsItsRadius) {
  Object("earth", "Planet Earth", {{"archetype", "planet_earth_3000"}});
  Object("crack", "crack(0)", {{"archetype", "planet_crack01"}});
  Object("dust", "dust(0)", {{"archetype", "sun_2000"}});

  const Space space = Read();

  ASSERT_EQ(space.Bodies.size(), 2u);  // the crack has neither name nor size
  EXPECT_THAT(space.Bodies[0].Radius, DoubleNear(0.015, 1e-9));
  EXPECT_EQ(space.Bodies[0].Kind, BodyKind::Planet);
  EXPECT_EQ(space.Bodies[1].Name, "");
}

TEST_F(SpaceObjects, GatesKnowTheirOwnerAndWhereTheyLead) {
  Add("Groups", {{"NickName", "police"}, {"Name", "The Police"}});
  Object("to_texas", "New York -> Texas", {{"reputation", "police"}});
  Add("JumpNodes", {{"nickname", "to_texas"},
                    {"nickname2", "to_york"},
                    {"MapX1", 3},
                    {"MapY1", 4},
                    {"MapX2", 5},
                    {"MapY2", 6},
                    {"PosX1", 0.25},
                    {"PosY1", 0.5},
                    {"PosX2", 0.75},
                    {"PosY2", 0.125},
                    {"Type", 1}});

  const std::vector<Gate> gates = Read().Gates;

  ASSERT_EQ(gates.size(), 2u);
  EXPECT_EQ(gates[0].Name, "New York -> Texas");
  EXPECT_EQ(gates[0].Owner, "The Police");
  EXPECT_FALSE(gates[0].IsHole);
  EXPECT_EQ(gates[0].OtherCell, (MapCell{5, 6}));
  EXPECT_EQ(gates[1].Cell, (MapCell{5, 6}));
  EXPECT_EQ(gates[1].Place.Y, 0.125);
  EXPECT_EQ(gates[1].OtherCell, (MapCell{3, 4}));
  EXPECT_EQ(gates[1].Owner, "");
}

TEST_F(SpaceObjects, WrecksNameTheirLoot) {
  Object("wreck", "Freighter", {{"loadout", "SECRET_freighter"}});
  Add("commodity", {{"nickname", "c_gold"}, {"realname", "Gold"}});
  for (const int count : {2, 3}) {
    Add("Loadout_Cargo", {{"NickName", "secret_freighter"}, {"Cargo", "c_gold"}, {"Count", count}});
  }
  Add("Loadout_Cargo", {{"NickName", "secret_freighter"}, {"Cargo", "laser"}, {"Count", 1}});
  Name(8, "Javelin");
  Section("munition", {{"nickname", "dart"}, {"ids_name", "8"}});
  Add("Loadout_Cargo", {{"NickName", "secret_freighter"}, {"Cargo", "dart"}, {"Count", 4}});

  const Space space = Read();

  ASSERT_EQ(space.Spots.size(), 1u);
  EXPECT_EQ(space.Spots[0].Kind, SpotKind::Wreck);
  EXPECT_THAT(space.Spots[0].Loot, ElementsAre("5 x Gold", "1 x laser", "4 x Javelin"));
}

TEST_F(SpaceObjects, StationsArePlacesToDockAt) {
  Object("ring", "Dockring: Planet Rho", {{"dock_with", "rho_base"}});
  Object("rho_docking_fixture_1", "Fixture", {{"dock_with", "rho_base"}});
  Object("gun", "Platform", {{"archetype", "WPLATFORM_ice"}});
  Object("buoy", "Buoy", {{"archetype", "nav_buoy"}});

  const Space space = Read();

  ASSERT_EQ(space.Spots.size(), 2u);
  EXPECT_EQ(space.Spots[0].Name, "Planet Rho");
  EXPECT_EQ(space.Spots[0].Kind, SpotKind::Station);
  EXPECT_EQ(space.Spots[1].Kind, SpotKind::Platform);
}

TEST_F(SpaceObjects, OffTheMapAreLeftOut) {
  Object("lost", "Lost", {{"archetype", "sun_1000"}, {"sys_nick", "Xx99"}});
  Object("odd", "Odd", {{"archetype", "sun_1000"}, {"pos", "here"}});

  EXPECT_TRUE(Read().Bodies.empty());
}

TEST_F(SpaceObjects, SystemsBelongToTheLocalFactionIfItOwnsSomething) {
  System("Li02", "5, 6");
  System("Li03", "6, 6");
  System("Li04", "7, 6");
  Add("Groups", {{"NickName", "police"}, {"Name", "The Police"}});
  Section("systeminfo", {{"local_faction", "police"}});
  Section("systeminfo", {{"local_faction", "Police"}}, "Li02");
  Section("systeminfo", {{"local_faction", "police"}}, "Li03");
  Section("systeminfo", {{"local_faction", "police"}}, "Li04");
  Object("gate", "", {{"goto", "Li02, x, y"}, {"reputation", "police"}});
  Object("a1", "", {{"dock_with", "a"}, {"reputation", "navy"}});
  Object("a2", "", {{"dock_with", "a"}, {"reputation", "navy"}});
  Object("b", "", {{"sys_nick", "Li02"}, {"dock_with", "b"}, {"reputation", "police"}});
  Object("c", "", {{"sys_nick", "Li03"}, {"dock_with", "c"}, {"reputation", "navy"}});
  Object("d", "", {{"sys_nick", "Li03"}, {"dock_with", "d"}, {"reputation", "navy"}});
  Object("e", "", {{"sys_nick", "Li03"}, {"dock_with", "e"}, {"reputation", "army"}});
  Object("buoy", "", {{"sys_nick", "Li04"}, {"reputation", "police"}});

  const Space space = Read();

  EXPECT_THAT(space.Factions, ElementsAre("The Police", "navy"));
  ASSERT_EQ(space.Systems.size(), 4u);
  EXPECT_EQ(space.Systems[0].Faction, 0u);
  EXPECT_EQ(space.Systems[1].Faction, 0u);
  EXPECT_EQ(space.Systems[2].Faction, 1u);
  EXPECT_EQ(space.Systems[3].Faction, std::nullopt);
}

// At the scale 1 a square shows 200,000 / 0.75 units.
TEST_F(SpaceObjects, SystemsWithoutAScaleHaveTheScaleOne) {
  System("Li02", "5, 6");
  System("Off", "18, 2");

  const Space space = Read();

  ASSERT_EQ(space.Systems.size(), 2u);
  EXPECT_THAT(space.Systems[0].UnitsAcross, DoubleNear(200000, 1e-6));
  EXPECT_THAT(space.Systems[1].UnitsAcross, DoubleNear(266666.6667, 1e-4));
  EXPECT_EQ(space.Systems[1].Name, "The Li02");
}

}  // namespace
}  // namespace orrerix
