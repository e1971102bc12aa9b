// SPDX-License-Identifier: MIT
#pragma once

#include "import/import_host.h"
#include "import/universe.h"

namespace orrerix {

// Fills table TradeLanes: one row for each chain of rings, from its first ring to its last. A lane
// whose opposite direction stands there already has none. A ring whose next one does not exist
// drops its whole lane and is named in the data log.
void CalcTradeLanes(Universe& universe, ImportHost& host);

}  // namespace orrerix
