// SPDX-License-Identifier: MIT
// What is at a point of the map.
#pragma once

#include <vector>

#include "space/layers.h"
#include "space/space.h"

namespace orrerix {

// Whether a point lies inside a closed line.
bool IsInside(const Outline& outline, CellFraction point);

// The zones at a point of a system that the chosen layers show, the smallest first. The hole of a
// ring is not part of it.
std::vector<const Zone*> ZonesAt(const Space& space, const LayerChoice& layers, MapCell cell,
                                 CellFraction point);

// The gate nearest to a point, at most `reach` (fraction of the square) away; null if there is
// none.
const Gate* GateAt(const Space& space, MapCell cell, CellFraction point, double reach);

// The body at a point, where those with less than `reach` for a radius count as that large; null if
// there is none. Of several it is the smallest.
const Body* BodyAt(const Space& space, MapCell cell, CellFraction point, double reach);

// The nearest wreck or platform that the layers show, likewise.
const Spot* SpotAt(const Space& space, const LayerChoice& layers, MapCell cell, CellFraction point,
                   double reach);

// Whether the layers show a spot.
bool IsShown(const Spot& spot, const LayerChoice& layers);

}  // namespace orrerix
