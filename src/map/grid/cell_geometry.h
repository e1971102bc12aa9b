// SPDX-License-Identifier: MIT
// Where the cells of the grid stand on the map frame.
#pragma once

#include <array>

#include "derived/system_grid.h"
#include "map/drawing_list.h"
#include "map/grid/zoom.h"

namespace orrerix {

// The frame's place on a form of this outer size (twips); title bar and borders are allowed for.
TwipRect FrameOn(int formWidth, int formHeight);

// Place of a point on the frame, twips as 32-bit floats.
struct ScreenPoint {
  float X = 0;
  float Y = 0;
};

// All cells are squares of one size; those outside the visible rectangle have their places too,
// beyond the frame's edges.
class CellGeometry {
 public:
  CellGeometry() = default;
  CellGeometry(const TwipRect& frame, const ZoomRectangle& visible);

  int CellSize() const { return size_; }
  int CellLeft(int x) const { return size_ * (x - x1_); }
  int CellTop(int y) const { return size_ * (y - y1_); }
  TwipRect CellBox(int x, int y) const;

  // Where a point of a cell stands. The product of size and fraction is formed in double and kept
  // as float.
  float ScreenX(MapCell cell, double fraction) const;
  float ScreenY(MapCell cell, double fraction) const;

  bool operator==(const CellGeometry&) const = default;

 private:
  int size_ = 0;
  int x1_ = 0;
  int y1_ = 0;
};

}  // namespace orrerix
