// SPDX-License-Identifier: MIT
// What the mouse does on the map: dragging a rectangle to zoom into, going back, and closing what
// is open.
#pragma once

#include <string_view>

#include "map/redraw.h"

namespace orrerix {

enum class PointerButton { None, Left, Right };

// What a move asks of the window, in this order.
struct MoveAnswer {
  bool Redraw = false;     // the options have folded
  bool EndHover = false;   // hide the hover box, give its icon its own size again
  ControlList RubberBand;  // the four lines to be shown in front; empty: leave them as they are
};

// What a release asks of the window, in this order. The rubber band is hidden in any case.
struct ReleaseAnswer {
  bool Beep = false;
  std::string_view Sound;  // path below the game folder, empty for none
  bool Redraw = false;
};

// The three mouse events of the map frame. All places are twips from the frame's top left corner;
// during a drag they may lie beyond its edges.
class MapGestures {
 public:
  // Both must outlive this.
  MapGestures(ErrorLog& log, MapState& state) : log_(log), state_(state) {}

  // Any button begins a drag.
  void MouseDown(float x, float y);

  // Folds the options. `held` is the one button that is down; `hovering` says that the box of an
  // icon is up. The rubber band needs more than 50 twips both ways.
  MoveAnswer MouseMove(PointerButton held, float x, float y, bool hovering);

  // Left zooms into all cells that the drag has touched, right goes back. `cells` are those of the
  // last redraw.
  ReleaseAnswer MouseUp(PointerButton released, const CellGeometry& cells, float x, float y);

 private:
  ControlList RubberBand(float x, float y) const;
  ZoomRectangle Touched(const CellGeometry& cells, float x, float y) const;
  ReleaseAnswer ZoomIn(const ZoomRectangle& rectangle);
  ReleaseAnswer GoBack();

  ErrorLog& log_;
  MapState& state_;
  float dragStartX_ = 0;
  float dragStartY_ = 0;
};

}  // namespace orrerix
