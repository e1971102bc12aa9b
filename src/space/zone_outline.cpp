// SPDX-License-Identifier: MIT
#include "space/zone_outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr int kCirclePoints = 64;
constexpr int kCapPoints = 24;  // of each end of a cylinder

using Vector = std::array<double, 3>;  // east, up, south

double Radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

Vector Turned(Vector v, const std::array<double, 3>& degrees) {
  const double cx = std::cos(Radians(degrees[0]));
  const double sx = std::sin(Radians(degrees[0]));
  v = {v[0], v[1] * cx - v[2] * sx, v[1] * sx + v[2] * cx};
  const double cy = std::cos(Radians(degrees[1]));
  const double sy = std::sin(Radians(degrees[1]));
  v = {v[0] * cy + v[2] * sy, v[1], -v[0] * sy + v[2] * cy};
  const double cz = std::cos(Radians(degrees[2]));
  const double sz = std::sin(Radians(degrees[2]));
  return {v[0] * cz - v[1] * sz, v[0] * sz + v[1] * cz, v[2]};
}

PlanePoint FromAbove(const Vector& v) {
  return {v[0], v[2]};
}

Polygon Ellipse(const std::array<double, 3>& radii, const std::array<double, 3>& degrees) {
  const PlanePoint a = FromAbove(Turned({radii[0], 0, 0}, degrees));
  const PlanePoint b = FromAbove(Turned({0, radii[1], 0}, degrees));
  const PlanePoint c = FromAbove(Turned({0, 0, radii[2]}, degrees));
  Polygon outline;
  for (int i = 0; i < kCirclePoints; ++i) {
    // The outermost point in this direction is that whose surface faces it.
    const double angle = 2 * std::numbers::pi * i / kCirclePoints;
    const double east = std::cos(angle);
    const double south = std::sin(angle);
    const auto along = [&](const PlanePoint& axis) {
      return axis.East * east + axis.South * south;
    };
    const double length = std::hypot(along(a), along(b), along(c));
    if (length == 0) return {};
    outline.push_back({(a.East * along(a) + b.East * along(b) + c.East * along(c)) / length,
                       (a.South * along(a) + b.South * along(b) + c.South * along(c)) / length});
  }
  return outline;
}

Polygon Cylinder(double radius, double length, const std::array<double, 3>& degrees) {
  Polygon points;
  for (int i = 0; i < kCapPoints; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCapPoints;
    for (const double end : {-length / 2, length / 2}) {
      points.push_back(
          FromAbove(Turned({radius * std::cos(angle), end, radius * std::sin(angle)}, degrees)));
    }
  }
  return ConvexHull(std::move(points));
}

Polygon Box(const std::array<double, 3>& edges, const std::array<double, 3>& degrees) {
  Polygon points;
  for (const double east : {-0.5, 0.5}) {
    for (const double up : {-0.5, 0.5}) {
      for (const double south : {-0.5, 0.5}) {
        points.push_back(
            FromAbove(Turned({edges[0] * east, edges[1] * up, edges[2] * south}, degrees)));
      }
    }
  }
  return ConvexHull(std::move(points));
}

// Twice the area of a triangle; above 0 where the corners turn to the left.
double Turn(const PlanePoint& a, const PlanePoint& b, const PlanePoint& c) {
  return (b.East - a.East) * (c.South - a.South) - (b.South - a.South) * (c.East - a.East);
}

std::vector<Polygon> Ring(const ZoneShape& zone) {
  std::vector<Polygon> outlines{Ellipse({zone.Size[0], 0, zone.Size[0]}, zone.Degrees)};
  if (zone.Size[1] > 0) outlines.push_back(Ellipse({zone.Size[1], 0, zone.Size[1]}, zone.Degrees));
  return outlines;
}

std::vector<Polygon> AnyOutlines(const ZoneShape& zone) {
  const std::string shape = FoldAscii(zone.Shape);
  const auto& [a, b, c] = zone.Size;
  if (shape == "sphere") return {Ellipse({a, a, a}, {})};
  if (shape == "ellipsoid") return {Ellipse(zone.Size, zone.Degrees)};
  if (shape == "cylinder") return {Cylinder(a, b, zone.Degrees)};
  if (shape == "box") return {Box(zone.Size, zone.Degrees)};
  if (shape == "ring") return Ring(zone);
  return {};
}

}  // namespace

std::vector<Polygon> OutlinesFromAbove(const ZoneShape& zone) {
  std::vector<Polygon> outlines = AnyOutlines(zone);
  std::erase_if(outlines, [](const Polygon& outline) { return AreaOf(outline) <= 0; });
  return outlines;
}

std::optional<std::pair<PlanePoint, PlanePoint>> MiddleLineFromAbove(const ZoneShape& zone) {
  if (FoldAscii(zone.Shape) != "cylinder") return std::nullopt;
  const PlanePoint end = FromAbove(Turned({0, zone.Size[1] / 2, 0}, zone.Degrees));
  if (std::hypot(end.East, end.South) <= zone.Size[0]) return std::nullopt;
  return std::pair(PlanePoint{-end.East, -end.South}, end);
}

Polygon ConvexHull(Polygon points) {
  std::sort(points.begin(), points.end(), [](const PlanePoint& a, const PlanePoint& b) {
    return a.East != b.East ? a.East < b.East : a.South < b.South;
  });
  points.erase(std::unique(points.begin(), points.end()), points.end());
  if (points.size() < 3) return points;
  Polygon hull;
  const auto walk = [&](auto first, auto last) {
    const std::size_t start = hull.size();
    for (; first != last; ++first) {
      while (hull.size() >= start + 2 && Turn(hull[hull.size() - 2], hull.back(), *first) <= 0) {
        hull.pop_back();
      }
      hull.push_back(*first);
    }
    hull.pop_back();  // where the other half begins
  };
  walk(points.begin(), points.end());
  walk(points.rbegin(), points.rend());
  return hull;
}

double AreaOf(const Polygon& polygon) {
  double twice = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const PlanePoint& a = polygon[i];
    const PlanePoint& b = polygon[(i + 1) % polygon.size()];
    twice += a.East * b.South - b.East * a.South;
  }
  return std::abs(twice) / 2;
}

}  // namespace orrerix
