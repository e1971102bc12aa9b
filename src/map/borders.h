// SPDX-License-Identifier: MIT
// Borders made of eight pictures round the map, the info box, the options and the tools.
#pragma once

#include "map/drawing_list.h"

namespace orrerix {

// What a border surrounds; the number of its set of pictures.
enum class BorderSet { Map = 0, InfoBox = 1, Options = 2, Tools = 3 };

inline constexpr int kBorderPieces = 8;

// Thickness of the edges of every set.
inline constexpr int kBorderThickness = 60;

// The eight pieces (control `Rahmen`) of a set, fitted into the rectangle between the four sides.
// Corners first, then the edges between them; no width or height goes below 0.
ControlList SetRahmen(BorderSet set, int left, int top, int right, int bottom);

}  // namespace orrerix
