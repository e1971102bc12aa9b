// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include "atlas/places.h"
#include "db/values/text.h"
#include "derived/jump_objects.h"
#include "space/read_space.h"

namespace orrerix {
namespace {

// Where items have their names that are no goods of their own, such as ammunition.
constexpr std::array<const char*, 12> kItemSections = {"munition",        "mine",
                                                       "countermeasure",  "gun",
                                                       "minedropper",     "countermeasuredropper",
                                                       "shieldgenerator", "thruster",
                                                       "repairkit",       "shieldbattery",
                                                       "engine",          "power"};

constexpr std::string_view kRingName = "Dockring: ";

struct ObjectPlace {
  MapCell Cell;
  CellFraction Place;
};

std::optional<ObjectPlace> PlaceOf(const SystemBook& systems, const SourceRow& object) {
  const SystemArea* system = systems.Find(object.Text("sys_nick"));
  const auto position = ReadPosition(object.Text("pos"));
  if (system == nullptr || !position) return std::nullopt;
  return ObjectPlace{system->Cell, SystemBook::PlaceIn(*system, *position)};
}

std::string OwnerOf(const SourceTables& tables, const SourceRow& object) {
  const std::string faction = object.Text("reputation");
  return faction.empty() ? std::string() : FactionNameOf(tables, faction);
}

// "20 x Gold", a line for each item, in the order of the loadout.
std::vector<std::string> LootOf(const SourceTables& tables, const std::string& loadout) {
  std::vector<std::pair<std::string, double>> items;
  for (const SourceRow& row : tables["Loadout_Cargo"].FindAll("NickName", loadout)) {
    const std::string name = ItemName(tables, row.Text("Cargo"));
    const auto known = std::find_if(items.begin(), items.end(),
                                    [&](const auto& item) { return item.first == name; });
    const double count = row.Number("Count").value_or(1);
    if (known == items.end()) {
      items.emplace_back(name, count);
    } else {
      known->second += count;
    }
  }
  std::vector<std::string> loot;
  loot.reserve(items.size());
  for (const auto& [name, count] : items) loot.push_back(fmt::format("{} x {}", count, name));
  return loot;
}

std::optional<SpotKind> KindOf(const SourceRow& object, const SolarBook& solars) {
  if (FoldAscii(object.Text("loadout")).starts_with("secret_")) return SpotKind::Wreck;
  if (!object.Text("dock_with").empty()) {
    const bool isFixture =
        FoldAscii(object.Text("nickname")).find("docking_fixture") != std::string::npos;
    return isFixture ? std::nullopt : std::optional(SpotKind::Station);
  }
  if (solars.IsWeaponPlatform(object.Text("archetype"))) return SpotKind::Platform;
  return std::nullopt;
}

std::string SpotName(const SourceRow& object) {
  std::string name = GivenObjectName(object);
  if (name.starts_with(kRingName)) name.erase(0, kRingName.size());
  return name;
}

std::optional<Gate> GateOf(const SourceTables& tables, const SourceRow& node, bool isFirst) {
  const auto field = [isFirst](std::string_view name) {
    return std::string(name) + (isFirst ? '1' : '2');
  };
  const auto other = [isFirst](std::string_view name) {
    return std::string(name) + (isFirst ? '2' : '1');
  };
  const Figure x = node.Number(field("MapX"));
  const Figure y = node.Number(field("MapY"));
  const Figure left = node.Number(field("PosX"));
  const Figure top = node.Number(field("PosY"));
  const Figure otherX = node.Number(other("MapX"));
  const Figure otherY = node.Number(other("MapY"));
  if (!x || !y || !left || !top || !otherX || !otherY) return std::nullopt;
  Gate gate;
  gate.Nickname = node.Text(isFirst ? "nickname" : "nickname2");
  const SourceRow object = tables["Objects"].Find("nickname", gate.Nickname);
  gate.Name = GivenObjectName(object);
  gate.Owner = OwnerOf(tables, object);
  gate.IsHole = node.Number("Type") == kJumpHole;
  gate.Cell = {static_cast<int>(*x), static_cast<int>(*y)};
  gate.Place = {*left, *top};
  gate.OtherCell = {static_cast<int>(*otherX), static_cast<int>(*otherY)};
  return gate;
}

}  // namespace

std::string GivenObjectName(const SourceRow& object) {
  return GivenName(object.Text("realname"), object.Text("nickname"));
}

std::string ItemName(const SourceTables& tables, const std::string& nickname) {
  for (const char* table : {"commodity", "Goods"}) {
    const SourceRow row = tables[table].Find("nickname", nickname);
    if (std::string name = GivenName(row.Text("realname"), nickname); !name.empty()) return name;
  }
  for (const char* section : kItemSections) {
    const SourceRow row = tables[section].Find("nickname", nickname);
    if (std::string name = tables.NameOf(row.Number("ids_name")); !name.empty()) return name;
  }
  return nickname;
}

std::vector<Body> ReadBodies(const SourceTables& tables, const SystemBook& systems,
                             const SolarBook& solars) {
  std::vector<Body> bodies;
  const SourceTable& objects = tables["Objects"];
  for (std::size_t i = 0; i < objects.RowCount(); ++i) {
    const SourceRow object = objects.Row(i);
    const std::string archetype = object.Text("archetype");
    const bool isSun = solars.IsSun(archetype);
    if (!isSun && !solars.IsPlanet(archetype)) continue;
    const auto place = PlaceOf(systems, object);
    if (!place) continue;
    const double across = systems.Find(object.Text("sys_nick"))->UnitsAcross;
    const Body body{object.Text("nickname"),
                    GivenObjectName(object),
                    isSun ? BodyKind::Sun : BodyKind::Planet,
                    place->Cell,
                    place->Place,
                    solars.RadiusOf(archetype) / across};
    if (!body.Name.empty() || body.Radius > 0) bodies.push_back(body);
  }
  return bodies;
}

std::vector<Gate> ReadGates(const SourceTables& tables) {
  std::vector<Gate> gates;
  const SourceTable& nodes = tables["JumpNodes"];
  for (std::size_t i = 0; i < nodes.RowCount(); ++i) {
    for (const bool isFirst : {true, false}) {
      if (auto gate = GateOf(tables, nodes.Row(i), isFirst)) gates.push_back(std::move(*gate));
    }
  }
  return gates;
}

std::vector<Spot> ReadSpots(const SourceTables& tables, const SystemBook& systems,
                            const SolarBook& solars) {
  std::vector<Spot> spots;
  const SourceTable& objects = tables["Objects"];
  for (std::size_t i = 0; i < objects.RowCount(); ++i) {
    const SourceRow object = objects.Row(i);
    const auto kind = KindOf(object, solars);
    const auto place = kind ? PlaceOf(systems, object) : std::nullopt;
    if (!place) continue;
    Spot spot{object.Text("nickname"),
              SpotName(object),
              *kind,
              OwnerOf(tables, object),
              {},
              place->Cell,
              place->Place};
    if (*kind == SpotKind::Wreck) spot.Loot = LootOf(tables, object.Text("loadout"));
    spots.push_back(std::move(spot));
  }
  return spots;
}

}  // namespace orrerix
