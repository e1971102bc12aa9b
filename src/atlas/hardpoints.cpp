// SPDX-License-Identifier: MIT
#include "atlas/hardpoints.h"

#include <algorithm>

#include <fmt/format.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kGun = "gun";
constexpr std::string_view kTurretWord = "turret";

// The parts of a list with commas, in lower case.
std::set<std::string> HardpointsIn(std::string_view list) {
  std::set<std::string> hardpoints;
  while (!list.empty()) {
    const std::size_t comma = std::min(list.find(','), list.size());
    const std::string_view name = Trim(list.substr(0, comma));
    if (!name.empty()) hardpoints.insert(FoldAscii(name));
    list.remove_prefix(std::min(comma + 1, list.size()));
  }
  return hardpoints;
}

// The number after the last underscore.
Figure ClassOf(std::string_view type) {
  const std::size_t underscore = type.rfind('_');
  return underscore == std::string_view::npos ? std::nullopt
                                              : ParseFigure(type.substr(underscore + 1));
}

bool IsOfKind(std::string_view type, std::string_view word) {
  return Contains(type, word) && !(word == kGun && Contains(type, kTurretWord));
}

}  // namespace

ShipMounts::ShipMounts(const SourceTables& tables, std::string_view ship) {
  for (const SourceRow& row : tables["Ships_Hardpoints"].FindAll("NickName", ship)) {
    const std::string type = FoldAscii(row.Text("EquipType"));
    if (type.empty()) continue;
    types_.insert(type);
    auto line = std::find_if(lines_.begin(), lines_.end(),
                             [&](const Line& known) { return known.Type == type; });
    if (line == lines_.end()) line = lines_.insert(line, {type, {}});
    line->Hardpoints.merge(HardpointsIn(row.Text("HardPoints")));
  }
}

Mounts ShipMounts::Of(std::string_view word) const {
  Mounts mounts;
  for (const Line& line : lines_) {
    if (!IsOfKind(line.Type, word)) continue;
    mounts.Hardpoints.insert(line.Hardpoints.begin(), line.Hardpoints.end());
    const Figure number = ClassOf(line.Type);
    if (number && number > mounts.HighestClass) mounts.HighestClass = number;
  }
  return mounts;
}

std::string ShipMounts::Text() const {
  std::string text;
  for (const Line& line : lines_) {
    if (!text.empty()) text += "; ";
    text += fmt::format("{}: {}", line.Type, line.Hardpoints.size());
  }
  return text;
}

std::optional<std::string> FindShip(const SourceTables& tables, std::string_view name) {
  for (const char* field : {"NickName", "RealName"}) {
    const SourceRow ship = tables["Ships"].Find(field, name);
    if (ship.Exists()) return ship.Text("NickName");
  }
  return std::nullopt;
}

std::optional<std::size_t> HardpointColumnOf(const AtlasTable& table) {
  return table.Find("hardpoint");
}

bool Fits(const Value& hardpoint, const ShipMounts& ship) {
  const std::string* type = hardpoint.TextContent();
  return type != nullptr && ship.Types().contains(FoldAscii(*type));
}

}  // namespace orrerix
