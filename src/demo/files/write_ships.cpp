// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/content/gear_texts.h"
#include "demo/content/ships.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

// A class of hardpoints takes equipment of the class and of all below it.
void AddHardpoints(IniText& ini, const Ship& ship) {
  std::string weapons;
  for (int gun = 1; gun <= ship.Guns; ++gun) weapons += fmt::format(", HpWeapon{:02}", gun);
  const int best = ship.Role == ShipRole::LightFighter ? 1 : 3;
  for (int mark = best; mark >= 1; --mark) {
    ini.Line("hp_type", fmt::format("hp_gun_special_{}{}", mark * 3 - 1, weapons));
    ini.Line("hp_type", fmt::format("hp_fighter_shield_special_{}, HpShield01", mark * 3 - 1));
  }
  ini.Line("hp_type", "hp_gun_special_4, HpWeapon01")
      .Line("hp_type", "hp_mine_dropper, HpMine01")
      .Line("hp_type", "hp_countermeasure_dropper, HpCM01")
      .Line("hp_type", "hp_thruster, HpThruster01");
  if (ship.Role == ShipRole::HeavyFighter) ini.Line("hp_type", "hp_torpedo_special_1, HpTorpedo01");
}

void AddHandling(IniText& ini, const Ship& ship) {
  const std::string steering = Decimal(ship.Steering);
  const std::string drag = Decimal(ship.Steering * 0.72);
  const std::string inertia = Decimal(ship.Steering * 0.085);
  ini.Line("steering_torque", fmt::format("{0}, {0}, {1}", steering, Decimal(ship.Steering * 1.9)))
      .Line("angular_drag", fmt::format("{0}, {0}, {1}", drag, Decimal(ship.Steering * 1.25)))
      .Line("rotation_inertia",
            fmt::format("{0}, {0}, {1}", inertia, Decimal(ship.Steering * 0.03)))
      .Line("nudge_force", 30000)
      .Line("strafe_force", ship.Role == ShipRole::Freighter ? 15000 : 20000)
      .Line("strafe_power_usage", 2);
}

void AddShip(Game& game, IniText& ini, const Ship& ship) {
  const GearNumbers ids = NumbersOfShip(game, ship);
  const int story = StoryOfShip(game, ship);
  const bool freighter = ship.Role == ShipRole::Freighter;
  ini.Section("Ship")
      .Line("nickname", ship.Nickname)
      .Line("ids_name", ids.Name)
      .Line("ids_info", story)
      .Line("ids_info1", ids.Card)
      .Line("ids_info2", story)
      .Line("ids_info3", ids.Card)
      .Line("ship_class", static_cast<int>(ship.Role))
      .Line("type", freighter ? "FREIGHTER" : "FIGHTER")
      .Line("LODranges", "0, 100, 400, 900")
      .Line("DA_archetype", fmt::format("ships\\{0}\\{0}.cmp", ship.Nickname))
      .Line("mass", ship.Mass)
      .Line("hold_size", ship.Hold)
      .Line("linear_drag", 1.0)
      .Line("max_bank_angle", 35)
      .Line("camera_offset", "9, 30")
      .Line("nanobot_limit", ship.Batteries)
      .Line("shield_battery_limit", ship.Batteries)
      .Line("hit_pts", ship.HitPoints)
      .Line("fuse", "hull_smoke, 0, 250")
      .Line("fuse", "hull_fire, 0, 90");
  AddHandling(ini, ship);
  AddHardpoints(ini, ship);
}

void AddShipLoadout(IniText& ini, const Ship& ship) {
  ini.Section("Loadout")
      .Line("nickname", ship.Nickname + "_patrol")
      .Line("archetype", ship.Nickname)
      .Line("equip", "engine_courser")
      .Line("equip", "power_kiln")
      .Line("equip", "scanner_ear")
      .Line("equip", "vo_gun_hail_mark01, HpWeapon01")
      .Line("equip", "vo_gun_hail_mark01, HpWeapon02")
      .Line("cargo", "supply_nanobots, 4")
      .Line("cargo", "supply_battery, 4");
}

}  // namespace

void WriteShips(Game& game) {
  IniText archetypes;
  IniText loadouts;
  for (const Ship& ship : Ships()) {
    AddShip(game, archetypes, ship);
    AddShipLoadout(loadouts, ship);
  }
  game.Folder.Write("DATA/SHIPS/shiparch.ini", archetypes.Bytes());
  game.Folder.Write("DATA/SHIPS/loadouts.ini", loadouts.Bytes());
}

}  // namespace orrerix::demo
