// SPDX-License-Identifier: MIT
// The mouse on the map frame.
#pragma once

#include "map/gestures.h"

namespace orrerix {

// Where the mouse is, and with what.
struct MapPointer {
  double X = 0;  // twips from the frame's top left corner
  double Y = 0;
  PointerButton Button = PointerButton::None;  // pressed or released; of a move the one held down
  bool OthersHeld = false;         // buttons besides the one that is pressed or released
  const Control* Under = nullptr;  // topmost control that is no line; null on the bare frame
  bool OnPanel = false;            // that control is the panel, or a part of it
};

// Receives mouse events on the map. The map itself only displays.
class MapMouse {
 public:
  virtual ~MapMouse() = default;
  virtual void MouseDown(const MapPointer&) {}
  virtual void MouseMove(const MapPointer&) {}
  virtual void MouseUp(const MapPointer&) {}
};

}  // namespace orrerix
