// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

using Bases = AtlasFixture;

TEST_F(Bases, HaveTheirPlaceAndOwner) {
  System("Li01", "New York");
  Add("Groups", {{"NickName", "NAVY"}, {"Name", "Liberty Navy"}});
  Section("base", {{"nickname", "Fort"}, {"strid_name", "9"}});
  Name(9, "Fort Bush");
  Base("fort");
  Dock("fort_ring", "FORT");

  // 8 * 0.5 - 0.35 = 3.65: column D; 8 * 0.5 - 0.5 = 3.5: row 4.
  ExpectFields(TheOnly("bases"), {{"name", "Fort Bush"},
                                  {"nickname", "fort"},
                                  {"system", "New York"},
                                  {"sector", "D4"},
                                  {"owner", "Liberty Navy"},
                                  {"docks", 2}});
}

TEST_F(Bases, AreOnlyThoseThatAShipCanDockAt) {
  Base("fort");
  Dock("shut_dock", "shut", "Li01", "navy", "Station_NoDock");
  Add("Objects", {{"nickname", "hidden_dock"}, {"dock_with", "hidden"}});

  EXPECT_THAT(Nicknames("bases"), ElementsAre("fort"));
}

TEST_F(Bases, AreCalledAsTheirDocksWithoutTheRing) {
  Add("Objects", {{"nickname", "ring"}, {"realname", "Dockring: Planet Rho"}, {"dock_with", "a"}});
  Add("Objects", {{"nickname", "mole"}, {"realname", "mole(7)"}, {"dock_with", "b"}});
  for (const char* dock : {"ring", "mole"}) Add("DockObjects", {{"nickname", dock}});

  ExpectFields(Atlas("bases")[0],
               {{"name", "Planet Rho"}, {"sector", {}}, {"owner", {}}, {"system", {}}});
  ExpectFields(Atlas("bases")[1], {{"name", "b"}});
}

TEST_F(Bases, CountWhatTheySellByKind) {
  Base("fort");
  Section("gun", {{"nickname", "laser"}, {"projectile_archetype", "bolt"}});
  Section("gun", {{"nickname", "missile"}, {"projectile_archetype", "dart"}});
  Section("munition", {{"nickname", "bolt"}, {"motor", ""}});
  Section("munition", {{"nickname", "dart"}, {"motor", "drive"}});
  Section("minedropper", {{"nickname", "dropper"}});
  Section("shieldgenerator", {{"nickname", "shield"}});
  Section("thruster", {{"nickname", "thruster"}});
  Section("countermeasuredropper", {{"nickname", "flare"}});
  Good("commodity_gold", 1, "commodity");
  Line("fort", "commodity_gold");
  Good("commodity_tin", 1, "commodity");
  Line("fort", "commodity_tin", 1);
  for (const char* good :
       {"laser", "missile", "dropper", "shield", "thruster", "flare", "dart", "lamp"}) {
    Good(good, 1);
    Line("fort", good);
  }

  ExpectFields(TheOnly("bases"), {{"ships", 0},
                                  {"ship_names", {}},
                                  {"commodities", 1},
                                  {"guns", 1},
                                  {"missiles", 1},
                                  {"mines", 1},
                                  {"shields", 1},
                                  {"thrusters", 1},
                                  {"countermeasures", 1},
                                  {"others", 2}});
}

TEST_F(Bases, StandInTheirSystems) {
  System("Li01", "New York");
  System("Li02", "California");
  Add("Groups", {{"NickName", "navy"}, {"Name", "Liberty Navy"}});
  Base("fort");
  Base("yard", "LI01");
  Add("Objects", {{"nickname", "gate"}, {"sys_nick", "li01"}, {"goto", "Li02, x, y"}});

  ExpectFields(Atlas("systems")[0], {{"name", "New York"},
                                     {"nickname", "Li01"},
                                     {"place", "3, 4"},
                                     {"scale", {}},
                                     {"bases", 2},
                                     {"base_names", "fort; yard"},
                                     {"owners", "Liberty Navy"},
                                     {"jumps", 1}});
  ExpectFields(Atlas("systems")[1], {{"bases", 0}, {"base_names", {}}, {"jumps", 0}});
}

}  // namespace
}  // namespace orrerix
