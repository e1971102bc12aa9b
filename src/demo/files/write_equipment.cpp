// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/content/equipment.h"
#include "demo/content/gear_texts.h"
#include "demo/files/writers.h"
#include "demo/format/bini_writer.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

// What all mounted things have in common.
IniText& AddGear(IniText& ini, std::string_view section, const std::string& nickname,
                 GearNumbers ids) {
  return ini.Section(section)
      .Line("nickname", nickname)
      .Line("ids_name", ids.Name)
      .Line("ids_info", ids.Card)
      .Line("DA_archetype", fmt::format("equipment\\models\\{}.3db", nickname))
      .Line("HP_child", "HPConnect")
      .Line("debris_type", "debris_normal")
      .Line("volume", 0)
      .Line("mass", 10);
}

void AddGun(Game& game, IniText& ini, const GunLine& line, int mark) {
  const double factor = MarkFactor(mark);
  const std::string nickname = MarkNickname(line.Stem, mark);
  AddGear(ini, "Gun", nickname, NumbersOfGun(game, line, mark))
      .Line("hit_pts", 400.0 * factor)
      .Line("hp_gun_type", fmt::format("hp_gun_special_{}", mark * 3 - 1))
      .Line("damage_per_fire", 0)
      .Line("power_usage", line.Power * factor, 2)
      .Line("refire_delay", line.Refire)
      .Line("muzzle_velocity", line.Speed)
      .Line("toughness", 1.4 * factor, 2)
      .Line("projectile_archetype", nickname + "_shot")
      .Line("auto_turret", "false")
      .Line("turn_rate", 90);
  ini.Section("Munition")
      .Line("nickname", nickname + "_shot")
      .Line("hp_type", "hp_gun")
      .Line("requires_ammo", "false")
      .Line("hit_pts", 2)
      .Line("hull_damage", line.HullDamage * factor, 2)
      .Line("energy_damage", line.EnergyDamage * factor, 2)
      .Line("weapon_type", line.WeaponType)
      .Line("lifetime", line.Lifetime)
      .Line("force_gun_ori", "false")
      .Line("mass", 1)
      .Line("volume", 0.0001, 6);
}

void AddLauncher(Game& game, IniText& ini, const Launcher& launcher) {
  AddGear(ini, launcher.Section, launcher.Stem, NumbersOfLauncher(game, launcher))
      .Line("hit_pts", 750)
      .Line("hp_gun_type", launcher.HardpointType)
      .Line("power_usage", 0)
      .Line("refire_delay", launcher.Refire)
      .Line("muzzle_velocity", launcher.Speed)
      .Line("projectile_archetype", launcher.Stem + "_ammo")
      .Line("dry_fire_sound", "fire_dry");
  ini.Section(launcher.AmmunitionSection)
      .Line("nickname", launcher.Stem + "_ammo")
      .Line("loot_appearance", "ammo_crate")
      .Line("units_per_container", 10)
      .Line("requires_ammo", "true")
      .Line("hit_pts", 2)
      .Line("hull_damage", launcher.HullDamage)
      .Line("energy_damage", launcher.EnergyDamage)
      .Line("lifetime", launcher.Lifetime)
      .Line("seeker", "LOCK")
      .Line("mass", 1)
      .Line("volume", 0);
}

void WriteWeapons(Game& game) {
  IniText ini;
  for (const GunLine& line : GunLines()) {
    for (int mark = 1; mark <= kMarks; ++mark) AddGun(game, ini, line, mark);
  }
  for (const Launcher& launcher : Launchers()) AddLauncher(game, ini, launcher);
  const GunLine& twice = GunLines()[1];
  AddGear(ini, "Gun", MarkNickname(twice.Stem, 2), NumbersOfGun(game, twice, 2))
      .Line("hit_pts", 640);
  game.Folder.Write("DATA/EQUIPMENT/weapon_equip.ini", ini.Bytes());
}

void AddShield(Game& game, IniText& ini, const ShieldLine& line, int mark) {
  const double factor = MarkFactor(mark);
  AddGear(ini, "ShieldGenerator", MarkNickname(line.Stem, mark), NumbersOfShield(game, line, mark))
      .Line("hit_pts", 300.0 * factor)
      .Line("regeneration_rate", line.Regeneration * factor, 2)
      .Line("max_capacity", line.Capacity * factor, 2)
      .Line("offline_rebuild_time", 12)
      .Line("offline_threshold", 0.15)
      .Line("constant_power_draw", 0)
      .Line("rebuild_power_draw", line.RebuildPower * factor, 2)
      .Line("shield_type", line.Type)
      .Line("hp_type", fmt::format("hp_fighter_shield_special_{}", mark * 3 - 1))
      .Line("shield_hit_effects", "0, gf_shield_01")
      .Line("shield_hit_effects", "300, gf_shield_02");
}

void AddDevice(Game& game, IniText& ini, const Device& device) {
  AddGear(ini, device.Section, device.Nickname, NumbersOfDevice(game, device));
  for (const auto& [key, value] : device.Keys) {
    if (key != "mass") ini.Line(key, value);
  }
}

// The last power core repeats a key with another value.
void AddRepeatedKey(IniText& ini) {
  ini.Line("charge_rate", 310);
}

// What stations and ships are fitted with and nobody sells.
void AddFittings(IniText& ini) {
  ini.Section("Power")
      .Line("nickname", "infinite_power")
      .Line("capacity", 100000)
      .Line("charge_rate", 100000);
  ini.Section("Light")
      .Line("nickname", "light_running")
      .Line("color", "120, 255, 160")
      .Line("blink", 2);
  ini.Section("Turret").Line("nickname", "small_turret").Line("hit_pts", 2000).Line("range", 1500);
}

void WriteDevices(Game& game) {
  IniText shields;
  IniText engines;
  IniText misc;
  for (const ShieldLine& line : ShieldLines()) {
    for (int mark = 1; mark <= kMarks; ++mark) AddShield(game, shields, line, mark);
  }
  for (const Device& device : Devices()) {
    const bool supply = device.Section == "RepairKit" || device.Section == "ShieldBattery";
    if (supply) continue;  // sold in numbers, so listed with the commodities
    IniText& file = device.Section == "Engine"     ? engines
                    : device.Section == "Thruster" ? shields
                                                   : misc;
    AddDevice(game, file, device);
    if (device.Nickname == "power_forge") AddRepeatedKey(file);
  }
  AddFittings(misc);
  game.Folder.Write("DATA/EQUIPMENT/ST_equip.ini", PackIni(shields.Bytes()));
  game.Folder.Write("DATA/EQUIPMENT/engine_equip.ini", engines.Bytes());
  game.Folder.Write("DATA/EQUIPMENT/misc_equip.ini", misc.Bytes());
}

void WriteWeaponTypes(Game& game) {
  IniText ini;
  double factor = 0.8;
  for (const char* weapon : {"W_Slug", "W_Light", "W_Ion"}) {
    ini.Section("WeaponType").Line("nickname", weapon);
    for (const ShieldLine& line : ShieldLines()) {
      ini.Line("shield_mod", fmt::format("{}, {}", line.Type, Decimal(factor, 2)));
      factor = factor > 1.15 ? 0.8 : factor + 0.1;
    }
  }
  game.Folder.Write("DATA/EQUIPMENT/WeaponModDB.ini", ini.Bytes());
}

}  // namespace

void WriteEquipment(Game& game) {
  WriteWeapons(game);
  WriteDevices(game);
  WriteWeaponTypes(game);
}

void WriteCommodities(Game& game) {
  IniText ini;
  for (const Commodity& commodity : Commodities()) {
    const GearNumbers ids = NumbersOfCommodity(game, commodity);
    ini.Section("Commodity")
        .Line("nickname", commodity.Nickname)
        .Line("ids_name", ids.Name)
        .Line("ids_info", ids.Card)
        .Line("units_per_container", 5)
        .Line("pod_appearance", "cargopod_plain")
        .Line("loot_appearance", "lootcrate_plain")
        .Line("decay_per_second", commodity.Decay)
        .Line("volume", commodity.Volume)
        .Line("hit_pts", 250);
  }
  for (const Device& device : Devices()) {
    const bool supply = device.Section == "RepairKit" || device.Section == "ShieldBattery";
    if (supply) AddDevice(game, ini, device);
  }
  game.Folder.Write("DATA/EQUIPMENT/select_equip.ini", ini.Bytes());
}

}  // namespace orrerix::demo
