// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "db/recordset.h"
#include "map/map_coords.h"

namespace orrerix {

// The place of a row of `DockObjects` in the game's notation.
std::string CoordsOf(Universe& universe, const CellNames& names, Recordset& dock);

}  // namespace orrerix
