// SPDX-License-Identifier: MIT
// What lies in the systems of a universe besides what the map itself shows: plain values, placed by
// the cell of their system and a fraction of its square.
#pragma once

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "derived/system_grid.h"

namespace orrerix {

// What a zone is to a player. One zone may be several of them.
enum class ZoneKind { Danger, Mining, Asteroids, Nebula, Patrol, Trade };
inline constexpr std::size_t kZoneKinds = 6;

class ZoneKinds {
 public:
  ZoneKinds() = default;
  ZoneKinds(std::initializer_list<ZoneKind> kinds) {
    for (const ZoneKind kind : kinds) Add(kind);
  }

  void Add(ZoneKind kind) { bits_.set(static_cast<std::size_t>(kind)); }
  bool Has(ZoneKind kind) const { return bits_.test(static_cast<std::size_t>(kind)); }
  bool Empty() const { return bits_.none(); }
  ZoneKinds CommonWith(const ZoneKinds& other) const {
    ZoneKinds both;
    both.bits_ = bits_ & other.bits_;
    return both;
  }
  bool operator==(const ZoneKinds&) const = default;

 private:
  std::bitset<kZoneKinds> bits_;
};

// A closed line around an area.
using Outline = std::vector<CellFraction>;

struct Zone {
  std::string Nickname;
  std::string Name;  // empty if the game gives it none
  ZoneKinds Kinds;
  MapCell Cell;
  CellFraction Middle;
  std::vector<Outline> Outlines;  // as seen from above; a ring has a second one around its hole
  std::optional<std::pair<CellFraction, CellFraction>> MiddleLine;  // of a long one: its ends
  double Area = 0;    // of the first outline, in squares of its system
  double Damage = 0;  // hull points a second
  bool HasMines = false;
  bool HasGas = false;              // pockets that explode
  std::vector<std::string> Yields;  // names of what can be mined
  std::vector<std::string> Flyers;  // names of the factions that fly there
};

enum class BodyKind { Sun, Planet };

struct Body {
  std::string Nickname;
  std::string Name;
  BodyKind Kind = BodyKind::Planet;
  MapCell Cell;
  CellFraction Place;
  double Radius = 0;  // fraction of the square; 0 where the data give no size
};

// One end of a jump connection.
struct Gate {
  std::string Nickname;
  std::string Name;
  bool IsHole = false;
  std::string Owner;  // name of the faction; empty for none
  MapCell Cell;
  CellFraction Place;
  MapCell OtherCell;  // where it leads to
};

enum class SpotKind { Station, Wreck, Platform };

// Anything else with a name and a place.
struct Spot {
  std::string Nickname;
  std::string Name;
  SpotKind Kind = SpotKind::Station;
  std::string Owner;              // name of the faction; empty for none
  std::vector<std::string> Loot;  // of a wreck: "20 x Gold"
  MapCell Cell;
  CellFraction Place;
};

struct SystemArea {
  std::string Nickname;
  std::string Name;
  MapCell Cell;
  double UnitsAcross = 0;              // game units (metres) from edge to edge of its square
  std::optional<std::size_t> Faction;  // whose territory it is: a place in Space::Factions
};

struct Space {
  std::vector<SystemArea> Systems;
  std::vector<std::string> Factions;  // names of those that own systems, most systems first
  std::vector<Zone> Zones;            // larger ones first
  std::vector<Body> Bodies;
  std::vector<Gate> Gates;
  std::vector<Spot> Spots;
};

}  // namespace orrerix
