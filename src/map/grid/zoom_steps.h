// SPDX-License-Identifier: MIT
// Steps of the wheel and of a drag of the whole map: rectangles of cells near the visible one.
#pragma once

#include "map/grid/zoom.h"

namespace orrerix {

// A point of the grid in cells from its top left corner: 8.5, 10.5 is the middle of cell 8, 10.
struct GridPoint {
  double X = 0;
  double Y = 0;
};

// Two thirds as many columns and rows, at least one, with the point as near as possible to where it
// was within the rectangle, and its cell visible. One cell alone stays.
ZoomRectangle ZoomedIn(const ZoomRectangle& from, GridPoint about);

// Half as many more columns and rows, at most all; the old rectangle stays visible.
ZoomRectangle ZoomedOut(const ZoomRectangle& from, GridPoint about);

// The rectangle moved by whole cells, as far as the grid goes.
ZoomRectangle Moved(const ZoomRectangle& from, int columns, int rows);

}  // namespace orrerix
