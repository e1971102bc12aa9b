// SPDX-License-Identifier: MIT
#include "map/grid/cell_geometry.h"

#include <algorithm>

#include "map/grid/numeric.h"

namespace orrerix {

TwipRect FrameOn(int formWidth, int formHeight) {
  return {50, 50, static_cast<double>(std::max(0, formWidth - 200)),
          static_cast<double>(std::max(0, formHeight - 550))};
}

CellGeometry::CellGeometry(const TwipRect& frame, const ZoomRectangle& visible)
    : size_(std::min(WholeTwips(frame.Width / visible.Columns()),
                     WholeTwips(frame.Height / visible.Rows()))),
      x1_(visible.X1),
      y1_(visible.Y1) {}

TwipRect CellGeometry::CellBox(int x, int y) const {
  return {static_cast<double>(CellLeft(x)), static_cast<double>(CellTop(y)),
          static_cast<double>(size_), static_cast<double>(size_)};
}

float CellGeometry::ScreenX(MapCell cell, double fraction) const {
  return static_cast<float>(CellLeft(cell.X) + size_ * fraction);
}

float CellGeometry::ScreenY(MapCell cell, double fraction) const {
  return static_cast<float>(CellTop(cell.Y) + size_ * fraction);
}

}  // namespace orrerix
