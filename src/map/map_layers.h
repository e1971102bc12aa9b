// SPDX-License-Identifier: MIT
// The layers of the map that come from the derived tables: lines and icons.
#pragma once

#include "map/redraw.h"
#include "shell/routine.h"

namespace orrerix {

struct JumpLayers {
  ControlList Lines;
  ControlList Icons;
};

// Counts the elements of the two arrays through one redraw.
struct ElementCounters {
  int Line = 1;
  int Image = 1;
};

// Jump connections: a line for each whose kind is switched on, and, if the map is zoomed, an icon
// at each end of every one.
JumpLayers JumpConnections(Routine& routine, Universe& universe, const MapState& state,
                           const MapOptions& options, const CellGeometry& cells,
                           ElementCounters& counters);

// Trade lanes, one line each.
ControlList TradeLaneLines(Routine& routine, Universe& universe, const CellGeometry& cells,
                           ElementCounters& counters);

// Icons of the dockable objects in the visible rectangle.
ControlList ObjectIcons(Routine& routine, Universe& universe, const MapState& state,
                        const CellGeometry& cells, ElementCounters& counters);

}  // namespace orrerix
