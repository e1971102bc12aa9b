// SPDX-License-Identifier: MIT
#include <cmath>

#include <fmt/core.h>

#include "demo/content/gear_texts.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"

namespace orrerix::demo {
namespace {

IniText& AddEquipmentGood(IniText& ini, const std::string& nickname, int price) {
  return ini.Section("Good")
      .Line("nickname", nickname)
      .Line("equipment", nickname)
      .Line("category", "equipment")
      .Line("price", price)
      .Line("item_icon", fmt::format("equipment\\models\\icons\\{}.3db", nickname))
      .Line("combinable", "false");
}

void AddNumbers(IniText& ini, GearNumbers ids) {
  ini.Line("ids_name", ids.Name)
      .Line("ids_info", ids.Card)
      .Line("material_library", "equipment\\models\\gear.mat");
}

// Prices grow with the square of what a mark gains.
int MarkPrice(int price, int mark) {
  return static_cast<int>(std::lround(price * MarkFactor(mark) * MarkFactor(mark)));
}

void WriteWeaponGoods(Game& game) {
  IniText ini;
  for (const GunLine& line : GunLines()) {
    for (int mark = 1; mark <= kMarks; ++mark) {
      AddEquipmentGood(ini, MarkNickname(line.Stem, mark), MarkPrice(line.Price, mark));
      AddNumbers(ini, NumbersOfGun(game, line, mark));
    }
  }
  for (const Launcher& launcher : Launchers()) {
    const std::string ammunition = launcher.Stem + "_ammo";
    AddEquipmentGood(ini, launcher.Stem, launcher.Price);
    if (launcher.FreeAmmunition > 0) {
      ini.Line("free_ammo", fmt::format("{}, {}", ammunition, launcher.FreeAmmunition));
    }
    AddNumbers(ini, NumbersOfLauncher(game, launcher));
    AddEquipmentGood(ini, ammunition, launcher.AmmunitionPrice);
  }
  game.Folder.Write("DATA/EQUIPMENT/weapon_good.ini", ini.Bytes());
}

void WriteDeviceGoods(Game& game) {
  IniText ini;
  for (const ShieldLine& line : ShieldLines()) {
    for (int mark = 1; mark <= kMarks; ++mark) {
      AddEquipmentGood(ini, MarkNickname(line.Stem, mark), MarkPrice(line.Price, mark));
      AddNumbers(ini, NumbersOfShield(game, line, mark));
    }
  }
  for (const Device& device : Devices()) {
    AddEquipmentGood(ini, device.Nickname, device.Price);
    AddNumbers(ini, NumbersOfDevice(game, device));
  }
  game.Folder.Write("DATA/EQUIPMENT/misc_good.ini", ini.Bytes());
}

void AddCommodityGood(IniText& ini, const Commodity& commodity) {
  ini.Section("Good")
      .Line("nickname", commodity.Nickname)
      .Line("equipment", commodity.Nickname)
      .Line("msg_id_prefix", fmt::format("msg_{}", commodity.Nickname))
      .Line("category", "commodity")
      .Line("price", commodity.Price)
      .Line("combinable", "true")
      .Line("good_sell_price", 1.5)
      .Line("bad_buy_price", 1.5)
      .Line("bad_sell_price", 0.9)
      .Line("good_buy_price", 0.9)
      .Line("jump_dist", 7);
}

void AddHull(Game& game, IniText& ini, const Ship& ship) {
  const GearNumbers ids = NumbersOfShip(game, ship);
  ini.Section("Good")
      .Line("nickname", ship.Nickname + "_hull")
      .Line("category", "shiphull")
      .Line("ship", ship.Nickname)
      .Line("price", ship.HullPrice)
      .Line("ids_name", ids.Name)
      .Line("item_icon", fmt::format("equipment\\models\\icons\\{}.3db", ship.Nickname));
}

void AddPackage(IniText& ini, const Ship& ship) {
  const bool light = ship.Role == ShipRole::LightFighter;
  const bool freighter = ship.Role == ShipRole::Freighter;
  ini.Section("Good")
      .Line("nickname", ship.Nickname + "_package")
      .Line("category", "ship")
      .Line("hull", ship.Nickname + "_hull")
      .Line("addon", fmt::format("{}, internal, 1", freighter ? "engine_barge" : "engine_courser"))
      .Line("addon", fmt::format("{}, internal, 1", light ? "power_kiln" : "power_forge"))
      .Line("addon", "scanner_ear, internal, 1")
      .Line("addon", "tractor_line, internal, 1");
  const std::string shield = ShieldLines()[static_cast<std::size_t>(ship.Nation) % 4].Stem;
  ini.Line("addon", fmt::format("{}, HpShield01, 1", MarkNickname(shield, light ? 1 : 2)));
  for (const GunLine& line : GunLines()) {
    if (line.Nation != ship.Nation) continue;
    for (int gun = 1; gun <= 2; ++gun) {
      ini.Line("addon", fmt::format("{}, HpWeapon{:02}, 1", MarkNickname(line.Stem, 1), gun));
    }
    break;
  }
  ini.Line("addon", "light_running, HpRunningLight01, 1");
}

void WriteTradeGoods(Game& game) {
  IniText ini;
  for (const Commodity& commodity : Commodities()) AddCommodityGood(ini, commodity);
  for (const Ship& ship : Ships()) {
    if (ship.HasHull) AddHull(game, ini, ship);
    if (ship.HasHull && ship.HasPackage) AddPackage(ini, ship);
  }
  game.Folder.Write("DATA/EQUIPMENT/goods.ini", ini.Bytes());
}

}  // namespace

void WriteGoods(Game& game) {
  WriteTradeGoods(game);
  WriteDeviceGoods(game);
  WriteWeaponGoods(game);
}

}  // namespace orrerix::demo
