// SPDX-License-Identifier: MIT
#include "info/object_coords.h"

namespace orrerix {

std::string CoordsOf(Universe& universe, const CellNames& names, Recordset& dock) {
  const MapCell cell{static_cast<int>(dock["mapx"].Get().Number()),
                     static_cast<int>(dock["mapy"].Get().Number())};
  const CellFraction point{dock["posx"].Get().Number(), dock["posy"].Get().Number()};
  return CoordsToMapCoords(universe.Log, names, cell, point);
}

}  // namespace orrerix
