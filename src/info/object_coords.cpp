// SPDX-License-Identifier: MIT
#include "info/object_coords.h"

namespace orrerix {

std::string CoordsOf(Routine& routine, Universe& universe, const CellNames& names,
                     Recordset& dock) {
  std::string coords;
  routine.Try([&] {
    const MapCell cell{dock["mapx"].RequireLong(), dock["mapy"].RequireLong()};
    const CellFraction point{dock["posx"].RequireNumber(), dock["posy"].RequireNumber()};
    coords = CoordsToMapCoords(universe.Log, names, cell, point);
  });
  return coords;
}

}  // namespace orrerix
