// SPDX-License-Identifier: MIT
// Bases and systems.
#include <algorithm>
#include <array>
#include <set>

#include <fmt/format.h>

#include "atlas/families.h"
#include "atlas/packages.h"
#include "atlas/sales.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// The kinds of goods that a base's row counts.
enum class Ware { Ship, Commodity, Gun, Missile, Mine, Shield, Thruster, Countermeasure, Other };
constexpr std::size_t kWares = 9;

struct BaseRow {
  AtlasBase Base;
  std::array<std::size_t, kWares> Wares{};
  std::vector<std::string> ShipNames;
};

struct SystemRow {
  SourceRow System;
  std::vector<const AtlasBase*> Bases;
  std::size_t Jumps = 0;
};

struct WareKind {
  std::string_view Table;
  Ware Kind;
};
constexpr std::array kWareKinds = {
    WareKind{"minedropper", Ware::Mine}, WareKind{"shieldgenerator", Ware::Shield},
    WareKind{"thruster", Ware::Thruster}, WareKind{"countermeasuredropper", Ware::Countermeasure}};

Ware WareOf(const AtlasSource& source, const SourceRow& good) {
  if (EqualIgnoringCase(good.Text("category"), "ship")) return Ware::Ship;
  if (EqualIgnoringCase(good.Text("category"), "commodity")) return Ware::Commodity;
  const std::string equipment = good.Text("equipment");
  const SourceRow gun = source.Tables["gun"].Find("nickname", equipment);
  if (gun.Exists()) {
    const SourceRow shot =
        source.Tables["munition"].Find("nickname", gun.Text("projectile_archetype"));
    return IsGuidedOrBlasting(shot) ? Ware::Missile : Ware::Gun;
  }
  for (const WareKind& kind : kWareKinds) {
    if (source.Tables[kind.Table].Find("nickname", equipment).Exists()) return kind.Kind;
  }
  return Ware::Other;
}

Column<BaseRow> BaseText(std::string id, std::string head, std::string formula,
                         std::string AtlasBase::*field) {
  return {std::move(id), std::move(head), std::move(formula),
          [field](const BaseRow& row) { return TextValueOf(row.Base.*field); }};
}

Column<BaseRow> WareColumn(std::string id, std::string head, std::string what, Ware ware) {
  return {std::move(id), std::move(head) + " sold (kinds)",
          "number of " + std::move(what) + " that its market sells", [ware](const BaseRow& row) {
            return Value(static_cast<std::int64_t>(row.Wares[static_cast<std::size_t>(ware)]));
          }};
}

ColumnList<BaseRow> BaseColumns() {
  return {
      BaseText("name", "Name",
               "name of strid_name of [Base], else that of its first dock, else the nickname",
               &AtlasBase::Name),
      BaseText("nickname", "Nickname", "dock_with of its docks", &AtlasBase::Nickname),
      BaseText("system", "System", "name of the system of its first dock", &AtlasBase::SystemName),
      BaseText("sector", "Sector", "sector of its first dock on the game's map",
               &AtlasBase::Sector),
      BaseText("owner", "Owner", "name of the faction in reputation of its first dock",
               &AtlasBase::OwnerName),
      {"docks", "Docks (objects)", "number of objects that dock with it, without docking fixtures",
       [](const BaseRow& row) { return Value(static_cast<std::int64_t>(row.Base.Docks)); }},
      WareColumn("ships", "Ships", "ship packages", Ware::Ship),
      {"ship_names", "Ships", "the names of these ships",
       [](const BaseRow& row) {
         return TextValueOf(fmt::format("{}", fmt::join(row.ShipNames, "; ")));
       }},
      WareColumn("commodities", "Commodities", "commodities", Ware::Commodity),
      WareColumn("guns", "Guns and turrets", "guns and turrets", Ware::Gun),
      WareColumn("missiles", "Missiles", "missiles and torpedoes", Ware::Missile),
      WareColumn("mines", "Mines", "mine droppers", Ware::Mine),
      WareColumn("shields", "Shields", "shield generators", Ware::Shield),
      WareColumn("thrusters", "Thrusters", "thrusters", Ware::Thruster),
      WareColumn("countermeasures", "Countermeasures", "countermeasure droppers",
                 Ware::Countermeasure),
      WareColumn("others", "Other goods", "all other goods, with ammunition,", Ware::Other)};
}

// Which good each base sells, good by good; every base counts a good once.
std::vector<BaseRow> ReadBases(const AtlasSource& source) {
  std::vector<BaseRow> rows;
  for (const AtlasBase& base : source.Bases.Bases()) rows.push_back({base, {}, {}});
  const SourceTable& goods = source.Tables["Goods"];
  std::set<std::string> seen;
  for (std::size_t i = 0; i < goods.RowCount(); ++i) {
    const SourceRow good = goods.Row(i);
    const std::string nickname = good.Text("nickname");
    const Sellers& sellers = source.Sales.SellersOf(nickname);
    if (sellers.empty() || !seen.insert(FoldAscii(nickname)).second) continue;
    const Ware ware = WareOf(source, good);
    const SourceRow row = ware == Ware::Ship ? ShipOfPackage(source.Tables, good) : SourceRow();
    const std::string ship = row.Exists() ? ShipName(row) : std::string();
    for (const std::size_t base : sellers) {
      ++rows[base].Wares[static_cast<std::size_t>(ware)];
      std::vector<std::string>& names = rows[base].ShipNames;
      const bool isNew = std::find(names.begin(), names.end(), ship) == names.end();
      if (!ship.empty() && isNew) names.push_back(ship);
    }
  }
  return rows;
}

// The distinct texts of bases in their order, with "; " between them.
std::string DistinctOf(const SystemRow& row, std::string AtlasBase::*field) {
  std::string text;
  std::set<std::string> seen;
  for (const AtlasBase* base : row.Bases) {
    const std::string& each = base->*field;
    if (each.empty() || !seen.insert(each).second) continue;
    text += text.empty() ? each : "; " + each;
  }
  return text;
}

ColumnList<SystemRow> SystemColumns() {
  const auto text = [](std::string id, std::string head, std::string formula, std::string field) {
    return Column<SystemRow>{std::move(id), std::move(head), std::move(formula),
                             [field = std::move(field)](const SystemRow& s) {
                               return TextValueOf(s.System.Text(field));
                             }};
  };
  return {{"name", "Name", "name of strid_name of [System]",
           [](const SystemRow& s) {
             const std::string nickname = s.System.Text("nickname");
             return TextValueOf(GivenName(s.System.Text("realname"), nickname));
           }},
          text("nickname", "Nickname", "nickname of [System]", "nickname"),
          text("place", "Place (column, row)", "cell of the universe map", "pos"),
          {"scale", "Map scale (factor)", "navmapscale of [System]",
           [](const SystemRow& s) { return FigureValue(s.System.Number("navmapscale")); }},
          {"bases", "Bases (number)", "number of bases that a ship can dock at",
           [](const SystemRow& s) { return Value(static_cast<std::int64_t>(s.Bases.size())); }},
          {"base_names", "Bases", "their names",
           [](const SystemRow& s) { return TextValueOf(DistinctOf(s, &AtlasBase::Name)); }},
          {"owners", "Factions", "owners of these bases",
           [](const SystemRow& s) { return TextValueOf(DistinctOf(s, &AtlasBase::OwnerName)); }},
          {"jumps", "Jumps (objects)",
           "number of gates and holes: objects with a goto to another object",
           [](const SystemRow& s) { return Value(static_cast<std::int64_t>(s.Jumps)); }}};
}

std::vector<SystemRow> ReadSystems(const AtlasSource& source) {
  std::vector<SystemRow> rows;
  const SourceTable& systems = source.Tables["Systems"];
  for (std::size_t i = 0; i < systems.RowCount(); ++i) {
    SystemRow row{systems.Row(i), {}, 0};
    const std::string nickname = row.System.Text("nickname");
    for (const AtlasBase& base : source.Bases.Bases()) {
      if (EqualIgnoringCase(base.System, nickname)) row.Bases.push_back(&base);
    }
    for (const SourceRow& object : source.Tables["Objects"].FindAll("sys_nick", nickname)) {
      if (!object.Text("goto").empty()) ++row.Jumps;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

AtlasTable BasesTable() {
  return MakeTable<BaseRow>({"bases", "Bases", "Bases that a ship can dock at."}, BaseColumns(),
                            ReadBases);
}

AtlasTable SystemsTable() {
  return MakeTable<SystemRow>({"systems", "Systems", "Systems of the universe."}, SystemColumns(),
                              ReadSystems);
}

}  // namespace orrerix
