// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "db/recordset.h"
#include "map/map_coords.h"
#include "shell/routine.h"

namespace orrerix {

// The place of a row of `DockObjects` in the game's notation. A number that the row lacks is a
// failure of its own, and the place is then empty.
std::string CoordsOf(Routine& routine, Universe& universe, const CellNames& names, Recordset& dock);

}  // namespace orrerix
