// SPDX-License-Identifier: MIT
#include "atlas/atlas_fixture.h"

namespace orrerix {
namespace {

class Ships : public AtlasFixture {
 protected:
  void Fighter() {
    Name(5, "Patriot");
    Add("Ships", {{"NickName", "li_fighter"},
                  {"Type", "FIGHTER"},
                  {"RealName", "Patriot"},
                  {"ids_name", 5},
                  {"ship_class", 3},
                  {"hold_size", 20},
                  {"price", 4000},
                  {"nanobot_limit", 0},
                  {"shield_battery_limit", 15},
                  {"hit_pts", 400},
                  {"mass", 100.0},
                  {"linear_drag", 1.0},
                  {"steering1", 20000.0},
                  {"angular1", 20000.0},
                  {"packagename", "li_package"}});
  }
  void Hardpoints(std::string_view type, std::string_view names) {
    Add("Ships_Hardpoints",
        {{"NickName", "li_fighter"}, {"EquipType", type}, {"HardPoints", names}});
  }
};

TEST_F(Ships, HaveTheirFigures) {
  Fighter();

  // 1000 * 20 / 4000; a turn of one radian per second.
  ExpectFields(TheOnly("ships"), {{"name", "Patriot"},
                                  {"class", "very heavy fighter"},
                                  {"price", 4000},
                                  {"hold", 20},
                                  {"hold_price", 5},
                                  {"nanobots", 0},
                                  {"batteries", 15},
                                  {"hit_points", 400},
                                  {"turn_rate", 57.2958},
                                  {"guns", {}},
                                  {"impulse_speed", {}},
                                  {"power", {}}});
}

// The import takes the end of a DA_archetype line for a type if it comes first.
TEST_F(Ships, HaveNoPathForAType) {
  Add("Ships", {{"NickName", "ghost"}, {"Type", "ships\\liberty\\li_fighter.cmp"}});
  Fighter();

  ExpectFields(Atlas("ships")[0], {{"type", {}}});
  ExpectFields(Atlas("ships")[1], {{"type", "FIGHTER"}});
}

TEST_F(Ships, LeaveEmptyWhatNoShipIsWithout) {
  Add("Ships", {{"NickName", "hulk"},
                {"ship_class", 0},
                {"price", 0},
                {"hold_size", 0},
                {"nanobot_limit", 0},
                {"mass", 0.0},
                {"hit_pts", 0}});

  ExpectFields(TheOnly("ships"), {{"name", {}},
                                  {"class", {}},
                                  {"hold", {}},
                                  {"nanobots", {}},
                                  {"price", {}},
                                  {"hold_price", {}},
                                  {"mass", {}},
                                  {"hit_points", {}},
                                  {"turn_rate", {}},
                                  {"sellers", {}}});
}

TEST_F(Ships, CountHardpointsByKindOnceEach) {
  Fighter();
  Hardpoints("hp_gun_special_1", "HpWeapon01, HpWeapon02, HpWeapon03");
  Hardpoints("HP_gun_special_10", "hpweapon03, HpWeapon04");
  Hardpoints("hp_turret_special_2", "HpTurret01");
  Hardpoints("hp_fighter_shield_special_7", "HpShield01");

  ExpectFields(TheOnly("ships"),
               {{"guns", 4},
                {"gun_class", 10},
                {"turrets", 1},
                {"turret_class", 2},
                {"shields", 1},
                {"shield_class", 7},
                {"torpedoes", 0},
                {"thrusters", 0},
                {"hardpoints",
                 "hp_gun_special_1: 3; hp_gun_special_10: 2; hp_turret_special_2: 1; "
                 "hp_fighter_shield_special_7: 1"}});
}

TEST_F(Ships, FlyWithTheEngineAndPowerOfTheirPackage) {
  Fighter();
  Section("engine", {{"nickname", "engine"},
                     {"max_force", "48000"},
                     {"linear_drag", "599"},
                     {"cruise_speed", "350"},
                     {"cruise_charge_time", "5"}});
  Section("power", {{"nickname", "power"},
                    {"capacity", "1000"},
                    {"charge_rate", "80"},
                    {"thrust_capacity", "900"}});
  Add("Packages", {{"PackageName", "li_package"}, {"NickName", "lamp"}});
  Add("Packages", {{"PackageName", "LI_PACKAGE"}, {"NickName", "Engine"}});
  Add("Packages", {{"PackageName", "li_package"}, {"NickName", "power"}});

  // 48000 / (599 + 1)
  ExpectFields(TheOnly("ships"), {{"impulse_speed", 80},
                                  {"cruise_speed", 350},
                                  {"cruise_charge", 5},
                                  {"power", 1000},
                                  {"power_rate", 80},
                                  {"thrust_power", 900}});
}

TEST_F(Ships, AreSoldAsAnyPackageOfTheirHull) {
  Fighter();
  Base("fort");
  Base("yard");
  Add("Goods", {{"nickname", "li_hull"}, {"ship", "li_fighter"}, {"category", "shiphull"}});
  for (const char* package : {"li_package", "other_package"}) {
    Add("Goods", {{"nickname", package}, {"hull", "LI_hull"}, {"category", "ship"}});
  }
  Line("fort", "li_package");
  Line("fort", "other_package");
  Line("yard", "other_package");

  ExpectFields(TheOnly("ships"), {{"sellers", 2}, {"sold_at", "fort (Li01); yard (Li01)"}});
  ExpectFields(Atlas("bases")[0], {{"ships", 2}, {"ship_names", "Patriot"}});
}

}  // namespace
}  // namespace orrerix
