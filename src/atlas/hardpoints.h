// SPDX-License-Identifier: MIT
// Which equipment the hardpoints of ships take.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/source.h"

namespace orrerix {

// The hardpoints of a ship that take equipment of one kind.
struct Mounts {
  std::set<std::string> Hardpoints;  // in lower case (ASCII)
  Figure HighestClass;               // the number that its types end with; missing without one
};

// What a ship's hardpoints take: all types of equipment in lower case (ASCII), and by kind.
class ShipMounts {
 public:
  ShipMounts(const SourceTables& tables, std::string_view ship);

  const std::set<std::string>& Types() const { return types_; }

  // The mounts of all types that hold a word: "gun", "turret", "shield" and so on. Those for
  // turrets are not mounts for guns.
  Mounts Of(std::string_view word) const;

  // Each type with the number of its hardpoints: "hp_gun_special_1: 4; hp_thruster: 1".
  std::string Text() const;

 private:
  struct Line {
    std::string Type;
    std::set<std::string> Hardpoints;
  };
  std::vector<Line> lines_;
  std::set<std::string> types_;
};

// The ship of a nickname, or else the first of a name; its nickname as the universe spells it.
std::optional<std::string> FindShip(const SourceTables& tables, std::string_view name);

// The column of a table that names the hardpoint type; none if its things need no hardpoint.
std::optional<std::size_t> HardpointColumnOf(const AtlasTable& table);

// Whether the content of that column is a type that a ship takes.
bool Fits(const Value& hardpoint, const ShipMounts& ship);

}  // namespace orrerix
