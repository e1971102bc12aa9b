// SPDX-License-Identifier: MIT
#include "map/grid/map_coords.h"

#include <cmath>

#include <fmt/format.h>

#include "import/resources/windows1252.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

// A place on one axis: the sector, and the tenth within it.
struct Sector {
  double Whole;
  int Tenth;
};

Sector SectorOf(double place) {
  const double whole = std::floor(place);
  // An endless place, which has no tenth, has no character either.
  const double tenth = std::floor((place - whole) * 10);
  return {whole, std::isfinite(tenth) ? static_cast<int>(tenth) : 0};
}

// The character of a code of the game's character set.
std::string Character(double code) {
  if (!(code >= 0 && code <= 255)) throw RuntimeFailure(failure_number::kInvalidProcedureCall);
  const char byte = static_cast<char>(static_cast<unsigned char>(code));
  return FromWindows1252({&byte, 1});
}

}  // namespace

bool CellNames::Holds(MapCell cell) {
  return cell.X >= 0 && cell.X <= MapMaxX && cell.Y >= 0 && cell.Y <= MapMaxY;
}

std::size_t CellNames::Index(MapCell cell) {
  const int index = cell.X + (MapMaxX + 1) * cell.Y;
  return static_cast<std::size_t>(index);
}

CellNames GetSystemNames(Universe& universe, TextSource& texts) {
  CellNames names;
  Routine routine(universe.Log, "OrrerixMain.GetSystemNames");
  routine.Run([&] {
    for (int y = 0; y <= MapMaxY; ++y) {
      for (int x = 0; x <= MapMaxX; ++x) {
        if (x == 0 && y == 0) continue;  // its label is the design's own and is never filled
        Recordset system = universe.DB.OpenRecordset(
            routine, "SELECT * from Systems where pos = '{}'", {CellText({x, y})});
        if (system.AtEnd()) continue;
        std::string name = system["realname"].Get().Text();
        names.Set({x, y}, name.empty() ? texts.Text(TextId::UnknownSystem) : std::move(name));
      }
    }
  });
  return names;
}

std::string CoordsToMapCoords(ErrorLog& log, const CellNames& names, MapCell cell,
                              CellFraction point) {
  std::string text;
  Routine routine(log, "OrrerixMain.CoordsToMapCoords");
  routine.Run([&] {
    const Sector x = SectorOf(8 * point.X - 0.35);
    const Sector y = SectorOf(8 * point.Y - 0.5);
    routine.Try([&] {
      if (!CellNames::Holds(cell)) throw RuntimeFailure(failure_number::kSubscriptOutOfRange);
      text = fmt::format("{} [X={}.{}/Y={}.{}]", names.Of(cell), Character(65 + x.Whole), x.Tenth,
                         Character(49 + y.Whole), y.Tenth);
    });
  });
  return text;
}

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
