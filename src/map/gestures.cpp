// SPDX-License-Identifier: MIT
#include "map/gestures.h"

#include <algorithm>
#include <cmath>

#include "map/game_sounds.h"
#include "map/grid/numeric.h"

namespace orrerix {
namespace {

constexpr Color kBandColor{0x00FFFF};
constexpr float kSmallestBand = 50;

Control BandLine(int index, LineEnds ends) {
  Control line = MakeLine(ControlId::RubberBand, index, LineKind::RubberBand, kBandColor);
  line.Ends = ends;
  return line;
}

// First and last of the cells on one axis that a stretch of twips touches. `origin` gives the near
// edge of a cell. The search starts at the visible cells and may go beyond them.
struct Stretch {
  int First;
  int Last;
};

template <typename Origin>
Stretch TouchedCells(Stretch visible, int highest, double size, double from, double to,
                     Origin origin) {
  int first = visible.First;
  int last = visible.Last;
  while (std::min(from, to) > origin(first) + size && first < highest) ++first;
  while (std::max(from, to) < origin(last) && last > first) --last;
  return {first, std::max(last, first)};
}

}  // namespace

void MapGestures::MouseDown(float x, float y) {
  dragStartX_ = x;
  dragStartY_ = y;
}

MoveAnswer MapGestures::MouseMove(PointerButton held, float x, float y, bool hovering) {
  MoveAnswer answer;
  answer.Redraw = state_.OptionsOpen;
  state_.OptionsOpen = false;
  answer.EndHover = hovering;
  if (held == PointerButton::Left && std::abs(x - dragStartX_) > kSmallestBand &&
      std::abs(y - dragStartY_) > kSmallestBand) {
    answer.RubberBand = RubberBand(x, y);
  }
  return answer;
}

ControlList MapGestures::RubberBand(float x, float y) const {
  return {BandLine(0, {dragStartX_, dragStartY_, x, dragStartY_}),
          BandLine(1, {x, dragStartY_, x, y}), BandLine(2, {x, y, dragStartX_, y}),
          BandLine(3, {dragStartX_, y, dragStartX_, dragStartY_})};
}

ReleaseAnswer MapGestures::MouseUp(PointerButton released, const CellGeometry& cells, float x,
                                   float y) {
  switch (released) {
    case PointerButton::Left:
      return ZoomIn(Touched(cells, x, y));
    case PointerButton::Right:
      return GoBack();
    case PointerButton::None:
      break;
  }
  return {};
}

ZoomRectangle MapGestures::Touched(const CellGeometry& cells, float x, float y) const {
  const ZoomRectangle& visible = state_.Zoom.Current();
  const Stretch columns =
      TouchedCells({visible.X1, visible.X2}, MapMaxX, cells.CellSize(), dragStartX_, x,
                   [&](int column) { return cells.CellLeft(column); });
  const Stretch rows = TouchedCells({visible.Y1, visible.Y2}, MapMaxY, cells.CellSize(),
                                    dragStartY_, y, [&](int row) { return cells.CellTop(row); });
  return {columns.First, rows.First, columns.Last, rows.Last};
}

ReleaseAnswer MapGestures::ZoomIn(const ZoomRectangle& rectangle) {
  UnloadObjects(state_);
  const ZoomChange change = state_.Zoom.PushZoomStack(log_, rectangle);
  ReleaseAnswer answer;
  // An unchanged rectangle is redrawn too, because its objects have been unloaded.
  answer.Redraw = true;
  answer.Beep = change == ZoomChange::Beep;
  if (change == ZoomChange::Changed) answer.Sound = kZoomSound;
  return answer;
}

ReleaseAnswer MapGestures::GoBack() {
  ReleaseAnswer answer;
  answer.Redraw = state_.Zoom.PopZoomStack(log_);
  if (answer.Redraw) UnloadObjects(state_);
  return answer;
}

}  // namespace orrerix
