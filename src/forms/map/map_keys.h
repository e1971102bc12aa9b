// SPDX-License-Identifier: MIT
// The keyboard on the map frame.
#pragma once

namespace orrerix {

// What the keyboard says to the map frame.
enum class MapKey { Left, Right, Up, Down, ZoomIn, GoBack };

// Whoever acts on the keyboard while the map frame has the focus.
class MapKeys {
 public:
  virtual ~MapKeys() = default;
  virtual void KeyDown(MapKey) {}
  virtual void FocusByTab() {}  // the focus has come by the Tab key
  virtual void FocusLost() {}
};

}  // namespace orrerix
