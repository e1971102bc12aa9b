// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <map>
#include <set>

#include "atlas/places.h"
#include "db/values/text.h"
#include "space/game_sections.h"
#include "space/read_space.h"
#include "space/zone_outline.h"

namespace orrerix {
namespace {

// Bits of `property_flags`.
constexpr std::int64_t kMinesFlag = 0x1000;
constexpr std::int64_t kGasFlag = 0x4000;

// What the sections for fields and nebulas say about zones.
class FieldBook {
 public:
  FieldBook(const SourceTables& tables, const GameFolder& game) : tables_(tables), game_(game) {}

  bool IsNebula(const std::string& zone) const {
    return tables_["nebula"].Find("zone", zone).Exists();
  }
  bool IsAsteroidField(const std::string& zone) const {
    return tables_["asteroids"].Find("zone", zone).Exists();
  }

  std::vector<std::string> YieldsOf(const std::string& zone) {
    std::vector<std::string> yields;
    for (const SourceRow& field : tables_["asteroids"].FindAll("zone", zone)) {
      for (const std::string& item : YieldsOfFile(field.Text("file"))) {
        const std::string name = ItemName(tables_, item);
        if (std::find(yields.begin(), yields.end(), name) == yields.end()) yields.push_back(name);
      }
    }
    return yields;
  }

 private:
  const std::vector<std::string>& YieldsOfFile(const std::string& file) {
    const auto [known, isNew] = yields_.try_emplace(FoldAscii(file));
    if (!isNew || file.empty()) return known->second;
    for (const GameSection& section : ReadGameSections(game_, file)) {
      for (const auto& [key, value] : section.Entries) {
        const bool isLoot = key == "asteroid_loot_commodity" || key == "dynamic_loot_commodity";
        if (isLoot && !value.empty()) known->second.push_back(value);
      }
    }
    return known->second;
  }

  const SourceTables& tables_;
  const GameFolder& game_;
  std::map<std::string, std::vector<std::string>> yields_;  // nicknames by file
};

void SetKinds(const SourceRow& row, FieldBook& fields, Zone& zone) {
  if (zone.Damage > 0 || zone.HasMines || zone.HasGas) zone.Kinds.Add(ZoneKind::Danger);
  if (fields.IsNebula(zone.Nickname)) zone.Kinds.Add(ZoneKind::Nebula);
  if (fields.IsAsteroidField(zone.Nickname)) {
    zone.Kinds.Add(ZoneKind::Asteroids);
    zone.Yields = fields.YieldsOf(zone.Nickname);
    if (!zone.Yields.empty()) zone.Kinds.Add(ZoneKind::Mining);
  }
  const std::string usage = FoldAscii(row.Text("usage"));
  if (usage.find("patrol") != std::string::npos) zone.Kinds.Add(ZoneKind::Patrol);
  if (usage.find("trade") != std::string::npos) zone.Kinds.Add(ZoneKind::Trade);
}

void SetOutlines(const SourceRow& row, const SystemArea& system, GamePosition middle, Zone& zone) {
  const std::string name = row.Text("shape");
  const ZoneShape shape{name, ReadTriple(row.Text("size")), ReadTriple(row.Text("rotate"))};
  const auto placed = [&](const PlanePoint& point) {
    return SystemBook::PlaceIn(system, {middle.East + point.East, middle.South + point.South});
  };
  if (const auto line = MiddleLineFromAbove(shape)) {
    zone.MiddleLine = std::pair(placed(line->first), placed(line->second));
  }
  for (const Polygon& polygon : OutlinesFromAbove(shape)) {
    Outline outline;
    for (const PlanePoint& point : polygon) outline.push_back(placed(point));
    if (zone.Outlines.empty()) {
      zone.Area = AreaOf(polygon) / (system.UnitsAcross * system.UnitsAcross);
    }
    zone.Outlines.push_back(std::move(outline));
  }
}

std::string FirstPart(const std::string& list) {
  return std::string(Trim(std::string_view(list).substr(0, list.find(','))));
}

void SetFlyers(const SourceTables& tables, const SourceRow& row, Zone& zone) {
  if (!zone.Kinds.Has(ZoneKind::Patrol) && !zone.Kinds.Has(ZoneKind::Trade)) return;
  const std::string faction = FirstPart(row.Text("faction"));
  if (!faction.empty()) zone.Flyers.push_back(FactionNameOf(tables, faction));
}

}  // namespace

std::vector<Zone> ReadZones(const SourceTables& tables, const SystemBook& systems,
                            const GameFolder& game) {
  std::vector<Zone> zones;
  FieldBook fields(tables, game);
  const SourceTable& rows = tables["zone"];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const SourceRow row = rows.Row(i);
    const SystemArea* system = systems.OfFile(row.Text("SourceFileName"));
    const auto middle = ReadPosition(row.Text("pos"));
    if (system == nullptr || !middle) continue;
    Zone zone;
    zone.Nickname = row.Text("nickname");
    zone.Damage = row.Number("damage").value_or(0);
    const auto flags = static_cast<std::int64_t>(row.Number("property_flags").value_or(0));
    zone.HasMines = (flags & kMinesFlag) != 0;
    zone.HasGas = (flags & kGasFlag) != 0;
    SetKinds(row, fields, zone);
    if (zone.Kinds.Empty()) continue;
    SetOutlines(row, *system, *middle, zone);
    if (zone.Outlines.empty()) continue;
    zone.Name = tables.NameOf(row.Number("ids_name"));
    zone.Cell = system->Cell;
    zone.Middle = SystemBook::PlaceIn(*system, *middle);
    SetFlyers(tables, row, zone);
    zones.push_back(std::move(zone));
  }
  std::stable_sort(zones.begin(), zones.end(),
                   [](const Zone& a, const Zone& b) { return a.Area > b.Area; });
  return zones;
}

}  // namespace orrerix
