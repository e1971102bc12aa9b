// SPDX-License-Identifier: MIT
#pragma once

#include "import/import_host.h"
#include "import/universe.h"

namespace orrerix {

// Fills table DockObjects: everything that a player can dock with or that carries a secret
// loadout, with its place on the map. A docking ring is named after the planet it serves, in
// `Objects` too.
void CalcDockObjects(Universe& universe, ImportHost& host);

}  // namespace orrerix
