// SPDX-License-Identifier: MIT
#include "space/pick.h"

#include <algorithm>
#include <cmath>

namespace orrerix {
namespace {

double Distance(CellFraction a, CellFraction b) {
  return std::hypot(a.X - b.X, a.Y - b.Y);
}

bool Covers(const Zone& zone, CellFraction point) {
  if (!IsInside(zone.Outlines.front(), point)) return false;
  return zone.Outlines.size() < 2 || !IsInside(zone.Outlines[1], point);
}

}  // namespace

// A line to the left crosses the outline an odd number of times.
bool IsInside(const Outline& outline, CellFraction point) {
  bool inside = false;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const CellFraction& a = outline[i];
    const CellFraction& b = outline[(i + 1) % outline.size()];
    if ((a.Y > point.Y) == (b.Y > point.Y)) continue;
    if (point.X < (b.X - a.X) * (point.Y - a.Y) / (b.Y - a.Y) + a.X) inside = !inside;
  }
  return inside;
}

std::vector<const Zone*> ZonesAt(const Space& space, const LayerChoice& layers, MapCell cell,
                                 CellFraction point) {
  std::vector<const Zone*> zones;
  const ZoneKinds shown = layers.Zones();
  for (auto zone = space.Zones.rbegin(); zone != space.Zones.rend(); ++zone) {
    if (zone->Cell == cell && ShownKind(*zone, shown) && Covers(*zone, point)) {
      zones.push_back(&*zone);
    }
  }
  return zones;
}

const Gate* GateAt(const Space& space, MapCell cell, CellFraction point, double reach) {
  const Gate* nearest = nullptr;
  for (const Gate& gate : space.Gates) {
    const double distance = Distance(gate.Place, point);
    if (!(gate.Cell == cell) || distance > reach) continue;
    reach = distance;
    nearest = &gate;
  }
  return nearest;
}

const Body* BodyAt(const Space& space, MapCell cell, CellFraction point, double reach) {
  const Body* smallest = nullptr;
  for (const Body& body : space.Bodies) {
    if (!(body.Cell == cell) || Distance(body.Place, point) > std::max(body.Radius, reach))
      continue;
    if (smallest == nullptr || body.Radius < smallest->Radius) smallest = &body;
  }
  return smallest;
}

const Spot* SpotAt(const Space& space, const LayerChoice& layers, MapCell cell, CellFraction point,
                   double reach) {
  const Spot* nearest = nullptr;
  for (const Spot& spot : space.Spots) {
    const double distance = Distance(spot.Place, point);
    if (!(spot.Cell == cell) || distance > reach || !IsShown(spot, layers)) continue;
    reach = distance;
    nearest = &spot;
  }
  return nearest;
}

bool IsShown(const Spot& spot, const LayerChoice& layers) {
  switch (spot.Kind) {
    case SpotKind::Wreck:
      return layers.Has(Layer::Wrecks);
    case SpotKind::Platform:
      return layers.Has(Layer::Platforms);
    case SpotKind::Station:
      return layers.Has(Layer::ObjectNames);
  }
  return false;
}

}  // namespace orrerix
