// SPDX-License-Identifier: MIT
#include <fmt/core.h>

#include "demo/content/equipment.h"
#include "demo/content/nations.h"
#include "demo/files/writers.h"
#include "demo/format/ini_text.h"
#include "demo/plan/random.h"

namespace orrerix::demo {
namespace {

void AddSolarLoadout(IniText& ini, const std::string& nickname, int turrets) {
  ini.Section("Loadout")
      .Line("nickname", nickname)
      .Line("equip", "infinite_power")
      .Line("equip", "scanner_ear");
  for (int turret = 1; turret <= turrets; ++turret) {
    ini.Line("equip", fmt::format("small_turret, HpTurret{:02}", turret));
  }
  ini.Line("equip", "light_running, HpRunningLight01")
      .Line("equip", "light_running, HpRunningLight02");
}

// What is left in a wreck: some cargo, now and then without a number, and a gun or two.
void AddWreckLoadout(IniText& ini, const Wreck& wreck) {
  Random random(SeedOf("cargo of " + wreck.Nickname));
  ini.Section("Loadout").Line("nickname", wreck.Loadout());
  const GunLine& gun = random.Pick(GunLines());
  ini.Line("equip",
           fmt::format("{}, HpWeapon01", MarkNickname(gun.Stem, random.Between(2, kMarks))));
  if (random.Chance(50)) {
    const ShieldLine& shield = random.Pick(ShieldLines());
    ini.Line("equip", fmt::format("{}, HpShield01", MarkNickname(shield.Stem, kMarks)));
  }
  const int first = random.Between(0, static_cast<int>(Commodities().size()) - 4);
  const int kinds = random.Between(1, 3);
  for (int kind = first; kind < first + kinds; ++kind) {
    const Commodity& commodity = Commodities()[static_cast<std::size_t>(kind)];
    ini.Line("cargo", fmt::format("{}, {}", commodity.Nickname, random.Between(2, 40)));
  }
  if (random.Chance(60)) {
    const Launcher& launcher = random.Pick(Launchers());
    ini.Line("cargo", fmt::format("{}_ammo, {}", launcher.Stem, random.Between(4, 30)));
  }
}

}  // namespace

void WriteLoadouts(Game& game) {
  IniText ini;
  for (int nation = 0; nation <= kBorderWorlds; ++nation) {
    for (const StationKind& kind : StationKinds())
      AddSolarLoadout(ini, LoadoutOf(kind.Stem, nation), 4);
    for (const char* stem : {"docking_ring", "jumpgate", "trade_lane_ring"}) {
      AddSolarLoadout(ini, LoadoutOf(stem, nation), 2);
    }
    AddSolarLoadout(ini, LoadoutOf("weapon_platform", nation), 6);
  }
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const Wreck& wreck : system.Wrecks) AddWreckLoadout(ini, wreck);
  }
  game.Folder.Write("DATA/SOLAR/loadouts.ini", ini.Bytes());
}

}  // namespace orrerix::demo
