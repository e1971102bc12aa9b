// SPDX-License-Identifier: MIT
// The cell that the keyboard points at.
#pragma once

#include <optional>

#include "map/drawing_list.h"
#include "map/grid/cell_geometry.h"
#include "map/grid/map_coords.h"
#include "map/grid/zoom.h"

namespace orrerix {

class CellCursor {
 public:
  // Goes by so many cells, never out of the visible rectangle. One that is hidden only appears:
  // where it was, or in the middle of a rectangle that does not hold that cell.
  void Move(int columns, int rows, const ZoomRectangle& visible);

  // Appears without going anywhere.
  void Show(const ZoomRectangle& visible) { Move(0, 0, visible); }

  void Hide() { shown_ = false; }

  // Nothing while it is hidden or outside the visible rectangle.
  std::optional<MapCell> Cell(const ZoomRectangle& visible) const;

  // Its outline as lines, through which the mouse goes.
  ControlList Lines(const CellGeometry& cells, const ZoomRectangle& visible) const;

 private:
  MapCell cell_{-1, -1};
  bool shown_ = false;
};

}  // namespace orrerix
