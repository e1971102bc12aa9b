// SPDX-License-Identifier: MIT
#pragma once

#include "import/import_state.h"
#include "import/universe.h"
#include "shell/routine.h"

namespace orrerix {

// Fills table BaseGoodPrices: one row for each dockable object and commodity that its base trades,
// the good's price times the market's factor. `Sell` is 1 plus the market's fifth number.
void CalcBasePrices2(Universe& universe);

// The same table row by row, with a row for every commodity at every object with a market. `Sell`
// then means something else: 0 not traded, 1 bought only, 2 sold, and prices are cut, not rounded.
// No stage of the import calls it. Failures go to the caller.
void CalcBasePrices(Routine& caller, Import& import);

}  // namespace orrerix
