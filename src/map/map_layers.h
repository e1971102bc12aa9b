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

// The three add to their last argument; cancelled, they leave what they have so far.

// Jump connections: a line for each whose kind is switched on, and, if the map is zoomed, an icon
// at each end of every one.
void AddJumpConnections(Routine& routine, Universe& universe, const MapState& state,
                        const MapOptions& options, const CellGeometry& cells,
                        ElementCounters& counters, JumpLayers& layers);

// Trade lanes, one line each.
void AddTradeLaneLines(Routine& routine, Universe& universe, const CellGeometry& cells,
                       ElementCounters& counters, ControlList& lines);

// Icons of the dockable objects in the visible rectangle.
void AddObjectIcons(Routine& routine, Universe& universe, const MapState& state,
                    const CellGeometry& cells, ElementCounters& counters, ControlList& icons);

}  // namespace orrerix
