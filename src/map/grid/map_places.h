// SPDX-License-Identifier: MIT
// Places of objects on the map.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "derived/system_grid.h"

namespace orrerix {

// Where something stands on the map.
struct MapPlace {
  MapCell Cell;
  CellFraction Point;
};

// Finds the places of objects.
class MapPlaces {
 public:
  // Both must outlive this.
  MapPlaces(Routine& routine, Universe& universe);

  // The place of an object by its nickname, in whatever case. Nothing if there is no such object,
  // or its system is not on the map; a coordinate that cannot be read is that of the system's
  // middle.
  std::optional<MapPlace> Find(std::string_view nickname);

  // The nickname of the system in a cell; empty if there is none.
  std::string SystemIn(MapCell cell);

 private:
  Routine& routine_;
  Universe& universe_;
  SystemGrid grid_;
};

}  // namespace orrerix
