// SPDX-License-Identifier: MIT
#include "map/grid/zoom_steps.h"

#include <algorithm>
#include <cmath>

namespace orrerix {
namespace {

constexpr double kFactor = 1.5;

// The sides of a rectangle in one direction.
struct Span {
  int First = 0;
  int Last = 0;

  int Count() const { return Last - First + 1; }
};

// `count` cells, placed so that the point keeps its share of the span; `lowest` and `highest` are
// the bounds of the first cell.
Span Placed(const Span& from, double about, int count, int lowest, int highest) {
  const double share = (about - from.First) / from.Count();
  const int first =
      std::clamp(static_cast<int>(std::lround(about - share * count)), lowest, highest);
  return {first, first + count - 1};
}

Span SpanIn(const Span& from, double about) {
  const int count = std::max(1, static_cast<int>(from.Count() / kFactor));
  const int cell = std::clamp(static_cast<int>(std::floor(about)), from.First, from.Last);
  return Placed(from, about, count, std::max(from.First, cell - count + 1),
                std::min(cell, from.Last - count + 1));
}

Span SpanOut(const Span& from, double about, int most) {
  const int count = std::min(most + 1, static_cast<int>(std::ceil(from.Count() * kFactor)));
  return Placed(from, about, count, std::max(0, from.Last - count + 1),
                std::min(from.First, most - count + 1));
}

int Shifted(int first, int last, int by, int most) {
  return std::clamp(by, -first, most - last);
}

}  // namespace

ZoomRectangle ZoomedIn(const ZoomRectangle& from, GridPoint about) {
  const Span x = SpanIn({from.X1, from.X2}, about.X);
  const Span y = SpanIn({from.Y1, from.Y2}, about.Y);
  return {x.First, y.First, x.Last, y.Last};
}

ZoomRectangle ZoomedOut(const ZoomRectangle& from, GridPoint about) {
  const Span x = SpanOut({from.X1, from.X2}, about.X, MapMaxX);
  const Span y = SpanOut({from.Y1, from.Y2}, about.Y, MapMaxY);
  return {x.First, y.First, x.Last, y.Last};
}

ZoomRectangle Moved(const ZoomRectangle& from, int columns, int rows) {
  const int x = Shifted(from.X1, from.X2, columns, MapMaxX);
  const int y = Shifted(from.Y1, from.Y2, rows, MapMaxY);
  return {from.X1 + x, from.Y1 + y, from.X2 + x, from.Y2 + y};
}

}  // namespace orrerix
