// SPDX-License-Identifier: MIT
// The layers of the map that follow the cells: backgrounds, pictures, fillers and names.
#pragma once

#include "map/redraw.h"
#include "shell/routine.h"

namespace orrerix {

// Tiles of the background; lays further ones if the map is zoomed.
ControlList BackgroundTiles(MapState& state, const TwipRect& frame);

// The painted universe, or the player's own file; its size is that of the frame and not of the
// cells.
Control PaintedUniverse(const TwipRect& frame, const std::optional<std::string>& file);

// Pictures of the systems, all of them, wherever they lie.
ControlList SystemPictures(const CellGeometry& cells);

// One filler for every cell without a system.
ControlList Fillers(const CellNames& names, const CellGeometry& cells);

// Names of the systems in the visible rectangle, in the largest font up to 10 points that fits the
// cell, black in print.
ControlList SystemLabels(Routine& routine, const MapState& state, const CellGeometry& cells,
                         const TextMeasure& measure);

}  // namespace orrerix
