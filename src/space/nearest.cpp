// SPDX-License-Identifier: MIT
#include "space/nearest.h"

#include <cmath>

#include <fmt/format.h>

namespace orrerix {
namespace {

class Search {
 public:
  Search(MapCell cell, CellFraction point, double reach)
      : cell_(cell), point_(point), reach_(reach) {
    found_.Place = point;
  }

  template <typename Things>
  void Look(const Things& things) {
    for (const auto& thing : things) {
      const double distance = std::hypot(thing.Place.X - point_.X, thing.Place.Y - point_.Y);
      if (!(thing.Cell == cell_) || distance > reach_) continue;
      reach_ = distance;
      found_ = {thing.Name.empty() ? thing.Nickname : thing.Name, thing.Nickname, thing.Place};
    }
  }

  const NamedPoint& Found() const { return found_; }

 private:
  MapCell cell_;
  CellFraction point_;
  double reach_;
  NamedPoint found_;
};

}  // namespace

NamedPoint NearestPoint(const Space& space, MapCell cell, CellFraction point, double reach) {
  Search search(cell, point, reach);
  search.Look(space.Spots);
  search.Look(space.Gates);
  search.Look(space.Bodies);
  NamedPoint found = search.Found();
  for (const SystemArea& system : space.Systems) {
    if (!(system.Cell == cell)) continue;
    found.East = (found.Place.X - 0.5) * system.UnitsAcross;
    found.South = (found.Place.Y - 0.5) * system.UnitsAcross;
  }
  return found;
}

std::string CoordinatesText(const NamedPoint& point, const std::string& sector) {
  const std::string start = point.Name.empty() ? std::string() : point.Name + ", ";
  // Adding 0 makes 0 of -0.
  return fmt::format("{}{} ({}, 0, {})", start, sector, std::round(point.East) + 0.0,
                     std::round(point.South) + 0.0);
}

}  // namespace orrerix
