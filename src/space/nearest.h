// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "space/space.h"

namespace orrerix {

// A point of a system, in the game's own numbers too.
struct NamedPoint {
  std::string Name;      // of the place there; empty where none is
  std::string Nickname;  // likewise
  CellFraction Place;
  double East = 0;  // game units from the system's middle
  double South = 0;
};

// The station, wreck, platform, gate or body nearest to a point, at most `reach` (fraction of the
// square) away, with its own place; else the point itself. A cell without a system has no numbers.
NamedPoint NearestPoint(const Space& space, MapCell cell, CellFraction point, double reach);

// "Planet Manhattan, New York [X=C.6/Y=3.4] (-33270, 0, -33039)"; `sector` is the middle part.
std::string CoordinatesText(const NamedPoint& point, const std::string& sector);

}  // namespace orrerix
