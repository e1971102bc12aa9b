// SPDX-License-Identifier: MIT
// The visible rectangle of cells and the rectangles before it.
#pragma once

#include <cstddef>
#include <vector>

#include "derived/system_grid.h"
#include "shell/error_log.h"

namespace orrerix {

// A rectangle of whole cells, inclusive on all sides.
struct ZoomRectangle {
  int X1 = 0;
  int Y1 = 0;
  int X2 = MapMaxX;
  int Y2 = MapMaxY;

  int Columns() const { return X2 - X1 + 1; }
  int Rows() const { return Y2 - Y1 + 1; }
  // Whether the rectangle's size is another than the whole grid's.
  bool IsZoomed() const { return X2 - X1 != MapMaxX || Y2 - Y1 != MapMaxY; }
  bool Holds(int x, int y) const { return x >= X1 && x <= X2 && y >= Y1 && y <= Y2; }
  // Whether all sides lie in the grid and in their order.
  bool IsValid() const;
  bool operator==(const ZoomRectangle&) const = default;
};

// What the caller is to do about a change of the rectangle.
enum class ZoomChange { None, Beep, Changed };

class ZoomStack {
 public:
  const ZoomRectangle& Current() const { return current_; }
  std::size_t ZoomDepth() const { return saved_.size(); }

  // Shows a rectangle with nothing behind it.
  void Reset(const ZoomRectangle& rectangle = {});

  // Saves the current rectangle and takes a new one. The same one again only beeps, but for the
  // first: at depth 0 it is saved like any other. The depth is a 16-bit number: a step beyond it is
  // a failure, on OK the new rectangle replaces the current one and that is saved as the last one.
  ZoomChange PushZoomStack(ErrorLog& log, const ZoomRectangle& rectangle);

  // Shows a rectangle in the place of the current one, which is not saved.
  void Replace(const ZoomRectangle& rectangle) { current_ = rectangle; }

  // Goes back to the rectangle saved last. False if there is none.
  bool PopZoomStack(ErrorLog& log);

 private:
  ZoomRectangle current_;
  std::vector<ZoomRectangle> saved_;
};

}  // namespace orrerix
