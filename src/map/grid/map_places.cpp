// SPDX-License-Identifier: MIT
#include "map/grid/map_places.h"

#include "derived/lookup.h"

namespace orrerix {

MapPlaces::MapPlaces(Routine& routine, Universe& universe)
    : routine_(routine), universe_(universe), grid_(routine, universe) {}

std::optional<MapPlace> MapPlaces::Find(std::string_view nickname) {
  Recordset object = ObjectNamed(routine_, universe_, nickname);
  if (object.AtEnd()) return std::nullopt;
  const MapCell cell = grid_.FindCell(object["sys_nick"].Get().Text());
  if (cell == MapCell{}) return std::nullopt;
  const double scale = SystemScale(routine_, universe_, cell);
  return MapPlace{cell, PlaceObject(routine_, object["pos"].Get().Text(), scale, {}).Place};
}

std::string MapPlaces::SystemIn(MapCell cell) {
  Recordset system = universe_.DB.OpenRecordset(routine_, "SELECT * from Systems where pos = '{}'",
                                                {CellText(cell)});
  return system.AtEnd() ? std::string() : system["nickname"].Get().Text();
}

}  // namespace orrerix
