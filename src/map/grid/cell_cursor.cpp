// SPDX-License-Identifier: MIT
#include "map/grid/cell_cursor.h"

#include <algorithm>

namespace orrerix {
namespace {

constexpr Color kCursorColor{0xFFFF80};
constexpr int kOutlines = 2;  // one within the other
constexpr int kOutlineGap = 15;

Control CursorLine(int index, LineEnds ends) {
  Control line = MakeLine(ControlId::CellCursor, index, LineKind::CellCursor, kCursorColor);
  line.Ends = ends;
  return line;
}

bool Holds(const ZoomRectangle& visible, MapCell cell) {
  return visible.Holds(cell.X, cell.Y);
}

}  // namespace

void CellCursor::Move(int columns, int rows, const ZoomRectangle& visible) {
  if (!Holds(visible, cell_)) {
    cell_ = {(visible.X1 + visible.X2) / 2, (visible.Y1 + visible.Y2) / 2};
  } else if (shown_) {
    cell_.X = std::clamp(cell_.X + columns, visible.X1, visible.X2);
    cell_.Y = std::clamp(cell_.Y + rows, visible.Y1, visible.Y2);
  }
  shown_ = true;
}

std::optional<MapCell> CellCursor::Cell(const ZoomRectangle& visible) const {
  if (!shown_ || !Holds(visible, cell_)) return std::nullopt;
  return cell_;
}

ControlList CellCursor::Lines(const CellGeometry& cells, const ZoomRectangle& visible) const {
  ControlList lines;
  const auto cell = Cell(visible);
  if (!cell) return lines;
  const TwipRect box = cells.CellBox(cell->X, cell->Y);
  for (int i = 0; i < kOutlines; ++i) {
    const double inset = (i + 0.5) * kOutlineGap;
    const auto left = static_cast<float>(box.Left + inset);
    const auto top = static_cast<float>(box.Top + inset);
    const auto right = static_cast<float>(box.Right() - inset);
    const auto bottom = static_cast<float>(box.Bottom() - inset);
    lines.push_back(CursorLine(4 * i, {left, top, right, top}));
    lines.push_back(CursorLine(4 * i + 1, {right, top, right, bottom}));
    lines.push_back(CursorLine(4 * i + 2, {right, bottom, left, bottom}));
    lines.push_back(CursorLine(4 * i + 3, {left, bottom, left, top}));
  }
  return lines;
}

}  // namespace orrerix
