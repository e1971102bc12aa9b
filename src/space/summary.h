// SPDX-License-Identifier: MIT
// What a part of the map holds, in numbers and names.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "space/space.h"

namespace orrerix {

// A rectangle of cells, inclusive on all sides.
struct CellArea {
  MapCell From;
  MapCell To;

  bool Holds(MapCell cell) const {
    return cell.X >= From.X && cell.X <= To.X && cell.Y >= From.Y && cell.Y <= To.Y;
  }
};

enum class SummaryKind {
  Systems,  // counts
  Bases,
  Gates,
  Holes,
  Bodies,
  Zones,
  Wrecks,
  Owners,  // factions that own systems
  System,  // names
  Owner,
  Base,
  Gate,  // or hole: where it leads to
  More   // names of the kind above that are left out
};

struct SummaryLine {
  SummaryKind Kind = SummaryKind::System;
  std::size_t Count = 0;  // of a count, and of More
  std::string Name;       // of a name; empty for the owner of a system that nobody owns
  std::string Nickname;   // of a base
  std::optional<MapCell> Cell = std::nullopt;  // of a gate: that of the other side

  bool operator==(const SummaryLine&) const = default;
};

// Of an area with one system: its name, owner, bases and gates by name, at most `mostNames` of
// each, and its counts. Of any other: counts alone. A count of none is left out, but for the bases
// of a system. Each end of a jump connection counts. Nothing for an area without systems.
std::vector<SummaryLine> SummaryOf(const Space& space, const CellArea& area, std::size_t mostNames);

}  // namespace orrerix
