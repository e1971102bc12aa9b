// SPDX-License-Identifier: MIT
// The layers of the map that come from the derived tables: lines and icons.
#pragma once

#include <utility>

#include "map/redraw.h"
#include "shell/routine.h"

namespace orrerix {

// Makes the lines and icons of one redraw, layer by layer. Where the user cancels a layer, what it
// had added stays.
class MapLayers {
 public:
  MapLayers(Routine& routine, Universe& universe, const MapState& state, const CellGeometry& cells)
      : routine_(routine), universe_(universe), state_(state), cells_(cells) {}

  // Jump connections: a line for each whose kind is switched on, and, if the map is zoomed, an icon
  // at each end of every one.
  void AddJumpConnections(const MapOptions& options);

  // Trade lanes, one line each.
  void AddTradeLanes();

  // Icons of the dockable objects in the visible rectangle.
  void AddObjects();

  // All that was added, which is then gone from here.
  MapObjects Take() { return std::exchange(objects_, {}); }

 private:
  // `type` is the row's own number, which a stranger's file may have beyond any integer.
  void AddJumpLine(Recordset& node, double type);
  void AddJumpIcons(Recordset& node, double type);

  Routine& routine_;
  Universe& universe_;
  const MapState& state_;
  const CellGeometry& cells_;
  int nextLine_ = 1;
  int nextIcon_ = 1;
  MapObjects objects_;
};

}  // namespace orrerix
