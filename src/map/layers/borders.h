// SPDX-License-Identifier: MIT
// Borders made of eight pictures round the map, the info box, the options and the tools.
#pragma once

#include "map/drawing_list.h"
#include "shell/error_log.h"

namespace orrerix {

// What a border surrounds; the number of its set of pictures.
enum class BorderSet { Map = 0, InfoBox = 1, Options = 2, Tools = 3 };

inline constexpr int kBorderPieces = 8;

// Thickness of the edges of every set.
inline constexpr int kBorderThickness = 60;

// The eight pieces of a set, fitted into the rectangle between the four sides.
// Corners first, then the edges between them; no width or height goes below 0.
ControlList BorderPieces(BorderSet set, int left, int top, int right, int bottom);

// The pieces from the top left corner of their parent to these sides (twips), which are rounded to
// 32-bit integers. A side outside that range is a failure of this routine; on OK it counts as 0, on
// Cancel there are no pieces.
ControlList LayOutBorder(ErrorLog& log, BorderSet set, double right, double bottom);

}  // namespace orrerix
