// SPDX-License-Identifier: MIT
#include <algorithm>

#include <fmt/core.h>

#include "demo/content/equipment.h"
#include "demo/content/nations.h"
#include "demo/content/ships.h"
#include "demo/files/writers.h"
#include "demo/format/bini_writer.h"
#include "demo/format/ini_text.h"
#include "demo/plan/random.h"

namespace orrerix::demo {
namespace {

bool Holds(const std::vector<GoodsGroup>& groups, GoodsGroup group) {
  return std::find(groups.begin(), groups.end(), group) != groups.end();
}

const std::vector<GoodsGroup>& MadeAt(const PlannedBase& base) {
  return base.Planet != nullptr ? base.Planet->Makes : base.Station->Makes;
}

const std::vector<GoodsGroup>& WantedAt(const PlannedBase& base) {
  return base.Planet != nullptr ? base.Planet->Wants : base.Station->Wants;
}

bool IsPirate(const PlannedBase& base) {
  return base.Station != nullptr && base.Station->Owner == FactionRole::Pirate;
}

// A good on sale stands in stock and has a fifth number of 0; a good that is only bought has none
// in stock and a 1. The last number is the factor on the list price.
void AddTrade(IniText& ini, const Commodity& commodity, bool sold, double factor) {
  ini.Line("MarketGood",
           fmt::format("{}, 0, -1, {}, {}, {}, {}", commodity.Nickname, sold ? 150 : 0,
                       sold ? 500 : 0, sold ? 0 : 1, Decimal(factor, 2)));
}

void AddCommodityTrade(IniText& ini, const PlannedSystem& system, const PlannedBase& base,
                       const Commodity& commodity, Random& random) {
  const bool lawless = IsPirate(base) || system.Nation == kBorderWorlds;
  if (commodity.Group == GoodsGroup::Illicit && !lawless && !random.Chance(8)) return;
  if (Holds(MadeAt(base), commodity.Group)) {
    if (random.Chance(70)) AddTrade(ini, commodity, true, random.Between(0.55, 0.95));
  } else if (Holds(WantedAt(base), commodity.Group)) {
    if (random.Chance(75)) AddTrade(ini, commodity, false, random.Between(1.25, 2.6));
  } else if (random.Chance(25)) {
    AddTrade(ini, commodity, random.Chance(50), random.Between(0.95, 1.3));
  }
}

void WriteCommodityMarket(Game& game) {
  IniText ini;
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const PlannedBase& base : system.Bases) {
      Random random(SeedOf("market of " + base.Nickname));
      ini.Section("BaseGood").Line("base", base.BaseNickname());
      for (const Commodity& commodity : Commodities()) {
        AddCommodityTrade(ini, system, base, commodity, random);
      }
    }
  }
  game.Folder.Write("DATA/EQUIPMENT/market_commodities.ini", PackIni(ini.Bytes()));
}

void AddStock(IniText& ini, const std::string& good, int level, double reputation, int count) {
  ini.Line("MarketGood", fmt::format("{}, {}, {}, {}, {}, 0, 1", good, level,
                                     Decimal(reputation, 2), count, count));
}

// Marks of the nation's own lines; the better ones are kept for those whom the owners like.
void AddArms(IniText& ini, const PlannedSystem& system, Random& random) {
  const bool border = system.Nation == kBorderWorlds;
  for (const GunLine& line : GunLines()) {
    if (line.Nation != system.Nation && !(border && random.Chance(30))) continue;
    const int best = random.Between(1, kMarks);
    for (int mark = 1; mark <= best; ++mark) {
      AddStock(ini, MarkNickname(line.Stem, mark), mark * 6 - 6, mark * 0.3 - 0.5, 10);
    }
  }
  for (const ShieldLine& line : ShieldLines()) {
    if (line.Nation != system.Nation && !(border && random.Chance(30))) continue;
    const int mark = random.Between(1, kMarks);
    AddStock(ini, MarkNickname(line.Stem, mark), mark * 6 - 6, -1, 10);
  }
}

void AddSupplies(IniText& ini, Random& random) {
  for (const Launcher& launcher : Launchers()) {
    if (!random.Chance(40)) continue;
    AddStock(ini, launcher.Stem, 4, -0.2, 10);
    AddStock(ini, launcher.Stem + "_ammo", 4, -0.2, 50);
  }
  for (const Device& device : Devices()) {
    const bool supply = device.Section == "RepairKit" || device.Section == "ShieldBattery";
    if (supply || (device.Price > 0 && random.Chance(35)))
      AddStock(ini, device.Nickname, 0, -1, 50);
  }
}

void WriteEquipmentMarket(Game& game) {
  IniText ini;
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const PlannedBase& base : system.Bases) {
      Random random(SeedOf("arms of " + base.Nickname));
      ini.Section("BaseGood").Line("base", base.BaseNickname());
      AddArms(ini, system, random);
      AddSupplies(ini, random);
    }
  }
  game.Folder.Write("DATA/EQUIPMENT/market_misc.ini", ini.Bytes());
}

bool SellsShips(const PlannedBase& base) {
  return base.Planet != nullptr || IsPirate(base) || base.Station->Stem == "space_port";
}

void WriteShipMarket(Game& game) {
  IniText ini;
  for (const PlannedSystem& system : game.Plan.Systems) {
    for (const PlannedBase& base : system.Bases) {
      if (!SellsShips(base)) continue;
      Random random(SeedOf("ships of " + base.Nickname));
      const bool border = system.Nation == kBorderWorlds;
      ini.Section("BaseGood").Line("base", base.BaseNickname());
      for (const Ship& ship : Ships()) {
        const bool offered =
            ship.Nation == system.Nation ? random.Chance(75) : random.Chance(border ? 25 : 5);
        if (!offered || !ship.HasHull || !ship.HasPackage) continue;
        ini.Line("marketgood", fmt::format("{}_package, 0, -1, 1, 1, 0, 1, 1", ship.Nickname));
      }
    }
  }
  game.Folder.Write("DATA/EQUIPMENT/market_ships.ini", ini.Bytes());
}

}  // namespace

void WriteMarkets(Game& game) {
  WriteCommodityMarket(game);
  WriteEquipmentMarket(game);
  WriteShipMarket(game);
}

}  // namespace orrerix::demo
