// SPDX-License-Identifier: MIT
#pragma once

#include "map/gestures.h"

namespace orrerix {

// The mouse on the map frame.
struct MapPointer {
  double X = 0;  // twips from the frame's top left corner
  double Y = 0;
  PointerButton Button = PointerButton::None;  // pressed or released; of a move the one held down
  bool OthersHeld = false;         // buttons besides the one that is pressed or released
  const Control* Under = nullptr;  // topmost control that is no line; null on the bare frame
  bool OnPanel = false;            // that control is the panel, or a part of it
};

// Whoever acts on the mouse. The map as such only shows.
class MapMouse {
 public:
  virtual ~MapMouse() = default;
  virtual void MouseDown(const MapPointer&) {}
  virtual void MouseMove(const MapPointer&) {}
  virtual void MouseUp(const MapPointer&) {}
};

}  // namespace orrerix
