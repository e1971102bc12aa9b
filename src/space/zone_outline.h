// SPDX-License-Identifier: MIT
// How a zone of the game looks from above.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace orrerix {

// A point of the plane that the map shows, game units: east and south.
struct PlanePoint {
  double East = 0;
  double South = 0;
  bool operator==(const PlanePoint&) const = default;
};

using Polygon = std::vector<PlanePoint>;

// A zone as its section says it: numbers that are missing are 0.
struct ZoneShape {
  std::string_view Shape;        // sphere, ellipsoid, cylinder, box or ring, in whatever case
  std::array<double, 3> Size{};  // radius; radii; radius and length; edges; outer and inner radius
  std::array<double, 3> Degrees{};  // turned about the axes east, up, south, one after the other
};

// The shape's outlines around its middle, game units. A ring has two, the outer one first; a shape
// that is not known, or has no extent, has none.
std::vector<Polygon> OutlinesFromAbove(const ZoneShape& zone);

// The ends of a cylinder's middle line as seen from above; nothing for another shape, or one that
// is no longer than it is wide.
std::optional<std::pair<PlanePoint, PlanePoint>> MiddleLineFromAbove(const ZoneShape& zone);

// The smallest polygon without dents around points, without the points on its edges.
Polygon ConvexHull(Polygon points);

// The area inside a polygon.
double AreaOf(const Polygon& polygon);

}  // namespace orrerix
