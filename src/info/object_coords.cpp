// SPDX-License-Identifier: MIT
#include "info/object_coords.h"

namespace orrerix {

namespace {

double RequireNumber(const FieldRef& field) {
  const Value value = field.Get();
  if (value.IsNull()) throw RuntimeFailure(failure_number::kInvalidUseOfNull);
  return value.Number();
}

}  // namespace

std::string CoordsOf(Routine& routine, Universe& universe, const CellNames& names,
                     Recordset& dock) {
  std::string coords;
  routine.Try([&] {
    const MapCell cell{dock["mapx"].RequireLong(), dock["mapy"].RequireLong()};
    const CellFraction point{RequireNumber(dock["posx"]), RequireNumber(dock["posy"])};
    coords = CoordsToMapCoords(universe.Log, names, cell, point);
  });
  return coords;
}

}  // namespace orrerix
