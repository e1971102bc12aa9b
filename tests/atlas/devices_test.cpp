// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

using Devices = AtlasFixture;

TEST_F(Devices, ThatShieldRegenerateAndGoOffline) {
  Section("shieldgenerator", {{"nickname", "shield"},
                              {"hp_type", "hp_fighter_shield_special_1"},
                              {"shield_type", "S_Positron01"},
                              {"max_capacity", "3000"},
                              {"regeneration_rate", "50"},
                              {"offline_rebuild_time", "12"},
                              {"offline_threshold", "0.15"},
                              {"constant_power_draw", "0"},
                              {"rebuild_power_draw", "25"}});
  Good("shield", 1500);

  ExpectFields(TheOnly("shields"), {{"hardpoint", "hp_fighter_shield_special_1"},
                                    {"shield_type", "S_Positron01"},
                                    {"capacity", 3000},
                                    {"regeneration", 50},
                                    {"refill_time", 60},
                                    {"offline_time", 12},
                                    {"offline_below", 15},
                                    {"energy_second", 0},
                                    {"energy_rebuild", 25},
                                    {"hit_points", {}},
                                    {"capacity_price", 2}});
}

TEST_F(Devices, ThatThrustCostEnergy) {
  Section("thruster", {{"nickname", "thruster"}, {"max_force", "72000"}, {"power_usage", "160"}});

  ExpectFields(TheOnly("thrusters"), {{"hardpoint", "hp_thruster"},
                                      {"thrust", 72000},
                                      {"energy_second", 160},
                                      {"thrust_energy", 450}});
}

TEST_F(Devices, ThatDriveBelongToTheShipsOfTheirPackages) {
  Section("engine", {{"nickname", "engine"},
                     {"max_force", "48000"},
                     {"linear_drag", "600"},
                     {"reverse_fraction", "0.25"},
                     {"cruise_charge_time", "5"},
                     {"cruise_power_usage", "20"}});
  Add("Packages", {{"PackageName", "li_package"}, {"NickName", "ENGINE"}});
  Add("Ships",
      {{"NickName", "li_fighter"}, {"RealName", "Patriot"}, {"packagename", "LI_package"}});

  ExpectFields(TheOnly("engines"), {{"impulse_speed", 80},
                                    {"reverse_speed", 20},
                                    {"cruise_speed", {}},
                                    {"cruise_charge", 5},
                                    {"ships", "Patriot"}});
}

TEST_F(Devices, ThatPowerHaveTwoStores) {
  Section("power", {{"nickname", "power"},
                    {"capacity", "1000"},
                    {"charge_rate", "80"},
                    {"thrust_capacity", "900"},
                    {"thrust_charge_rate", "90"}});

  ExpectFields(TheOnly("power"), {{"capacity", 1000},
                                  {"charge_rate", 80},
                                  {"charge_time", 12.5},
                                  {"thrust_capacity", 900},
                                  {"thrust_charge_rate", 90}});
}

TEST_F(Devices, ThatScanOrPullShareATable) {
  Section("scanner", {{"nickname", "eye"}, {"range", "10000"}, {"cargo_scan_range", "2000"}});
  Section("tractor", {{"nickname", "beam"}, {"max_length", "1500"}, {"reach_speed", "700"}});

  EXPECT_THAT(Nicknames("scanners"), ElementsAre("eye", "beam"));
  ExpectFields(Atlas("scanners")[0],
               {{"kind", "scanner"}, {"range", 10000}, {"cargo_range", 2000}, {"length", {}}});
  ExpectFields(Atlas("scanners")[1],
               {{"kind", "tractor"}, {"range", {}}, {"length", 1500}, {"reach_speed", 700}});
}

TEST_F(Devices, WithoutANameOfTheirOwnTakeThatOfTheirGoodUnlessItIsMadeUp) {
  Section("thruster", {{"nickname", "a"}});
  Section("thruster", {{"nickname", "b"}});
  Add("Goods", {{"nickname", "good_a"},
                {"equipment", "A"},
                {"category", "equipment"},
                {"realname", "Thruster"}});
  Add("Goods", {{"nickname", "b"}, {"category", "equipment"}, {"realname", "b(0)"}});

  ExpectFields(Atlas("thrusters")[0], {{"name", "Thruster"}, {"sellers", 0}});
  ExpectFields(Atlas("thrusters")[1], {{"name", {}}});
}

}  // namespace
}  // namespace orrerix
