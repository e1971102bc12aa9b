// SPDX-License-Identifier: MIT
// Names of the cells, and points in the game's own notation.
#pragma once

#include <array>
#include <string>

#include "db/rows/recordset.h"
#include "derived/system_grid.h"
#include "import/universe.h"
#include "shell/language.h"
#include "shell/routine.h"

namespace orrerix {

// Display names of the systems by cell; empty where no system is.
class CellNames {
 public:
  const std::string& Of(MapCell cell) const { return names_[Index(cell)]; }
  void Set(MapCell cell, std::string name) { names_[Index(cell)] = std::move(name); }
  static bool Holds(MapCell cell);

  // Place of a cell's label: column + 18 x row.
  static std::size_t Index(MapCell cell);

 private:
  std::array<std::string, (MapMaxX + 1) * (MapMaxY + 1)> names_;
};

// The names from `Systems`; a system without one is called by text 15. Cell 0, 0 has no name.
CellNames GetSystemNames(Universe& universe, TextSource& texts);

// A point in the game's notation of eight by eight sectors, "Name [X=D.6/Y=4.5]". Points beyond
// the sectors get the characters that follow or come before. Empty after a failure.
std::string CoordsToMapCoords(ErrorLog& log, const CellNames& names, MapCell cell,
                              CellFraction point);

// The place of a row of `DockObjects` in the game's notation. A number that the row lacks is a
// failure of its own, and the place is then empty.
std::string CoordsOf(Routine& routine, Universe& universe, const CellNames& names, Recordset& dock);

}  // namespace orrerix
